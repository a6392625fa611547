// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "processfacts.h"
#include "timedrun.h"

#include <QElapsedTimer>

#include <vector>

class ProcessFactsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void ageGrowsWithTheClock()
    {
        const qint64 before = ProcessFacts::AgeMs();
        QVERIFY(before >= 0);
        QVERIFY(before < 60000); // this program has only just started
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < 120) { }
        const qint64 grown = ProcessFacts::AgeMs() - before;
        QVERIFY2(grown >= 110 && grown < 1000, qPrintable(QString::number(grown)));
    }

    void peakMemoryGrowsWithUse()
    {
        constexpr size_t Megabyte = 1 << 20;
        const int before = ProcessFacts::PeakMemoryMB();
        QVERIFY(before > 0);
        const std::vector<char> block(64 * Megabyte, 1);
        QVERIFY(ProcessFacts::PeakMemoryMB() >= before + 60);
        QCOMPARE(int(block[block.size() / 2]), 1);
    }

    void factsAreOneLine()
    {
        TimedRun::Facts facts;
        facts.captured = 120;
        facts.shown = 60;
        facts.lost = 0;
        facts.framesPerSecond = 59.84;
        facts.firstFrameMs = 412;
        facts.peakMemoryMB = 142;
        facts.panelLoadMs = 35;
        QCOMPARE(TimedRun::Line(facts),
                 QString("captured 120, shown 60, lost 0, 59.8 frames/s, first frame after 412 ms, peak memory 142 MB, "
                         "panels loaded in 35 ms"));
    }
};

GUARDED_TEST_MAIN(ProcessFactsTest)
#include "processfactstest.moc"
