// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "zoomladder.h"

#include <limits>

class TestZoomLadder : public GuardedTest
{
    Q_OBJECT

private slots:
    void minimumShowsTheLongerSideWith256Pixels_data();
    void minimumShowsTheLongerSideWith256Pixels();
    void zoomInClimbsToPowersOfTwo_data();
    void zoomInClimbsToPowersOfTwo();
    void zoomOutDescendsToTheMinimum_data();
    void zoomOutDescendsToTheMinimum();
    void wholeLadderUpAndDown();
    void oneToOne_data();
    void oneToOne();
    void fitStaysBetweenMinimumAndMaximum_data();
    void fitStaysBetweenMinimumAndMaximum();
    void chosenScaleHasNoUpperBound();
    void scaledSizeIsCutToWholePixels_data();
    void scaledSizeIsCutToWholePixels();
};

void TestZoomLadder::minimumShowsTheLongerSideWith256Pixels_data()
{
    QTest::addColumn<QSize>("imageSize");
    QTest::addColumn<double>("minimum");
    QTest::newRow("4096 x 4096") << QSize(4096, 4096) << 0.0625;
    QTest::newRow("2048 x 1024") << QSize(2048, 1024) << 0.125;
    QTest::newRow("1024 x 2048") << QSize(1024, 2048) << 0.125;
    QTest::newRow("100 x 50") << QSize(100, 50) << 2.56;
    QTest::newRow("256 x 256") << QSize(256, 256) << 1.0;
    QTest::newRow("one pixel") << QSize(1, 1) << 256.0;
    QTest::newRow("flat: one row of the screen") << QSize(65536, 16) << 1.0 / 16;
    QTest::newRow("flat, just thick enough") << QSize(65536, 256) << 256.0 / 65536;
    QTest::newRow("one row") << QSize(4096, 1) << 1.0;
    QTest::newRow("tall and narrow is not guarded") << QSize(16, 65536) << 256.0 / 65536;
}

void TestZoomLadder::minimumShowsTheLongerSideWith256Pixels()
{
    QFETCH(QSize, imageSize);
    QFETCH(double, minimum);
    QCOMPARE(ZoomLadder(imageSize).Minimum(), minimum);
}

void TestZoomLadder::zoomInClimbsToPowersOfTwo_data()
{
    QTest::addColumn<QSize>("imageSize");
    QTest::addColumn<double>("scale");
    QTest::addColumn<double>("next");
    const QSize large(4096, 4096);
    QTest::newRow("from 1") << large << 1.0 << 2.0;
    QTest::newRow("from 16") << large << 16.0 << 32.0;
    QTest::newRow("at the top") << large << 32.0 << 32.0;
    QTest::newRow("above the top") << large << 50.0 << 32.0;
    QTest::newRow("after a fit: up to the rung above twice") << large << 0.3 << 1.0;
    QTest::newRow("after a fit: twice is a little above a rung") << large << 0.51 << 2.0;
    QTest::newRow("from the minimum") << large << 0.0625 << 0.125;
    QTest::newRow("below the minimum: the rung below the minimum") << large << 0.001 << 0.03125;
    QTest::newRow("small picture") << QSize(100, 50) << 2.56 << 8.0;
    QTest::newRow("small picture at 1 : 1") << QSize(100, 50) << 2.0 << 4.0;
    QTest::newRow("one pixel") << QSize(1, 1) << 32.0 << 32.0;
}

void TestZoomLadder::zoomInClimbsToPowersOfTwo()
{
    QFETCH(QSize, imageSize);
    QFETCH(double, scale);
    QFETCH(double, next);
    QCOMPARE(ZoomLadder(imageSize).In(scale), next);
}

void TestZoomLadder::zoomOutDescendsToTheMinimum_data()
{
    QTest::addColumn<QSize>("imageSize");
    QTest::addColumn<double>("scale");
    QTest::addColumn<double>("next");
    const QSize large(4096, 4096);
    QTest::newRow("from 32") << large << 32.0 << 16.0;
    QTest::newRow("from 1") << large << 1.0 << 0.5;
    QTest::newRow("above the top") << large << 100.0 << 32.0;
    QTest::newRow("after a fit") << large << 0.3 << 0.125;
    QTest::newRow("to the minimum") << large << 0.125 << 0.0625;
    QTest::newRow("at the minimum") << large << 0.0625 << 0.0625;
    // 256 / 3000 = 0.0853...: half of 0.125 is below it.
    QTest::newRow("minimum is no power of two") << QSize(3000, 3000) << 0.125 << 256.0 / 3000;
    QTest::newRow("small picture at 1 : 1 goes up to its minimum") << QSize(100, 50) << 2.0 << 2.56;
    QTest::newRow("small picture") << QSize(100, 50) << 8.0 << 4.0;
    QTest::newRow("small picture, last step") << QSize(100, 50) << 4.0 << 2.56;
}

void TestZoomLadder::zoomOutDescendsToTheMinimum()
{
    QFETCH(QSize, imageSize);
    QFETCH(double, scale);
    QFETCH(double, next);
    QCOMPARE(ZoomLadder(imageSize).Out(scale), next);
}

void TestZoomLadder::wholeLadderUpAndDown()
{
    const ZoomLadder ladder(QSize(4096, 4096));
    QVector<double> scales;
    for (double scale = 1.0; scales.size() < 6;)
        scales << (scale = ladder.In(scale));
    QCOMPARE(scales, (QVector<double>{ 2, 4, 8, 16, 32, 32 }));

    scales.clear();
    for (double scale = 1.0; scales.size() < 5;)
        scales << (scale = ladder.Out(scale));
    QCOMPARE(scales, (QVector<double>{ 0.5, 0.25, 0.125, 0.0625, 0.0625 }));
}

void TestZoomLadder::oneToOne_data()
{
    QTest::addColumn<QSize>("imageSize");
    QTest::addColumn<double>("scale");
    QTest::newRow("4096 x 4096") << QSize(4096, 4096) << 1.0;
    QTest::newRow("256 x 256") << QSize(256, 256) << 1.0;
    QTest::newRow("250 x 10: whole part of 1.024") << QSize(250, 10) << 1.0;
    QTest::newRow("100 x 50: whole part of 2.56") << QSize(100, 50) << 2.0;
    QTest::newRow("one pixel") << QSize(1, 1) << 256.0;
}

void TestZoomLadder::oneToOne()
{
    QFETCH(QSize, imageSize);
    QFETCH(double, scale);
    QCOMPARE(ZoomLadder(imageSize).OneToOne(), scale);
}

void TestZoomLadder::fitStaysBetweenMinimumAndMaximum_data()
{
    QTest::addColumn<QSize>("imageSize");
    QTest::addColumn<QSize>("hostSize");
    QTest::addColumn<double>("scale");
    QTest::newRow("the width decides") << QSize(800, 400) << QSize(400, 300) << 0.5;
    QTest::newRow("the height decides") << QSize(400, 800) << QSize(400, 300) << 0.375;
    QTest::newRow("enlarged") << QSize(200, 100) << QSize(600, 400) << 3.0;
    QTest::newRow("not below the minimum") << QSize(4096, 4096) << QSize(100, 100) << 0.0625;
    QTest::newRow("host without a size") << QSize(4096, 4096) << QSize(0, 0) << 0.0625;
    QTest::newRow("not above 32") << QSize(10, 10) << QSize(1600, 1200) << 32.0;
    QTest::newRow("one pixel: not above 32 either") << QSize(1, 1) << QSize(400, 300) << 32.0;
}

void TestZoomLadder::fitStaysBetweenMinimumAndMaximum()
{
    QFETCH(QSize, imageSize);
    QFETCH(QSize, hostSize);
    QFETCH(double, scale);
    QCOMPARE(ZoomLadder(imageSize).Fit(hostSize), scale);
}

void TestZoomLadder::chosenScaleHasNoUpperBound()
{
    const ZoomLadder ladder(QSize(4096, 4096));
    QCOMPARE(ladder.Bounded(0.01), 0.0625);
    QCOMPARE(ladder.Bounded(1.5), 1.5);
    QCOMPARE(ladder.Bounded(40.0), 40.0);
    QCOMPARE(ladder.Bounded(-1.0), 0.0625);
    QCOMPARE(ladder.Bounded(std::numeric_limits<double>::quiet_NaN()), 0.0625);
}

void TestZoomLadder::scaledSizeIsCutToWholePixels_data()
{
    QTest::addColumn<QSize>("imageSize");
    QTest::addColumn<double>("scale");
    QTest::addColumn<QSize>("scaledSize");
    QTest::newRow("whole") << QSize(100, 50) << 2.0 << QSize(200, 100);
    QTest::newRow("fractions are cut off") << QSize(333, 777) << 0.5 << QSize(166, 388);
    QTest::newRow("thinner than a pixel") << QSize(1, 65536) << 0.0039 << QSize(0, 255);
    QTest::newRow("largest camera at 32") << QSize(4096, 4096) << 32.0 << QSize(131072, 131072);
    QTest::newRow("no more than a widget can have") << QSize(4096, 1) << 1e9 << QSize(16777215, 16777215);
}

void TestZoomLadder::scaledSizeIsCutToWholePixels()
{
    QFETCH(QSize, imageSize);
    QFETCH(double, scale);
    QFETCH(QSize, scaledSize);
    QCOMPARE(ZoomLadder::ScaledSize(imageSize, scale), scaledSize);
}

GUARDED_TEST_MAIN(TestZoomLadder)
#include "tst_zoomladder.moc"
