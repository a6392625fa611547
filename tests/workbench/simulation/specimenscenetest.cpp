// SPDX-License-Identifier: GPL-3.0-or-later
#include "specimenscene.h"
#include "guardedtest.h"
#include "sceneexposure.h"

#include <algorithm>
#include <cmath>

class SpecimenSceneTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void CellsStandOutOfTheMedium();
    void LongerExposureIsBrighterUntilItSaturates_data();
    void LongerExposureIsBrighterUntilItSaturates();
    void GainOfSixDecibelsDoublesTheSignal();
    void CellsDrift();
    void RegionIsACropOfTheSensor();
    void CornersAreDarker();
};

void SpecimenSceneTest::CellsStandOutOfTheMedium()
{
    SpecimenScene scene(1);
    SceneExposure exposure(1024, 1024, 12);
    exposure.Expose(scene);
    int bright = 0;
    int dark = 0;
    for (int y = 0; y < 1024; ++y) {
        for (int x = 0; x < 1024; ++x) {
            bright += exposure.SampleAt(x, y) > 4095 / 3;
            dark += exposure.SampleAt(x, y) < 4095 / 8;
        }
    }
    const double pixels = 1024.0 * 1024.0;
    QVERIFY2(bright / pixels > 0.01 && bright / pixels < 0.3, qPrintable(QString::number(bright / pixels)));
    QVERIFY2(dark / pixels > 0.5, qPrintable(QString::number(dark / pixels)));
}

void SpecimenSceneTest::LongerExposureIsBrighterUntilItSaturates_data()
{
    QTest::addColumn<int>("bitDepth");
    QTest::addColumn<bool>("isColour");
    QTest::newRow("mono 8") << 8 << false;
    QTest::newRow("mono 12") << 12 << false;
    QTest::newRow("mono 16") << 16 << false;
    QTest::newRow("rgb 8") << 8 << true;
}

void SpecimenSceneTest::LongerExposureIsBrighterUntilItSaturates()
{
    QFETCH(int, bitDepth);
    QFETCH(bool, isColour);
    SpecimenScene scene(1);
    SceneExposure exposure(128, 96, bitDepth, isColour);
    const int fullScale = (1 << bitDepth) - 1;
    double previous = 0;
    for (const double exposureUs : { 0.0, 10000.0, 40000.0, 160000.0 }) {
        exposure.Settings().exposureUs = exposureUs;
        exposure.Expose(scene);
        QVERIFY(exposure.Mean() > previous);
        previous = exposure.Mean();
    }
    exposure.Settings().exposureUs = 1e7;
    exposure.Expose(scene);
    QCOMPARE(exposure.Mean(), double(fullScale)); // full wells, evenly at full scale and never beyond
}

void SpecimenSceneTest::GainOfSixDecibelsDoublesTheSignal()
{
    SpecimenScene scene(1);
    SceneExposure exposure(400, 300, 16);
    exposure.Settings().exposureUs = 2000;
    exposure.Expose(scene);
    const double dark = 0.02 * 65535;
    const double plain = exposure.Mean() - dark;
    exposure.Settings().gainDb = 20.0 * std::log10(2.0);
    exposure.Expose(scene);
    const double amplified = exposure.Mean() - dark;
    QVERIFY2(std::abs(amplified / plain - 2.0) < 0.01, qPrintable(QString::number(amplified / plain)));
}

void SpecimenSceneTest::CellsDrift()
{
    SpecimenScene scene(1);
    SceneExposure first(512, 512, 16);
    SceneExposure later(512, 512, 16);
    first.Expose(scene);
    later.Settings().frameNumber = 200;
    later.Expose(scene);
    int moved = 0;
    for (int y = 0; y < 512; ++y) {
        for (int x = 0; x < 512; ++x)
            moved +=
                std::abs(first.SampleAt(x, y) - later.SampleAt(x, y)) > 65535 / 10; // far above the noise
    }
    QVERIFY(moved > 512 * 512 / 100);
}

void SpecimenSceneTest::RegionIsACropOfTheSensor()
{
    SpecimenScene scene(1);
    SceneExposure whole(600, 500, 16);
    whole.Expose(scene);
    SceneExposure region(101, 77, 16);
    region.Settings().sensorWidth = 600;
    region.Settings().sensorHeight = 500;
    region.Settings().offsetX = 313;
    region.Settings().offsetY = 209;
    region.Expose(scene);
    double difference = 0;
    for (int y = 0; y < 77; ++y) {
        for (int x = 0; x < 101; ++x)
            difference += region.SampleAt(x, y) - whole.SampleAt(x + 313, y + 209);
    }
    // The light is the same, the noise is not: its mean over the region stays below 0.1 % of full scale.
    QVERIFY(std::abs(difference / (77 * 101)) < 65.0);
}

void SpecimenSceneTest::CornersAreDarker()
{
    SpecimenScene scene(3);
    const auto light = [&](int offsetX, int offsetY) {
        SceneExposure region(256, 256, 16);
        region.Settings().sensorWidth = region.Settings().sensorHeight = SpecimenScene::WorldSide;
        region.Settings().offsetX = offsetX;
        region.Settings().offsetY = offsetY;
        double total = 0;
        for (quint64 frame = 0; frame < 40000; frame += 4000) { // cells come and go, the illumination stays
            region.Settings().frameNumber = frame;
            region.Expose(scene);
            total += region.Mean();
        }
        return total;
    };
    const int middle = SpecimenScene::WorldSide / 2 - 128;
    const int last = SpecimenScene::WorldSide - 256;
    const double corners = (light(0, 0) + light(last, 0) + light(0, last) + light(last, last)) / 4;
    QVERIFY2(corners < light(middle, middle), qPrintable(QString::number(corners)));
}

GUARDED_TEST_MAIN(SpecimenSceneTest)
#include "specimenscenetest.moc"
