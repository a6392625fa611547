// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameraformat.h"
#include "guardedtest.h"

class CameraFormatTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void FitsARegionOntoTheSensor_data();
    void FitsARegionOntoTheSensor();
    void LayoutsKnowTheirSamples();
};

void CameraFormatTest::FitsARegionOntoTheSensor_data()
{
    QTest::addColumn<QRect>("wished");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("step");
    QTest::addColumn<QRect>("fitted");
    QTest::newRow("as wished") << QRect(10, 20, 641, 479) << 1 << 1 << QRect(10, 20, 641, 479);
    QTest::newRow("too wide") << QRect(10, 0, 5000, 100) << 1 << 1 << QRect(0, 0, 2048, 100);
    QTest::newRow("moved inside") << QRect(2000, 1000, 200, 100) << 1 << 1 << QRect(1848, 924, 200, 100);
    QTest::newRow("negative corner") << QRect(-5, -9, 30, 40) << 1 << 1 << QRect(0, 0, 30, 40);
    QTest::newRow("empty") << QRect(7, 7, 0, 0) << 1 << 1 << QRect(7, 7, 1, 1);
    QTest::newRow("on steps of 8") << QRect(13, 27, 645, 483) << 16 << 8 << QRect(8, 24, 640, 480);
    QTest::newRow("smaller than the smallest") << QRect(13, 27, 3, 3) << 16 << 8 << QRect(8, 24, 16, 16);
    QTest::newRow("steps from an odd smallest") << QRect(0, 0, 100, 100) << 10 << 8 << QRect(0, 0, 98, 98);
}

void CameraFormatTest::FitsARegionOntoTheSensor()
{
    QFETCH(QRect, wished);
    QFETCH(int, minimum);
    QFETCH(int, step);
    QFETCH(QRect, fitted);
    RegionLimits limits;
    limits.sensorSize = QSize(2048, 1024);
    limits.minimumSize = QSize(minimum, minimum);
    limits.sizeStep = QSize(step, step);
    limits.offsetStep = QSize(step, step);
    QCOMPARE(FittedRegion(wished, limits), fitted);
}

void CameraFormatTest::LayoutsKnowTheirSamples()
{
    QCOMPARE(BytesPerPixel(PixelLayout::Mono8), 1);
    QCOMPARE(BytesPerPixel(PixelLayout::Mono12), 2);
    QCOMPARE(BytesPerPixel(PixelLayout::Mono16), 2);
    QCOMPARE(BytesPerPixel(PixelLayout::Rgb8), 3);
    QCOMPARE(BitDepth(PixelLayout::Mono12), 12);
    QCOMPARE(BitDepth(PixelLayout::Mono16), 16);
    QCOMPARE(PixelLayoutName(PixelLayout::Rgb8), QString("RGB8"));
}

GUARDED_TEST_MAIN(CameraFormatTest)
#include "cameraformattest.moc"
