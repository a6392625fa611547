// SPDX-License-Identifier: GPL-3.0-or-later
#include "runschedule.h"
#include "guardedtest.h"
#include "runestimate.h"

#include <numeric>

/// Which frames a run keeps, and what it will take.
class RunScheduleTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void keepsTheRightFrames_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("intervalMs");
        QTest::addColumn<QVector<int>>("kept"); // of frames that come every 40 ms from 0 on, 30 of them
        const auto single = int(RecordingSettings::Mode::Single);
        const auto count = int(RecordingSettings::Mode::Count);
        const auto duration = int(RecordingSettings::Mode::Duration);
        const auto open = int(RecordingSettings::Mode::UntilStopped);
        QVector<int> all(30);
        std::iota(all.begin(), all.end(), 0);
        QTest::newRow("one") << single << 0 << QVector<int>{ 0 };
        QTest::newRow("four") << count << 0 << QVector<int>{ 0, 1, 2, 3 };
        QTest::newRow("a second") << duration << 0 << all.mid(0, 25);
        QTest::newRow("until stopped") << open << 0 << all;
        QTest::newRow("four, every 100 ms")
            << count << 100 << QVector<int>{ 0, 3, 5, 8 }; // at 0, 120, 200, 320
        QTest::newRow("a second, every 300 ms") << duration << 300 << QVector<int>{ 0, 8, 15, 23 };
        QTest::newRow("shorter than the frames") << count << 10 << QVector<int>{ 0, 1, 2, 3 };
    }

    void keepsTheRightFrames()
    {
        QFETCH(int, mode);
        QFETCH(int, intervalMs);
        QFETCH(QVector<int>, kept);
        RecordingSettings settings;
        settings.mode = RecordingSettings::Mode(mode);
        settings.frames = 4;
        settings.seconds = 1;
        settings.intervalMs = intervalMs;
        constexpr qint64 Start = 1000000;
        RunSchedule schedule(settings, Start);
        QVector<int> seen;
        for (int i = 0; i < 30; ++i) {
            if (schedule.Wants(Start + i * 40))
                seen << i;
        }
        QCOMPARE(seen, kept);
        QCOMPARE(schedule.IsOver(Start + 30 * 40), settings.mode != RecordingSettings::Mode::UntilStopped);
    }

    void aDurationEndsWithoutFrames()
    {
        RecordingSettings settings;
        settings.mode = RecordingSettings::Mode::Duration;
        settings.seconds = 2;
        const RunSchedule schedule(settings, 500);
        QVERIFY(!schedule.IsOver(2499));
        QVERIFY(schedule.IsOver(2500));
    }

    void saysWhenARunDoesNotFit_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("toRam");
        QTest::addColumn<qint64>("freeDisk");
        QTest::addColumn<qint64>("freeMemory");
        QTest::addColumn<QString>("warning");
        const auto count = int(RecordingSettings::Mode::Count);
        const auto duration = int(RecordingSettings::Mode::Duration);
        const auto open = int(RecordingSettings::Mode::UntilStopped);
        const qint64 reserve = 256 << 20;
        const qint64 frame = 1000000;
        // 1000 frames, or 40 s at 25 frames/s, of 1 MB.
        QTest::newRow("fits") << count << false << reserve + 1000 * frame << qint64(0) << "";
        QTest::newRow("one too many")
            << count << false << reserve + 999 * frame << qint64(0)
            << "The run needs 1.0 GB, and the disk has 1.3 GB free, of which 268.4 MB are left to the system: room for 999 frames.";
        QTest::newRow("by time")
            << duration << false << reserve + 999 * frame << qint64(0)
            << "The run needs 1.0 GB, and the disk has 1.3 GB free, of which 268.4 MB are left to the system: room for 999 frames.";
        QTest::newRow("memory")
            << count << true << reserve + 5000 * frame << reserve + 10 * frame
            << "The run needs 1.0 GB, and the memory has 278.4 MB free, of which 268.4 MB are left to the system: room for 10 frames.";
        QTest::newRow("memory is not asked") << count << false << reserve + 5000 * frame << qint64(0) << "";
        QTest::newRow("nothing free")
            << open << false << qint64(1000) << qint64(0)
            << "The run needs more than one frame, and the disk has 1.0 kB free, of which 1.0 kB are left to the system: room for 0 frames.";
        QTest::newRow("until stopped") << open << false << reserve + frame << qint64(0) << "";
        QTest::newRow("not known") << count << false << qint64(-1) << qint64(-1) << "";
    }

    void saysWhenARunDoesNotFit()
    {
        QFETCH(int, mode);
        QFETCH(bool, toRam);
        QFETCH(qint64, freeDisk);
        QFETCH(qint64, freeMemory);
        QFETCH(QString, warning);
        RecordingSettings settings;
        settings.mode = RecordingSettings::Mode(mode);
        settings.frames = 1000;
        settings.seconds = 40;
        settings.toRam = toRam;
        RunResources resources;
        resources.freeDiskBytes = freeDisk;
        resources.freeMemoryBytes = freeMemory;
        QCOMPARE(RunEstimate::Make(settings, 1000000, 25, resources).warning, warning);
    }

    /// For a week at 1000 frames/s there may be room on the disk.
    void saysWhenARunHasTooManyFrames_data()
    {
        QTest::addColumn<qint64>("freeDisk");
        QTest::addColumn<qint64>("fit");
        QTest::addColumn<QString>("warning");
        const QString tooMany = "The run needs 604800000 frames, and a recording holds 4000000 at most.";
        QTest::newRow("room") << (qint64(1) << 50) << qint64(4000000) << tooMany;
        QTest::newRow("not known") << qint64(-1) << qint64(4000000) << tooMany;
        QTest::newRow("less room than that")
            << (qint64(256) << 20) + 1000000 << qint64(1000)
            << "The run needs 604.8 GB, and the disk has 269.4 MB free, of which 268.4 MB are left to the system: room for 1000 frames.";
    }

    void saysWhenARunHasTooManyFrames()
    {
        QFETCH(qint64, freeDisk);
        QFETCH(qint64, fit);
        QFETCH(QString, warning);
        RecordingSettings settings;
        settings.mode = RecordingSettings::Mode::Duration;
        settings.seconds = RecordingSettings::MostSeconds;
        RunResources resources;
        resources.freeDiskBytes = freeDisk;
        const RunEstimate estimate = RunEstimate::Make(settings, 1000, 1000, resources);
        QCOMPARE(estimate.warning, warning);
        QCOMPARE(estimate.framesThatFit, fit);
    }

    void memoryKeepsATenthFree()
    {
        RunResources resources;
        QCOMPARE(resources.MemoryForFrames(), qint64(-1)); // not known
        resources.freeMemoryBytes = 100000000;
        QCOMPARE(resources.MemoryForFrames(), qint64(0));
        resources.freeMemoryBytes = 1000000000;
        QCOMPARE(resources.MemoryForFrames(), qint64(1000000000 - 268435456));
        resources.freeMemoryBytes = 20000000000;
        QCOMPARE(resources.MemoryForFrames(), qint64(18000000000));
    }

    void intervalsWithoutAFrameAreMissed()
    {
        RecordingSettings settings;
        settings.mode = RecordingSettings::Mode::Duration;
        settings.intervalMs = 100;
        RunSchedule schedule(settings, 1000);
        QVERIFY(schedule.Wants(1000));
        QCOMPARE(schedule.MissedIntervals(1150), qint64(0)); // the one of 1100 may still come
        QCOMPARE(schedule.MissedIntervals(1420), qint64(3)); // 1100, 1200 and 1300
        schedule.SkipIntervals(3);
        QCOMPARE(schedule.MissedIntervals(1420), qint64(0));
        QVERIFY(schedule.Wants(1420));
        settings.intervalMs = 0;
        QCOMPARE(RunSchedule(settings, 1000).MissedIntervals(5000), qint64(0));
    }

    void timeLapseTakesLess()
    {
        RecordingSettings settings;
        settings.mode = RecordingSettings::Mode::Duration;
        settings.seconds = 40;
        settings.intervalMs = 1000;
        QCOMPARE(RunEstimate::Make(settings, 1000000, 25, RunResources()).frames, qint64(40));
    }
};

GUARDED_TEST_MAIN(RunScheduleTest)
#include "runscheduletest.moc"
