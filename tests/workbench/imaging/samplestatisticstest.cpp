// SPDX-License-Identifier: GPL-3.0-or-later
#include "samplestatistics.h"
#include "guardedtest.h"
#include "randomsamples.h"

#include <QtMath>

#include <algorithm>
#include <numeric>

/// The numbers of a picture's samples against a straightforward computation, sample by sample.
class SampleStatisticsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void isWhatTheSamplesAre_data()
    {
        QTest::addColumn<int>("bitDepth");
        QTest::addColumn<bool>("isColour");
        QTest::addColumn<int>("oddValue");
        QTest::newRow("8 bit") << 8 << false << 255;
        QTest::newRow("colour") << 8 << true << 255;
        QTest::newRow("12 bit") << 12 << false << 4095;
        QTest::newRow("12 bit, with bits above") << 12 << false << 5000;
        QTest::newRow("16 bit") << 16 << false << 65535;
    }

    void isWhatTheSamplesAre()
    {
        QFETCH(int, bitDepth);
        QFETCH(bool, isColour);
        QFETCH(int, oddValue);
        RandomSamples picture(QSize(97, 31), bitDepth, isColour, 5);
        picture.Set(3, 4, oddValue);
        const std::vector<int> samples = picture.Values();
        const SampleStatistics statistics = SampleStatistics::Of(picture.View());

        QCOMPARE(statistics.count, qint64(samples.size()));
        QCOMPARE(statistics.bitDepth, bitDepth);
        QCOMPARE(statistics.minimum, *std::min_element(samples.begin(), samples.end()));
        QCOMPARE(statistics.maximum, *std::max_element(samples.begin(), samples.end()));
        double mean = 0;
        double squares = 0;
        for (size_t i = 0; i < samples.size(); ++i) {
            mean += (samples[i] - mean) / double(i + 1);
            squares += double(samples[i]) * samples[i];
        }
        const double deviation = qSqrt(squares / double(samples.size()) - mean * mean);
        QVERIFY(qAbs(statistics.mean - mean) < 1e-9 * oddValue);
        QVERIFY(qAbs(statistics.deviation - deviation) < 1e-6 * oddValue);
        const int fullScale = (1 << bitDepth) - 1;
        const auto isSaturated = [=](int sample) { return sample >= fullScale; };
        QCOMPARE(statistics.saturated, qint64(std::count_if(samples.begin(), samples.end(), isSaturated)));
        QCOMPARE(std::accumulate(statistics.histogram.begin(), statistics.histogram.end(), qint64(0)),
                 statistics.count);
    }

    void noPictureHasNoNumbers()
    {
        const SampleStatistics statistics = SampleStatistics::Of(SampleView());
        QCOMPARE(statistics.count, qint64(0));
        QVERIFY(statistics.histogram.isEmpty());
    }
};

GUARDED_TEST_MAIN(SampleStatisticsTest)
#include "samplestatisticstest.moc"
