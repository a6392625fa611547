// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelsreport.h"

#include "samplehistogram.h"
#include "sampleview.h"

#include <algorithm>

LevelsReport LevelsReport::Of(const SampleView &samples, const DisplayLevels &levels)
{
    const SampleHistogram histogram(samples, std::max(1, samples.height / HistogramRows));
    const std::vector<qint64> columns = histogram.Condensed(HistogramColumns);
    LevelsReport report;
    report.kind = samples.bitDepth;
    report.levels = { double(levels.left), double(levels.right) };
    report.gamma = levels.gamma;
    report.axis = { -0.5, report.kind.Most() + 0.5 };
    report.histogram = QVector<qint64>(columns.begin(), columns.end());
    return report;
}
