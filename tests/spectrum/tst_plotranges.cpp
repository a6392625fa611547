// SPDX-License-Identifier: GPL-3.0-or-later
#include "plotranges.h"
#include "rangehistory.h"

#include "guardedtest.h"

Q_DECLARE_METATYPE(QCPRange)

class TestPlotRanges : public GuardedTest
{
    Q_OBJECT

private slots:
    void blankAbove_data();
    void blankAbove();
    void verticalZoom_data();
    void verticalZoom();
    void horizontalZoom_data();
    void horizontalZoom();
    void drag_data();
    void drag();
    void historyKeepsItsFirstRange();
    void historyRestarts();
};

void TestPlotRanges::blankAbove_data()
{
    QTest::addColumn<double>("upper");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<double>("expected");
    QTest::newRow("all below zero") << -10.0 << 0.2 << -7.5; // of a height of 12.5
    QTest::newRow("all below zero, none blank") << -10.0 << 0.0 << -10.0;
    QTest::newRow("zero") << 0.0 << 0.2 << 0.0;
    QTest::newRow("fifth") << 4000.0 << 0.2 << 5000.0;
    QTest::newRow("none") << 4000.0 << 0.0 << 4000.0;
    QTest::newRow("half") << 3.0 << 0.5 << 6.0;
    QTest::newRow("everything blank") << 4000.0 << 1.0 << 4000.0;
    QTest::newRow("more than everything") << 4000.0 << 1.5 << 4000.0;
    QTest::newRow("negative") << 4000.0 << -0.2 << 4000.0;
    QTest::newRow("not a number") << 4000.0 << qQNaN() << 4000.0;
}

void TestPlotRanges::blankAbove()
{
    QFETCH(double, upper);
    QFETCH(double, ratio);
    const QCPRange range = WithBlankAbove(-20, upper, ratio);
    QCOMPARE(range.lower, -20.0);
    QTEST(range.upper, "expected");
}

void TestPlotRanges::verticalZoom_data()
{
    QTest::addColumn<QCPRange>("range");
    QTest::addColumn<double>("factor");
    QTest::addColumn<double>("lower");
    QTest::addColumn<double>("upper");
    QTest::newRow("in") << QCPRange(10, 1000) << 0.9 << 10.0 << 900.0;
    QTest::newRow("out") << QCPRange(10, 1000) << 1.1 << 10.0 << 1100.0;
    QTest::newRow("whole ends") << QCPRange(10.9, 1000.9) << 0.9 << 10.0 << 900.0;
    QTest::newRow("negative lower end") << QCPRange(-10.9, 100) << 1.1 << -10.0 << 110.0;
    QTest::newRow("no room above the lower end") << QCPRange(1000, 1100) << 0.9 << 1000.0 << 1100.0;
    QTest::newRow("nothing left above the lower end") << QCPRange(900, 1000) << 0.9 << 900.0 << 1000.0;
    QTest::newRow("beyond 32 bits") << QCPRange(0, 4e9) << 1.1 << 0.0 << 4.4e9;
}

void TestPlotRanges::verticalZoom()
{
    QFETCH(QCPRange, range);
    QFETCH(double, factor);
    QTEST(ZoomedValueRange(range, factor).lower, "lower");
    QTEST(ZoomedValueRange(range, factor).upper, "upper");
}

void TestPlotRanges::horizontalZoom_data()
{
    QTest::addColumn<bool>("in");
    QTest::addColumn<QCPRange>("range");
    QTest::addColumn<QCPRange>("curve");
    QTest::addColumn<double>("lower");
    QTest::addColumn<double>("upper");
    QTest::newRow("in") << true << QCPRange(0, 1000) << QCPRange(0, 1000) << 50.0 << 950.0;
    QTest::newRow("out") << false << QCPRange(400, 600) << QCPRange(0, 1000) << 390.0 << 610.0;
    QTest::newRow("whole step") << true << QCPRange(100, 219) << QCPRange(0, 1000) << 105.0 << 214.0;
    QTest::newRow("out to the ends") << false << QCPRange(10, 990) << QCPRange(0, 1000) << 0.0 << 1000.0;
    QTest::newRow("ends cut to whole numbers")
        << false << QCPRange(380.9, 780.9) << QCPRange(380.9, 780.9) << 380.0 << 780.0;
    QTest::newRow("in, ends cut") << true << QCPRange(380.5, 780.5) << QCPRange(380.9, 780.9) << 400.5
                                  << 760.5;
    QTest::newRow("no room for a step") << true << QCPRange(10, 20) << QCPRange(0, 1000) << 10.0 << 20.0;
    QTest::newRow("curve within one whole number")
        << true << QCPRange(0.4, 0.8) << QCPRange(0.4, 0.8) << 0.4 << 0.8;
    QTest::newRow("no curve yet") << true << QCPRange(0, 1000) << QCPRange(0, 0) << 0.0 << 1000.0;
}

void TestPlotRanges::horizontalZoom()
{
    QFETCH(bool, in);
    QFETCH(QCPRange, range);
    QFETCH(QCPRange, curve);
    const QCPRange zoomed = in ? HorizontallyZoomedIn(range, curve) : HorizontallyZoomedOut(range, curve);
    QTEST(zoomed.lower, "lower");
    QTEST(zoomed.upper, "upper");
}

void TestPlotRanges::drag_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<double>("lower");
    QTest::addColumn<double>("upper");
    QTest::newRow("inside") << 20.0 << 30.5 << 20.0 << 30.5;
    QTest::newRow("over the left end") << -5.0 << 30.0 << 10.0 << 30.0;
    QTest::newRow("over the right end") << 20.0 << 130.0 << 20.0 << 110.0;
    QTest::newRow("over both") << -5.0 << 130.0 << 10.0 << 110.0;
    QTest::newRow("beside it comes out reversed") << 120.0 << 130.0 << 120.0 << 110.0;
}

void TestPlotRanges::drag()
{
    QFETCH(double, from);
    QFETCH(double, to);
    const QCPRange range = DraggedRange(from, to, QCPRange(10, 110));
    QTEST(range.lower, "lower");
    QTEST(range.upper, "upper");
}

void TestPlotRanges::historyKeepsItsFirstRange()
{
    RangeHistory history;
    history.Restart(QCPRange(0, 100));
    QVERIFY(history.IsAtFirst());
    history.StepBack();
    QCOMPARE(history.Newest(), QCPRange(0, 100));
    history.Push(QCPRange(10, 50));
    history.Push(QCPRange(20, 30));
    QVERIFY(!history.IsAtFirst());
    history.StepBack();
    QCOMPARE(history.Newest(), QCPRange(10, 50));
    history.StepBack();
    QVERIFY(history.IsAtFirst());
    QCOMPARE(history.Newest(), QCPRange(0, 100));
}

void TestPlotRanges::historyRestarts()
{
    RangeHistory history;
    history.Restart(QCPRange(0, 100));
    history.Push(QCPRange(10, 50));
    history.Push(QCPRange(20, 30));
    history.BackToFirst();
    QVERIFY(history.IsAtFirst());
    QCOMPARE(history.Newest(), QCPRange(0, 100));
    history.Push(QCPRange(20, 30));
    history.Restart(QCPRange(400, 700));
    QVERIFY(history.IsAtFirst());
    QCOMPARE(history.Newest(), QCPRange(400, 700));
}

GUARDED_TEST_MAIN(TestPlotRanges)
#include "tst_plotranges.moc"
