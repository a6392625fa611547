// SPDX-License-Identifier: GPL-3.0-or-later
#include "nextframes.h"
#include "guardedtest.h"

/// Which frame is likely to be asked for next.
class NextFramesTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void theNeighbourInTheDirectionOfBrowsing_data()
    {
        QTest::addColumn<QVector<int>>("shown");
        QTest::addColumn<int>("next"); // -1: none
        QTest::newRow("just opened") << QVector<int>{ 0 } << 1;
        QTest::newRow("opened in the middle") << QVector<int>{ 5 } << 6;
        QTest::newRow("forwards") << QVector<int>{ 1, 2 } << 3;
        QTest::newRow("backwards") << QVector<int>{ 3, 2 } << 1;
        QTest::newRow("turned round") << QVector<int>{ 1, 2, 3, 2 } << 1;
        QTest::newRow("far forwards") << QVector<int>{ 0, 6 } << 7;
        QTest::newRow("far backwards") << QVector<int>{ 8, 4 } << 3;
        QTest::newRow("the same again, backwards") << QVector<int>{ 3, 2, 2 } << 1;
        QTest::newRow("the last") << QVector<int>{ 8, 9 } << -1;
        QTest::newRow("the first, backwards") << QVector<int>{ 1, 0 } << -1;
        QTest::newRow("the last, opened") << QVector<int>{ 9 } << -1;
    }

    void theNeighbourInTheDirectionOfBrowsing()
    {
        QFETCH(QVector<int>, shown);
        QFETCH(int, next);
        NextFrames frames;
        for (const int index : qAsConst(shown))
            frames.Shown(0, { 1, index }, 10);
        QCOMPARE(frames.IsEmpty(), next < 0);
        if (next >= 0) {
            const NextFrames::Frame guess = frames.Take();
            QCOMPARE(guess.index, next);
            QCOMPARE(guess.file, quint64(1));
            QVERIFY(frames.IsEmpty());
        }
    }

    void anotherFileIsBrowsedForwardsFirst()
    {
        NextFrames frames;
        frames.Shown(0, { 1, 9 }, 10);
        frames.Shown(0, { 1, 8 }, 10);
        frames.Shown(0, { 2, 4 }, 10);
        const NextFrames::Frame guess = frames.Take();
        QCOMPARE(guess.file, quint64(2));
        QCOMPARE(guess.index, 5);
        frames.Shown(0, { 3, 0 }, 1);
        QVERIFY(frames.IsEmpty());
    }

    void placesAreBrowsedByThemselves()
    {
        NextFrames frames;
        frames.Shown(1, { 2, 8 }, 10);
        frames.Shown(0, { 1, 3 }, 10);
        frames.Shown(1, { 2, 7 }, 10);
        QCOMPARE(frames.Take().index, 4);
        QCOMPARE(frames.Take().index, 6);
        QVERIFY(frames.IsEmpty());
    }
};

GUARDED_TEST_MAIN(NextFramesTest)
#include "nextframestest.moc"
