// SPDX-License-Identifier: GPL-3.0-or-later
#include "bothhalves.h"
#include "guardedtest.h"

#include <QDeadlineTimer>
#include <atomic>
#include <pthread.h>
#include <sched.h>
#include <vector>

class BothHalvesTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void everyNumberIsDoneOnce_data()
    {
        QTest::addColumn<int>("count");
        for (const int count : {0, 1, 2, 3, 1000, 1001})
            QTest::addRow("%d", count) << count;
    }

    void everyNumberIsDoneOnce()
    {
        QFETCH(int, count);
        std::vector<std::atomic<int>> done(static_cast<size_t>(count));
        ForBothHalves(count, 0, [&](int from, int to) {
            for (int i = from; i < to; ++i)
                ++done[size_t(i)];
        });
        for (const std::atomic<int> &times : done)
            QCOMPARE(int(times), 1);
    }

    void theSecondHalfDoesNotWaitForTheFirst()
    {
        if (std::thread::hardware_concurrency() < 2)
            QFAIL("This test needs two processors.");
        std::atomic<bool> isSecondUnderWay{ false };
        bool hasMet = false;
        ForBothHalves(2, 0, [&](int from, int) {
            if (from == 1) {
                isSecondUnderWay = true;
                return;
            }
            const QDeadlineTimer late(10000);
            while (!isSecondUnderWay && !late.hasExpired()) {}
            hasMet = isSecondUnderWay;
        });
        QVERIFY(hasMet);
    }

    void theSecondHalfRunsOnAnotherProcessor()
    {
        cpu_set_t own;
        QCOMPARE(::pthread_getaffinity_np(::pthread_self(), sizeof own, &own), 0);
        if (CPU_COUNT(&own) < 2)
            QFAIL("This test needs two processors.");
        std::atomic<bool> isPlaced{ false };
        cpu_set_t others;
        CPU_ZERO(&others);
        ForBothHalves(2, 0, [&](int from, int) {
            if (from == 0) {
                isPlaced = true;
                return;
            }
            while (!isPlaced)
                std::this_thread::yield();
            ::pthread_getaffinity_np(::pthread_self(), sizeof others, &others);
        });
        QCOMPARE(CPU_COUNT(&others), CPU_COUNT(&own) - 1);
    }

    void theCallerStaysFree()
    {
        cpu_set_t before;
        cpu_set_t after;
        QCOMPARE(::pthread_getaffinity_np(::pthread_self(), sizeof before, &before), 0);
        for (int i = 0; i < 1000; ++i) // the second half has often ended before the first begins
            ForBothHalves(2, 0, [](int, int) {});
        QCOMPARE(::pthread_getaffinity_np(::pthread_self(), sizeof after, &after), 0);
        QVERIFY(CPU_EQUAL(&before, &after));
    }

    void littleWorkStaysInOneCall()
    {
        int calls = 0;
        ForBothHalves(99, 100, [&](int from, int to) {
            ++calls;
            QCOMPARE(from, 0);
            QCOMPARE(to, 99);
        });
        QCOMPARE(calls, 1);
    }
};

GUARDED_TEST_MAIN(BothHalvesTest)
#include "bothhalvestest.moc"
