// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "trackdrag.h"

using Grip = TrackDrag::Grip;

class TrackDragTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void aPressTakesHold_data();
    void aPressTakesHold();
    void aDragChangesTheTrack_data();
    void aDragChangesTheTrack();
    void aNewTrackHasTheRowsThatWereTouched_data();
    void aNewTrackHasTheRowsThatWereTouched();
    void theLargestGapIsFree();
};

namespace {

std::vector<RowBand> Two() { return {{10, 20, 0}, {40, 60, 0}}; }

} // namespace

void TrackDragTest::aPressTakesHold_data()
{
    QTest::addColumn<double>("row");
    QTest::addColumn<int>("track");
    QTest::addColumn<int>("grip");
    QTest::newRow("above all") << 5.0 << -1 << int(Grip::None);
    QTest::newRow("a little above an edge") << 8.5 << 0 << int(Grip::Top);
    QTest::newRow("a little below it") << 11.5 << 0 << int(Grip::Top);
    QTest::newRow("within") << 15.0 << 0 << int(Grip::Body);
    QTest::newRow("lower edge") << 58.0 << 1 << int(Grip::Bottom);
    QTest::newRow("between") << 30.0 << -1 << int(Grip::None);
}

void TrackDragTest::aPressTakesHold()
{
    QFETCH(double, row);
    const TrackDrag::Hold hold = TrackDrag::HoldAt(Two(), row, 2);
    QTEST(hold.track, "track");
    QTEST(int(hold.grip), "grip");
}

void TrackDragTest::aDragChangesTheTrack_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("bottom");
    QTest::newRow("upper edge") << 40.0 << 33.4 << 33 << 60;
    QTest::newRow("upper edge past the lower one") << 40.0 << 80.0 << 59 << 60;
    QTest::newRow("lower edge") << 60.0 << 70.6 << 40 << 71;
    QTest::newRow("lower edge past the upper one") << 60.0 << 5.0 << 40 << 41;
    QTest::newRow("whole") << 50.0 << 45.0 << 35 << 55;
    QTest::newRow("whole, beyond the end") << 50.0 << 200.0 << 80 << 100;
    QTest::newRow("whole, beyond the start") << 50.0 << -200.0 << 0 << 20;
}

void TrackDragTest::aDragChangesTheTrack()
{
    QFETCH(double, from);
    QFETCH(double, to);
    TrackDrag drag;
    drag.Begin(Two(), TrackDrag::HoldAt(Two(), from, 2), from, 100);
    QVERIFY(drag.IsActive());
    drag.MoveTo(70); // on the way
    drag.MoveTo(to);
    QCOMPARE(drag.Track(), 1);
    QCOMPARE(int(drag.Tracks().size()), 2);
    QTEST(drag.Tracks()[1].top, "top");
    QTEST(drag.Tracks()[1].bottom, "bottom");
    QCOMPARE(drag.Tracks()[0].top, 10);
}

void TrackDragTest::aNewTrackHasTheRowsThatWereTouched_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("bottom");
    QTest::newRow("down") << 70.2 << 79.5 << 70 << 80;
    QTest::newRow("up") << 79.5 << 70.2 << 70 << 80;
    QTest::newRow("one row") << 70.2 << 70.3 << 70 << 71;
    QTest::newRow("beyond the end") << 90.0 << 500.0 << 90 << 100;
    QTest::newRow("along the end") << 100.0 << 100.0 << 99 << 100;
}

void TrackDragTest::aNewTrackHasTheRowsThatWereTouched()
{
    QFETCH(double, from);
    QFETCH(double, to);
    TrackDrag drag;
    drag.Begin(Two(), TrackDrag::Hold(), from, 100);
    drag.MoveTo(to);
    QCOMPARE(drag.Track(), 2);
    QTEST(drag.Tracks()[2].top, "top");
    QTEST(drag.Tracks()[2].bottom, "bottom");
}

void TrackDragTest::theLargestGapIsFree()
{
    const RowBand first = FreeBand({}, 200);
    QCOMPARE(first.top, 95);
    QCOMPARE(first.bottom, 105);
    const RowBand next = FreeBand(Two(), 100); // rows 60 to 99, a twentieth of 100 rows
    QCOMPARE(next.top, 77);
    QCOMPARE(next.bottom, 82);
    const RowBand narrow = FreeBand({{0, 99, 0}}, 100);
    QCOMPARE(narrow.top, 99);
    QCOMPARE(narrow.bottom, 100);
    const RowBand none = FreeBand({{0, 100, 0}}, 100);
    QCOMPARE(none.bottom, none.top);
    QCOMPARE(FreeBand({}, 0).bottom, 0);
}

GUARDED_TEST_MAIN(TrackDragTest)
#include "trackdragtest.moc"
