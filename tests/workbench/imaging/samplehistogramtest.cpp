// SPDX-License-Identifier: GPL-3.0-or-later
#include "samplehistogram.h"
#include "guardedtest.h"
#include "randomsamples.h"

#include <algorithm>

class SampleHistogramTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void RanksAreThoseOfTheSortedSamples_data();
    void RanksAreThoseOfTheSortedSamples();
    void ColumnsSpanTheBitDepth();
    void RowsAreLeftOutOnRequest();
    void NoSamplesNoCounts();
};

void SampleHistogramTest::RanksAreThoseOfTheSortedSamples_data()
{
    QTest::addColumn<int>("bitDepth");
    QTest::addColumn<bool>("isColour");
    QTest::newRow("8 bits") << 8 << false;
    QTest::newRow("12 bits") << 12 << false;
    QTest::newRow("16 bits") << 16 << false;
    QTest::newRow("colour") << 8 << true;
}

void SampleHistogramTest::RanksAreThoseOfTheSortedSamples()
{
    QFETCH(int, bitDepth);
    QFETCH(bool, isColour);
    const RandomSamples samples(QSize(97, 31), bitDepth, isColour, 12);
    std::vector<int> sorted = samples.Values();
    std::sort(sorted.begin(), sorted.end());
    const SampleHistogram histogram(samples.View());
    QCOMPARE(histogram.Total(), qint64(sorted.size()));
    for (size_t rank = 0; rank < sorted.size(); rank += 37)
        QCOMPARE(histogram.ValueAtRank(qint64(rank)), sorted[rank]);
    QCOMPARE(histogram.ValueAtRank(histogram.Total() - 1), sorted.back());
}

void SampleHistogramTest::ColumnsSpanTheBitDepth()
{
    RandomSamples samples(QSize(6, 1), 12, false, 1);
    const int values[] = { 0, 15, 16, 2048, 4080, 4095 };
    for (int x = 0; x < 6; ++x)
        samples.Set(x, 0, values[x]);
    // 4096 values in 256 columns: 16 to a column.
    const std::vector<qint64> columns = SampleHistogram(samples.View()).Condensed(256);
    QCOMPARE(columns.size(), size_t(256));
    QCOMPARE(columns[0], qint64(2));
    QCOMPARE(columns[1], qint64(1));
    QCOMPARE(columns[128], qint64(1));
    QCOMPARE(columns[255], qint64(2));
    QCOMPARE(std::count(columns.begin(), columns.end(), qint64(0)), std::ptrdiff_t(252));
}

void SampleHistogramTest::RowsAreLeftOutOnRequest()
{
    RandomSamples samples(QSize(5, 7), 8, false, 1);
    for (int y = 0; y < 7; ++y) {
        for (int x = 0; x < 5; ++x)
            samples.Set(x, y, 10 * y);
    }
    const SampleHistogram histogram(samples.View(), 3);
    QCOMPARE(histogram.Total(), qint64(15)); // rows 0, 3 and 6
    QCOMPARE(histogram.ValueAtRank(0), 0);
    QCOMPARE(histogram.ValueAtRank(7), 30);
    QCOMPARE(histogram.ValueAtRank(14), 60);
}

void SampleHistogramTest::NoSamplesNoCounts()
{
    QCOMPARE(SampleHistogram(SampleView()).Total(), qint64(0));
    QCOMPARE(SampleHistogram().Condensed(4), std::vector<qint64>(4, 0));
}

GUARDED_TEST_MAIN(SampleHistogramTest)
#include "samplehistogramtest.moc"
