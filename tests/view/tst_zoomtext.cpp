// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "zoomtext.h"

class TestZoomText : public GuardedTest
{
    Q_OBJECT

private slots:
    void percentText_data();
    void percentText();
    void typedRatio_data();
    void typedRatio();
};

void TestZoomText::percentText_data()
{
    QTest::addColumn<double>("scaleFactor");
    QTest::addColumn<QString>("text");
    QTest::newRow("one to one") << 1.0 << "100.00%";
    QTest::newRow("largest") << 32.0 << "3200.00%";
    QTest::newRow("a 4096 pixel picture at its smallest") << 0.0625 << "6.25%";
    QTest::newRow("a third") << 1.0 / 3 << "33.33%";
    QTest::newRow("none") << 0.0 << "0.00%";
    // In single precision 167772.17 is 167772.171875; a hundred times that lies between 16777216 and
    // 16777218, its neighbours of 24 bits, and nearer to the second.
    QTest::newRow("single precision") << 167772.17 << "16777218.00%";
}

void TestZoomText::percentText()
{
    QFETCH(double, scaleFactor);
    QFETCH(QString, text);
    QCOMPARE(ZoomPercentText(scaleFactor), text);
}

void TestZoomText::typedRatio_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("ratio");
    QTest::newRow("with a percent sign") << "150%" << 1.5;
    QTest::newRow("without") << "150" << 1.5;
    QTest::newRow("with two") << "150%%" << 1.5;
    QTest::newRow("what follows the sign is cut off") << "150%7" << 1.5;
    QTest::newRow("fraction") << "12.5%" << 0.125;
    QTest::newRow("largest") << "3200%" << 32.0;
    QTest::newRow("more than the largest") << "5000" << 32.0;
    QTest::newRow("lone point") << "." << 0.0;
    QTest::newRow("two points") << "1.2.3" << 0.0;
    QTest::newRow("lone sign") << "%" << 0.0;
    QTest::newRow("nothing") << "" << 0.0;
    QTest::newRow("zero") << "0%" << 0.0;
}

void TestZoomText::typedRatio()
{
    QFETCH(QString, text);
    QFETCH(double, ratio);
    QCOMPARE(ZoomRatioFromText(text), ratio);
}

GUARDED_TEST_MAIN(TestZoomText)
#include "tst_zoomtext.moc"
