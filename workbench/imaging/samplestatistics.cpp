// SPDX-License-Identifier: GPL-3.0-or-later
#include "samplestatistics.h"

#include "samplehistogram.h"
#include "sampleview.h"

#include <cmath>

namespace {

double Mean(const std::vector<quint32> &counts, qint64 total)
{
    double sum = 0;
    for (size_t value = 0; value < counts.size(); ++value)
        sum += double(value) * counts[value];
    return sum / double(total);
}

double Deviation(const std::vector<quint32> &counts, qint64 total, double mean)
{
    double sum = 0;
    for (size_t value = 0; value < counts.size(); ++value)
        sum += (double(value) - mean) * (double(value) - mean) * counts[value];
    return std::sqrt(sum / double(total));
}

} // namespace

SampleStatistics SampleStatistics::Of(const SampleView &samples)
{
    SampleStatistics statistics;
    const SampleHistogram histogram(samples);
    statistics.count = histogram.Total();
    statistics.bitDepth = samples.bitDepth;
    if (statistics.count == 0)
        return statistics;
    const std::vector<quint32> &counts = histogram.Counts();
    statistics.minimum = histogram.ValueAtRank(0);
    statistics.maximum = histogram.ValueAtRank(statistics.count - 1);
    statistics.mean = Mean(counts, statistics.count);
    statistics.deviation = Deviation(counts, statistics.count, statistics.mean);
    for (size_t value = (size_t(1) << samples.bitDepth) - 1; value < counts.size(); ++value)
        statistics.saturated += counts[value];
    const std::vector<qint64> columns = histogram.Condensed(HistogramColumns);
    statistics.histogram = QVector<qint64>(columns.begin(), columns.end());
    return statistics;
}
