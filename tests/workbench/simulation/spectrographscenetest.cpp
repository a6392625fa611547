// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrographscene.h"
#include "guardedtest.h"
#include "sceneexposure.h"

#include <cmath>

class SpectrographSceneTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void DispersionCoversTheStatedRange();
    void LinesLieWhereTheTruthSays_data();
    void LinesLieWhereTheTruthSays();
    void ThreeTracksStandOutOfTheDark();
    void RegionIsACropOfTheSensor();
    void DarkFrameShowsOffsetAndReadNoise();
};

namespace {
constexpr int kWidth = 2048;
constexpr int kHeight = 512;

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

void SpectrographSceneTest::DispersionCoversTheStatedRange()
{
    QCOMPARE(SpectrographScene::WavelengthAt(0, kWidth), 390.0);
    QCOMPARE(SpectrographScene::WavelengthAt(kWidth - 1, kWidth), 930.0);
    QCOMPARE(SpectrographScene::WavelengthAt((kWidth - 1) / 2.0, kWidth), 661.5);

    QCOMPARE(int(SpectrographScene::Lines().size()), 16);
    for (const SpectrographScene::Line &line : SpectrographScene::Lines()) {
        // The middle row has tilt and smile zero: there the position is the inverse of the dispersion.
        const double x =
            SpectrographScene::LinePosition(line.wavelengthNm, (kHeight - 1) / 2.0, kWidth, kHeight);
        QVERIFY2(std::abs(SpectrographScene::WavelengthAt(x, kWidth) - line.wavelengthNm) < 1e-9,
                 qPrintable(QString::number(line.wavelengthNm)));
    }
}

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
    const int y = int(std::lround(SpectrographScene::TrackCentre(track, kHeight)));
    const double truth = SpectrographScene::LinePosition(wavelengthNm, y, kWidth, kHeight);
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
    for (int track = 0; track < SpectrographScene::TrackCount; ++track)
        QVERIFY(rowMean(SpectrographScene::TrackCentre(track, kHeight)) > 0.03 * 65535);
    for (const double gap : { 1.0, 3 * kHeight / 8.0, 5 * kHeight / 8.0, kHeight - 2.0 })
        QVERIFY(std::abs(rowMean(gap) - 0.02 * 65535) < 0.001 * 65535);
}

void SpectrographSceneTest::RegionIsACropOfTheSensor()
{
    SpectrographScene scene(7);
    SceneExposure region(64, 32, 16);
    region.Settings().sensorWidth = kWidth;
    region.Settings().sensorHeight = kHeight;
    const double y = SpectrographScene::TrackCentre(0, kHeight);
    const double truth = SpectrographScene::LinePosition(546.075, y, kWidth, kHeight);
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

GUARDED_TEST_MAIN(SpectrographSceneTest)
#include "spectrographscenetest.moc"
