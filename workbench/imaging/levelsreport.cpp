// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelsreport.h"

#include "samplehistogram.h"
#include "sampleview.h"

#include <algorithm>

namespace {
/// A picture of the histogram needs no more.
constexpr int RowsForHistogram = 256;
} // namespace

LevelsReport LevelsReport::Of(const SampleView &samples, const DisplayLevels &levels)
{
    const SampleHistogram histogram(samples, std::max(1, samples.height / RowsForHistogram));
    const std::vector<qint64> columns = histogram.Condensed(HistogramColumns);
    return { samples.bitDepth, levels, QVector<qint64>(columns.begin(), columns.end()) };
}
