// SPDX-License-Identifier: GPL-3.0-or-later
#include "frameledger.h"
#include "guardedtest.h"

#include <thread>
#include <vector>

class FrameLedgerTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void TellsWhereFramesWereLost();
    void CountsFromManyThreads();
};

void FrameLedgerTest::TellsWhereFramesWereLost()
{
    FrameLedger ledger;
    ledger.AddCaptured();
    ledger.AddShown();
    ledger.AddSaved(3);
    ledger.AddLost(LossStage::Camera, 4);
    ledger.AddLost(LossStage::Transfer);
    ledger.AddLost(LossStage::SaveQueue, 2);

    const FrameCounts counts = ledger.Counts();
    QCOMPARE(counts.captured, quint64(1));
    QCOMPARE(counts.shown, quint64(1));
    QCOMPARE(counts.saved, quint64(3));
    QCOMPARE(counts.LostAt(LossStage::Camera), quint64(4));
    QCOMPARE(counts.LostAt(LossStage::Transfer), quint64(1));
    QCOMPARE(counts.LostAt(LossStage::SaveQueue), quint64(2));
    QCOMPARE(counts.LostAt(LossStage::Disk), quint64(0));
    QCOMPARE(counts.Lost(), quint64(7));

    ledger.Reset();
    QCOMPARE(ledger.Counts().Lost(), quint64(0));
    QCOMPARE(ledger.Counts().captured + ledger.Counts().shown + ledger.Counts().saved, quint64(0));
}

void FrameLedgerTest::CountsFromManyThreads()
{
    FrameLedger ledger;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&ledger] {
            for (int frame = 0; frame < 10000; ++frame) {
                ledger.AddCaptured();
                ledger.AddLost(LossStage::SaveQueue);
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(ledger.Counts().captured, quint64(40000));
    QCOMPARE(ledger.Counts().LostAt(LossStage::SaveQueue), quint64(40000));
}

GUARDED_TEST_MAIN(FrameLedgerTest)
#include "frameledgertest.moc"
