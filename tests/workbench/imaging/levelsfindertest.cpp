// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelsfinder.h"
#include "guardedtest.h"
#include "randomsamples.h"

#include <algorithm>
#include <cmath>

class LevelsFinderTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void AgreesWithSortedSamples_data();
    void AgreesWithSortedSamples();
    void HotPixelsAreLeftOut();
    void FlatPictureGetsLevelsApart();
    void EmptyPictureGetsTheFullRange();
};

void LevelsFinderTest::AgreesWithSortedSamples_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("bitDepth");
    QTest::addColumn<bool>("isColour");
    for (const QSize size : { QSize(2, 1), QSize(3, 5), QSize(641, 479) }) {
        for (const int bitDepth : { 8, 12, 16 })
            QTest::addRow("%dx%d %d bits", size.width(), size.height(), bitDepth)
                << size << bitDepth << false;
        QTest::addRow("%dx%d colour", size.width(), size.height()) << size << 8 << true;
    }
}

void LevelsFinderTest::AgreesWithSortedSamples()
{
    QFETCH(QSize, size);
    QFETCH(int, bitDepth);
    QFETCH(bool, isColour);
    const RandomSamples samples(size, bitDepth, isColour, 21);
    std::vector<int> sorted = samples.Values();
    std::sort(sorted.begin(), sorted.end());

    const DisplayLevels range = LevelsFinder::FromRange(samples.View());
    QCOMPARE(range.left, sorted.front());
    QCOMPARE(range.right, sorted.back());
    QCOMPARE(range.gamma, 1.0);

    for (const double part : { 0.0, 0.01, 0.1 }) {
        const DisplayLevels found = LevelsFinder::FromPercentiles(samples.View(), part, 1.0 - part);
        const auto count = double(sorted.size());
        QCOMPARE(found.left, sorted[size_t(std::floor(part * count))]);
        QCOMPARE(found.right, sorted[size_t(std::ceil((1.0 - part) * count)) - 1]);
    }
}

void LevelsFinderTest::HotPixelsAreLeftOut()
{
    RandomSamples samples(QSize(100, 100), 12, false, 2);
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 100; ++x)
            samples.Set(x, y, 100 + (x + y) % 50);
    }
    for (int i = 0; i < 5; ++i)
        samples.Set(17 * i, 3 * i, 4095);
    samples.Set(50, 50, 0);
    QCOMPARE(LevelsFinder::FromRange(samples.View()).left, 0);
    QCOMPARE(LevelsFinder::FromRange(samples.View()).right, 4095);
    const DisplayLevels levels = LevelsFinder::FromPercentiles(samples.View(), 0.001, 0.999);
    QCOMPARE(levels.left, 100);
    QCOMPARE(levels.right, 149);
}

void LevelsFinderTest::FlatPictureGetsLevelsApart()
{
    RandomSamples samples(QSize(1, 1), 16, false, 2);
    samples.Set(0, 0, 65535);
    for (const DisplayLevels &levels : { LevelsFinder::FromRange(samples.View()),
                                         LevelsFinder::FromPercentiles(samples.View(), 0.01, 0.99) }) {
        QCOMPARE(levels.left, 65534);
        QCOMPARE(levels.right, 65535);
    }
}

void LevelsFinderTest::EmptyPictureGetsTheFullRange()
{
    SampleView nothing;
    nothing.bitDepth = 12;
    QCOMPARE(LevelsFinder::FromRange(nothing).right, 4095);
    QCOMPARE(LevelsFinder::FromPercentiles(nothing, 0.01, 0.99).right, 4095);
}

GUARDED_TEST_MAIN(LevelsFinderTest)
#include "levelsfindertest.moc"
