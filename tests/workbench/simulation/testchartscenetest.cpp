// SPDX-License-Identifier: GPL-3.0-or-later
#include "testchartscene.h"
#include "guardedtest.h"
#include "sceneexposure.h"

#include <QSet>

class TestChartSceneTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void ShowsWorkedOutPatches_data();
    void ShowsWorkedOutPatches();
    void FillsEverySampleWithItsExpectedValue_data();
    void FillsEverySampleWithItsExpectedValue();
    void RegionIsACropOfTheSensor();
    void CornersTellOrientation();
    void LeavesExposureGainAndTimeAside();
};

void TestChartSceneTest::ShowsWorkedOutPatches_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    QTest::addColumn<int>("bitDepth");
    QTest::addColumn<int>("value");
    QTest::newRow("corner marker 8") << 0 << 0 << 8 << 255;
    QTest::newRow("corner marker 12") << 0 << 0 << 12 << 4095;
    QTest::newRow("corner marker 16") << 0 << 0 << 16 << 65535;
    QTest::newRow("first patch") << 1 << 0 << 16 << 0;
    QTest::newRow("patch 7, 8 bit: 28.33") << 639 << 0 << 8 << 28;
    QTest::newRow("patch 7, 12 bit: 455") << 639 << 0 << 12 << 455;
    QTest::newRow("patch 7, 16 bit: 7281.67") << 639 << 0 << 16 << 7282;
    QTest::newRow("last of patch 0") << 79 << 59 << 16 << 0;
    QTest::newRow("first of patch 9: 9362.14") << 80 << 60 << 16 << 9362;
    QTest::newRow("patch 56: 58253.33") << 0 << 479 << 16 << 58253;
    QTest::newRow("last patch 8") << 639 << 479 << 8 << 255;
    QTest::newRow("last patch 12") << 639 << 479 << 12 << 4095;
    QTest::newRow("last patch 16") << 639 << 479 << 16 << 65535;
}

void TestChartSceneTest::ShowsWorkedOutPatches()
{
    QFETCH(int, x);
    QFETCH(int, y);
    QFETCH(int, bitDepth);
    QFETCH(int, value);
    TestChartScene scene;
    SceneExposure exposure(640, 480, bitDepth);
    exposure.Expose(scene);
    QCOMPARE(exposure.SampleAt(x, y), value);
}

void TestChartSceneTest::FillsEverySampleWithItsExpectedValue_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("bitDepth");
    QTest::addColumn<bool>("isColour");
    for (const QSize size : { QSize(1, 1), QSize(3, 5), QSize(7, 2), QSize(641, 479), QSize(2048, 64) }) {
        for (const int bitDepth : { 8, 12, 16 })
            QTest::addRow("%dx%d mono%d", size.width(), size.height(), bitDepth) << size << bitDepth << false;
        QTest::addRow("%dx%d rgb8", size.width(), size.height()) << size << 8 << true;
    }
}

void TestChartSceneTest::FillsEverySampleWithItsExpectedValue()
{
    QFETCH(QSize, size);
    QFETCH(int, bitDepth);
    QFETCH(bool, isColour);
    TestChartScene scene;
    SceneExposure exposure(size.width(), size.height(), bitDepth, isColour);
    exposure.Expose(scene);

    int wrong = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            if (isColour) {
                const QRgb colour =
                    qRgb(exposure.SampleAt(x, y, 0), exposure.SampleAt(x, y, 1), exposure.SampleAt(x, y, 2));
                wrong += colour != TestChartScene::ExpectedColour(x, y, size.width(), size.height());
            } else {
                wrong += exposure.SampleAt(x, y)
                         != TestChartScene::ExpectedValue(x, y, size.width(), size.height(), bitDepth);
            }
        }
    }
    QCOMPARE(wrong, 0);
    QVERIFY(exposure.IsPaddingUntouched());
}

void TestChartSceneTest::RegionIsACropOfTheSensor()
{
    TestChartScene scene;
    SceneExposure region(101, 77, 16);
    region.Settings().sensorWidth = 640;
    region.Settings().sensorHeight = 480;
    region.Settings().offsetX = 55;
    region.Settings().offsetY = 43;
    region.Expose(scene);
    int wrong = 0;
    for (int y = 0; y < 77; ++y) {
        for (int x = 0; x < 101; ++x)
            wrong += region.SampleAt(x, y) != TestChartScene::ExpectedValue(x + 55, y + 43, 640, 480, 16);
    }
    QCOMPARE(wrong, 0);
}

void TestChartSceneTest::CornersTellOrientation()
{
    QSet<int> mono;
    QSet<QRgb> colour;
    for (const QPoint corner : { QPoint(3, 3), QPoint(60, 3), QPoint(3, 60), QPoint(60, 60) }) {
        mono.insert(TestChartScene::ExpectedValue(corner.x(), corner.y(), 64, 64, 8));
        colour.insert(TestChartScene::ExpectedColour(corner.x(), corner.y(), 64, 64));
    }
    QCOMPARE(mono.size(), 4);
    QCOMPARE(colour.size(), 4);
    // Levels 1/64, 8/64, 57/64 and 64/64 of 255.
    QCOMPARE(TestChartScene::ExpectedColour(3, 3, 64, 64), qRgb(4, 0, 0));
    QCOMPARE(TestChartScene::ExpectedColour(60, 3, 64, 64), qRgb(32, 32, 32));
    QCOMPARE(TestChartScene::ExpectedColour(3, 60, 64, 64), qRgb(227, 0, 0));
    QCOMPARE(TestChartScene::ExpectedColour(20, 60, 64, 64), qRgb(0, 235, 0));
    QCOMPARE(TestChartScene::ExpectedColour(36, 60, 64, 64), qRgb(0, 0, 243));
    QCOMPARE(TestChartScene::ExpectedColour(60, 60, 64, 64), qRgb(255, 255, 255));
    QCOMPARE(TestChartScene::ExpectedColour(0, 0, 64, 64), qRgb(255, 255, 255));
}

void TestChartSceneTest::LeavesExposureGainAndTimeAside()
{
    TestChartScene scene;
    SceneExposure exposure(64, 48, 12);
    exposure.Expose(scene);
    const std::vector<uchar> first = exposure.Bytes();
    exposure.Settings().exposureUs = 1e6;
    exposure.Settings().gainDb = 10;
    exposure.Settings().frameNumber = 99;
    exposure.Expose(scene);
    QCOMPARE(exposure.Bytes(), first);
}

GUARDED_TEST_MAIN(TestChartSceneTest)
#include "testchartscenetest.moc"
