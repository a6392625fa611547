// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "spectrumzoomhistory.h"

#include <limits>

namespace {

constexpr QSize FreeSpace(600, 400);

ZoomState Fitted()
{
    return { 0.5F, QPointF(600, 400), QRectF(0, 0, 1200, 800) };
}

} // namespace

class TestSpectrumZoomHistory : public GuardedTest
{
    Q_OBJECT

private slots:
    void theLargerScaleFillsTheFreeSpace_data();
    void theLargerScaleFillsTheFreeSpace();
    void steppingBackPassesTheLevelsInTurn();
    void onlyAZoomedPictureRemembersItsCentre();
    void aRectangleWithoutAScaleChangesNothing_data();
    void aRectangleWithoutAScaleChangesNothing();
    void anotherSpaceRefitsEveryLevel();
    void nothingIsRefittedWithoutALevelOrASpace();
    void anEmptyHistoryStaysEmptyWhenSteppingBack();
};

void TestSpectrumZoomHistory::theLargerScaleFillsTheFreeSpace_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<float>("scale");
    QTest::newRow("wide") << QRectF(0, 0, 300, 100) << 4.0F;
    QTest::newRow("tall") << QRectF(0, 0, 100, 400) << 6.0F;
    QTest::newRow("tie") << QRectF(0, 0, 300, 200) << 2.0F;
    QTest::newRow("tiny") << QRectF(5, 5, 2, 2) << 32.0F;
    QTest::newRow("a line") << QRectF(5, 5, 0, 100) << 32.0F;
}

void TestSpectrumZoomHistory::theLargerScaleFillsTheFreeSpace()
{
    QFETCH(QRectF, rect);
    QFETCH(float, scale);
    SpectrumZoomHistory history;
    history.Restart(Fitted());
    QCOMPARE(history.Push(rect, true, FreeSpace), scale);
    QCOMPARE(history.Count(), 2);
    QCOMPARE(history.Current().scale, scale);
    QCOMPARE(history.Current().centre, rect.center());
    QCOMPARE(history.Current().rect, rect);
}

void TestSpectrumZoomHistory::steppingBackPassesTheLevelsInTurn()
{
    SpectrumZoomHistory history;
    history.Restart(Fitted());
    const QRectF first(100, 100, 300, 200);
    history.Push(first, true, FreeSpace);
    history.Push(QRectF(150, 150, 60, 40), true, FreeSpace);
    QCOMPARE(history.Count(), 3);

    // The newest goes; the one before comes in force and leaves the list as well.
    QCOMPARE(history.Push(QRectF(), false, FreeSpace), 1.0F);
    QCOMPARE(history.Current().rect, first);
    QCOMPARE(history.Count(), 1);
    history.Push(QRectF(), false, FreeSpace);
    QCOMPARE(history.Current().rect, Fitted().rect);
    QCOMPARE(history.Count(), 1);
}

void TestSpectrumZoomHistory::onlyAZoomedPictureRemembersItsCentre()
{
    SpectrumZoomHistory history;
    QCOMPARE(history.RememberedCentre(), QPointF());
    history.Restart(Fitted());
    QCOMPARE(history.RememberedCentre(), QPointF());
    history.Push(QRectF(100, 100, 300, 200), true, FreeSpace);
    QCOMPARE(history.RememberedCentre(), QPointF(250, 200));
    history.Clear();
    QCOMPARE(history.RememberedCentre(), QPointF());
}

void TestSpectrumZoomHistory::aRectangleWithoutAScaleChangesNothing_data()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QSize>("freeSpace");
    QTest::newRow("no numbers") << QRectF(nan, nan, nan, nan) << FreeSpace;
    QTest::newRow("x is no number") << QRectF(nan, 0, 10, 10) << FreeSpace;
    QTest::newRow("y is no number") << QRectF(0, nan, 10, 10) << FreeSpace;
    QTest::newRow("width is no number") << QRectF(0, 0, nan, 10) << FreeSpace;
    QTest::newRow("height is no number") << QRectF(0, 0, 10, nan) << FreeSpace;
    QTest::newRow("endless") << QRectF(0, 0, inf, 10) << FreeSpace;
    QTest::newRow("turned round") << QRectF(10, 10, -5, 10) << FreeSpace;
    QTest::newRow("no space") << QRectF(0, 0, 10, 10) << QSize(-20, -20);
    QTest::newRow("no width") << QRectF(0, 0, 10, 10) << QSize(0, 400);
    QTest::newRow("no height") << QRectF(0, 0, 10, 10) << QSize(600, -1);
}

void TestSpectrumZoomHistory::aRectangleWithoutAScaleChangesNothing()
{
    QFETCH(QRectF, rect);
    QFETCH(QSize, freeSpace);
    SpectrumZoomHistory history;
    history.Restart(Fitted());
    QCOMPARE(history.Push(rect, true, freeSpace), 0.0F);
    QCOMPARE(history.Count(), 1);
    QCOMPARE(history.Current().rect, Fitted().rect);
}

void TestSpectrumZoomHistory::anotherSpaceRefitsEveryLevel()
{
    SpectrumZoomHistory history;
    history.Restart(Fitted());
    const QRectF first(100, 100, 300, 200);
    history.Push(first, true, FreeSpace);
    history.Push(QRectF(150, 150, 60, 40), true, FreeSpace);
    for (int turn = 0; turn < 3; ++turn) {
        QVERIFY(history.Refit(QSize(300, 200)));
        QCOMPARE(history.Count(), 3); // none is added
        QCOMPARE(history.Current().rect, QRectF(150, 150, 60, 40));
        QCOMPARE(history.Current().scale, 5.0F);
    }
    history.Push(QRectF(), false, QSize(300, 200));
    QCOMPARE(history.Current().rect, first);
    QCOMPARE(history.Current().scale, 1.0F);
    history.Push(QRectF(), false, QSize(300, 200));
    QCOMPARE(history.Current().rect, Fitted().rect);
    QCOMPARE(history.Current().scale, 0.25F); // all of the picture: the smaller scale
}

void TestSpectrumZoomHistory::nothingIsRefittedWithoutALevelOrASpace()
{
    SpectrumZoomHistory history;
    QVERIFY(!history.Refit(FreeSpace));
    history.Restart(Fitted());
    history.Push(QRectF(100, 100, 300, 200), true, FreeSpace);
    QVERIFY(!history.Refit(QSize(0, 400)));
    QCOMPARE(history.Current().scale, 2.0F);
}

void TestSpectrumZoomHistory::anEmptyHistoryStaysEmptyWhenSteppingBack()
{
    SpectrumZoomHistory history;
    QCOMPARE(history.Push(QRectF(0, 0, 10, 10), false, FreeSpace), 1.0F);
    QCOMPARE(history.Count(), 0);
    QCOMPARE(history.Current().scale, 0.0F);
}

GUARDED_TEST_MAIN(TestSpectrumZoomHistory)
#include "tst_spectrumzoomhistory.moc"
