// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordingstatus.h"
#include "guardedtest.h"

/// The sentence of the status bar on a recording.
class RecordingStatusTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void theStatusBarTellsTheQueue_data()
    {
        QTest::addColumn<quint64>("lost");
        QTest::addColumn<double>("growth");
        QTest::addColumn<QString>("text");
        QTest::newRow("the disk keeps up") << quint64(0) << 0.0 << "saved 120  waiting 3 (24.0 MB)";
        QTest::newRow("the queue shrinks") << quint64(0) << -1e6 << "saved 120  waiting 3 (24.0 MB)";
        QTest::newRow("the queue grows")
            << quint64(0) << 8e6 << "saved 120  waiting 3 (24.0 MB)  queue full in 22 s";
        QTest::newRow("hours away") << quint64(0) << 1e3 << "saved 120  waiting 3 (24.0 MB)";
        QTest::newRow("loss") << quint64(7) << 0.0 << "saved 120  LOST 7  waiting 3 (24.0 MB)";
    }

    void theStatusBarTellsTheQueue()
    {
        QFETCH(quint64, lost);
        QFETCH(double, growth);
        RecordingStatus::Facts facts;
        facts.saved = 120;
        facts.lost = lost;
        facts.waiting = 3;
        facts.waitingBytes = 24000000;
        facts.budgetBytes = 200000000;
        facts.growthBytesPerSecond = growth;
        QTEST(RecordingStatus::Text(facts), "text");
    }

    void theStatusBarTellsWhenTheRoomIsUsedUp()
    {
        RecordingStatus::Facts facts;
        facts.saved = 120;
        facts.roomBytes = 5000000000;
        facts.keptBytesPerSecond = 1e8;
        QCOMPARE(RecordingStatus::Text(facts), QString("saved 120  waiting 0 (0.0 kB)  disk full in 50 s"));
        facts.isToRam = true;
        facts.inRam = 77;
        QCOMPARE(RecordingStatus::Text(facts), QString("in memory 77  waiting 0 (0.0 kB)  memory full in 50 s"));
        facts.keptBytesPerSecond = 1e5; // hours away
        QCOMPARE(RecordingStatus::Text(facts), QString("in memory 77  waiting 0 (0.0 kB)"));
        facts.roomBytes = -1; // nobody knows
        facts.keptBytesPerSecond = 1e8;
        QCOMPARE(RecordingStatus::Text(facts), QString("in memory 77  waiting 0 (0.0 kB)"));
    }
};

GUARDED_TEST_MAIN(RecordingStatusTest)
#include "recordingstatustest.moc"
