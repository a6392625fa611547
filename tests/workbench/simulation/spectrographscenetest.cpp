// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrographscene.h"
#include "guardedtest.h"
#include "sceneexposure.h"

#include <QSet>

#include <cmath>

class SpectrographSceneTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void LinesLieWhereTheTruthSays_data();
    void LinesLieWhereTheTruthSays();
    void ThreeTracksStandOutOfTheDark();
    void RegionIsACropOfTheSensor();
    void DarkFrameShowsOffsetAndReadNoise();
    void DarkCurrentGrowsWithTheExposure();
    void NoiseGrowsWithTheRootOfTheLight();
    void HotPixelsStayWhereTheyAre();
    void CosmicRaysStrikeOneFrameOnly();
    void CosmicRaysFallOnTheWholeSensor();
    void SettingsMoveTheLines();
};

namespace {
constexpr int kWidth = 2048;
constexpr int kHeight = 512;
const SpectrographOptics kTruth(QSize(kWidth, kHeight));
constexpr double kCountsPerElectron = 65535 / 7200.0;

SpectrographSettings WithoutDefects()
{
    SpectrographSettings settings;
    settings.darkElectronsPerSecond = 0;
    settings.hotPixelsPerMillion = 0;
    settings.cosmicRaysPerSecond = 0;
    return settings;
}

/// Centre of light around `column` in row y, averaged over `frames` exposures, dark level taken off.
double MeasuredCentre(Scene &scene, int column, int y, int frames)
{
    SceneExposure exposure(kWidth, kHeight, 16);
    exposure.Settings().exposureUs = 2000; // nothing saturates
    double weight = 0;
    double moment = 0;
    for (int n = 0; n < frames; ++n) {
        exposure.Settings().frameNumber = quint64(n);
        exposure.Expose(scene);
        for (int row = y - 4; row <= y + 4; ++row) {
            for (int x = column - 8; x <= column + 8; ++x) {
                const double light = exposure.SampleAt(x, row) - 0.02 * 65535;
                weight += light;
                moment += light * x;
            }
        }
    }
    return moment / weight;
}
} // namespace

void SpectrographSceneTest::LinesLieWhereTheTruthSays_data()
{
    QTest::addColumn<double>("wavelengthNm");
    QTest::addColumn<int>("track");
    QTest::newRow("Hg 435.834 top") << 435.834 << 0;
    QTest::newRow("Hg 546.075 middle") << 546.075 << 1;
    QTest::newRow("Ar 696.543 bottom") << 696.543 << 2;
    QTest::newRow("Ar 763.511 top") << 763.511 << 0;
    QTest::newRow("Ar 912.297 middle") << 912.297 << 1;
}

void SpectrographSceneTest::LinesLieWhereTheTruthSays()
{
    QFETCH(double, wavelengthNm);
    QFETCH(int, track);
    SpectrographScene scene(7);
    const int y = int(std::lround(kTruth.TrackCentre(track)));
    const double truth = kTruth.LinePosition(wavelengthNm, y);
    const double measured = MeasuredCentre(scene, int(std::lround(truth)), y, 20);
    QVERIFY2(std::abs(measured - truth) < 0.1, qPrintable(QString("%1 against %2").arg(measured).arg(truth)));
}

void SpectrographSceneTest::ThreeTracksStandOutOfTheDark()
{
    SpectrographScene scene(7);
    SceneExposure exposure(kWidth, kHeight, 16);
    exposure.Expose(scene);
    const auto rowMean = [&](double y) {
        double sum = 0;
        for (int x = 0; x < kWidth; ++x)
            sum += exposure.SampleAt(x, int(std::lround(y)));
        return sum / kWidth;
    };
    for (int track = 0; track < kTruth.TrackCount(); ++track)
        QVERIFY(rowMean(kTruth.TrackCentre(track)) > 0.03 * 65535);
    for (const double gap : { 1.0, 3 * kHeight / 8.0, 5 * kHeight / 8.0, kHeight - 2.0 })
        QVERIFY(std::abs(rowMean(gap) - 0.02 * 65535) < 0.001 * 65535);
}

void SpectrographSceneTest::RegionIsACropOfTheSensor()
{
    SpectrographScene scene(7);
    SceneExposure region(64, 32, 16);
    region.Settings().sensorWidth = kWidth;
    region.Settings().sensorHeight = kHeight;
    const double y = kTruth.TrackCentre(0);
    const double truth = kTruth.LinePosition(546.075, y);
    region.Settings().offsetX = int(std::lround(truth)) - 40;
    region.Settings().offsetY = int(std::lround(y)) - 16;
    region.Expose(scene);
    QVERIFY(region.SampleAt(40, 16) > 60000);
    QVERIFY(region.SampleAt(10, 16) < 3000);
}

void SpectrographSceneTest::DarkFrameShowsOffsetAndReadNoise()
{
    SpectrographScene scene(7);
    SceneExposure dark(257, 129, 16);
    dark.Settings().exposureUs = 0;
    dark.Expose(scene);
    double sum = 0;
    double squares = 0;
    for (int y = 0; y < 129; ++y) {
        for (int x = 0; x < 257; ++x) {
            sum += dark.SampleAt(x, y);
            squares += double(dark.SampleAt(x, y)) * dark.SampleAt(x, y);
        }
    }
    const double count = 257.0 * 129.0;
    const double mean = sum / count;
    const double sigma = std::sqrt(squares / count - mean * mean);
    // Offset 2 % of full scale; read noise 4 electrons at 65535 / 7200 counts an electron.
    QVERIFY2(std::abs(mean - 1310.7) < 2.0, qPrintable(QString::number(mean)));
    QVERIFY2(std::abs(sigma - 36.4) < 1.0, qPrintable(QString::number(sigma)));
}

void SpectrographSceneTest::DarkCurrentGrowsWithTheExposure()
{
    SpectrographSettings settings = WithoutDefects();
    settings.darkElectronsPerSecond = 50;
    SpectrographScene scene(7, settings);
    SceneExposure exposure(256, 8, 16);
    // A dark corner of a large sensor.
    exposure.Settings().sensorWidth = kWidth;
    exposure.Settings().sensorHeight = 2048;
    for (const double seconds : { 1.0, 10.0 }) {
        exposure.Settings().exposureUs = seconds * 1e6;
        exposure.Expose(scene);
        const double electrons = (exposure.Mean() - 0.02 * 65535) / kCountsPerElectron;
        QVERIFY2(std::abs(electrons - 50 * seconds) < 0.05 * 50 * seconds, qPrintable(QString::number(electrons)));
    }
}

/// Light of 4500 x 0.004 electrons in 10 ms lies on a track between the lines.
void SpectrographSceneTest::NoiseGrowsWithTheRootOfTheLight()
{
    SpectrographScene scene(7, WithoutDefects());
    SceneExposure exposure(200, 1, 16); // between 579 and 696 nm
    exposure.Settings().sensorWidth = kWidth;
    exposure.Settings().sensorHeight = kHeight;
    exposure.Settings().offsetX = 850;
    exposure.Settings().offsetY = int(std::lround(kTruth.TrackCentre(0)));
    exposure.Settings().exposureUs = 1e6;
    double sum = 0;
    double squares = 0;
    int count = 0;
    for (int frame = 0; frame < 50; ++frame) {
        exposure.Settings().frameNumber = quint64(frame);
        exposure.Expose(scene);
        for (int x = 0; x < 200; ++x, ++count) {
            const double electrons = (exposure.SampleAt(x, 0) - 0.02 * 65535) / kCountsPerElectron;
            sum += electrons;
            squares += electrons * electrons;
        }
    }
    const double mean = sum / count;
    const double variance = squares / count - mean * mean;
    QVERIFY2(std::abs(mean - 1800) < 60, qPrintable(QString::number(mean)));
    QVERIFY2(std::abs(variance / (mean + 16) - 1) < 0.05, qPrintable(QString::number(variance)));
}

void SpectrographSceneTest::HotPixelsStayWhereTheyAre()
{
    SpectrographSettings settings = WithoutDefects();
    settings.hotPixelsPerMillion = 1000;
    SpectrographScene scene(7, settings);
    SceneExposure exposure(1024, 1024, 16);
    exposure.Settings().exposureUs = 50e3; // 1000 electrons at least
    QSet<int> before;
    for (const int frame : { 1, 2 }) {
        exposure.Settings().frameNumber = quint64(frame);
        exposure.Expose(scene);
        QSet<int> hot;
        for (int y = 0; y < 150; ++y) { // above the first track
            for (int x = 0; x < 1024; ++x) {
                if (exposure.SampleAt(x, y) > (0.02 * 7200 + 500) * kCountsPerElectron)
                    hot << y * 1024 + x;
            }
        }
        // 154 expected, with the scatter of chance.
        QVERIFY2(hot.size() > 100 && hot.size() < 210, qPrintable(QString::number(hot.size())));
        QVERIFY(before.isEmpty() || hot == before);
        before = hot;
    }
}

void SpectrographSceneTest::CosmicRaysStrikeOneFrameOnly()
{
    SpectrographSettings settings = WithoutDefects();
    settings.cosmicRaysPerSecond = 20;
    const CosmicRays rays(7, 20);
    SpectrographScene scene(7, settings);
    SceneExposure struck(512, 512, 16);
    struck.Settings().exposureUs = 1e6;
    SpectrographScene clean(7, WithoutDefects());
    SceneExposure spared = struck;
    struck.Expose(scene);
    spared.Expose(clean);
    const std::vector<CosmicRays::Hit> hits = rays.HitsIn(struck.Settings());
    QVERIFY(hits.size() > 10 && hits.size() < 600);
    QSet<int> pixels;
    for (const CosmicRays::Hit &hit : hits) {
        if (QRect(0, 0, 512, 512).contains(hit.pixel))
            pixels << hit.pixel.y() * 512 + hit.pixel.x();
    }
    int brighter = 0;
    for (int y = 0; y < 512; ++y) {
        for (int x = 0; x < 512; ++x) {
            const int more = struck.SampleAt(x, y) - spared.SampleAt(x, y);
            if (!pixels.contains(y * 512 + x))
                QCOMPARE(more, 0);
            else if (spared.SampleAt(x, y) < 50000)
                brighter += more >= int(800 * kCountsPerElectron);
        }
    }
    QVERIFY(brighter > 10);

    struck.Settings().frameNumber = 1;
    const std::vector<CosmicRays::Hit> later = rays.HitsIn(struck.Settings());
    QVERIFY(later.empty() || later.front().pixel != hits.front().pixel);
}

void SpectrographSceneTest::CosmicRaysFallOnTheWholeSensor()
{
    const CosmicRays rays(3, 1000);
    SceneFrame frame;
    frame.sensorWidth = 400;
    frame.sensorHeight = 300;
    frame.exposureUs = 1e6;
    const std::vector<CosmicRays::Hit> hits = rays.HitsIn(frame);
    // A thousand tracks of 1 to 12 pixels.
    QVERIFY2(hits.size() > 5000 && hits.size() < 8000, qPrintable(QString::number(hits.size())));
    double x = 0;
    double y = 0;
    for (const CosmicRays::Hit &hit : hits) {
        x += hit.pixel.x() / double(hits.size());
        y += hit.pixel.y() / double(hits.size());
    }
    QVERIFY2(std::abs(x - 200) < 20 && std::abs(y - 150) < 15, qPrintable(QString("%1 %2").arg(x).arg(y)));

    // A region sees those that strike it, at the same places; without time to fall none does.
    frame.offsetX = 100;
    QCOMPARE(rays.HitsIn(frame).size(), hits.size());
    frame.exposureUs = 0;
    QVERIFY(rays.HitsIn(frame).empty());
}

void SpectrographSceneTest::SettingsMoveTheLines()
{
    SpectrographSettings settings;
    settings.geometry = { 2, 0.02, 10.0 };
    SpectrographScene scene(7, settings);
    const SpectrographOptics truth(QSize(kWidth, kHeight), settings.geometry);
    for (const int track : { 0, 1 }) {
        const int y = int(std::lround(truth.TrackCentre(track)));
        const double position = truth.LinePosition(763.511, y);
        QVERIFY(std::abs(position - kTruth.LinePosition(763.511, y)) > 0.5);
        const double measured = MeasuredCentre(scene, int(std::lround(position)), y, 20);
        QVERIFY2(std::abs(measured - position) < 0.1, qPrintable(QString("%1 against %2").arg(measured).arg(position)));
    }
}

GUARDED_TEST_MAIN(SpectrographSceneTest)
#include "spectrographscenetest.moc"
