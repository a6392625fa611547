// SPDX-License-Identifier: GPL-3.0-or-later
#include "bothhalves.h"
#include "guardedtest.h"

#include <atomic>
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
