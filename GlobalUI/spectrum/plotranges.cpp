// SPDX-License-Identifier: GPL-3.0-or-later
#include "plotranges.h"

#include <algorithm>
#include <cmath>

namespace {

double Step(const QCPRange &range) { return std::trunc(range.size() * 0.1 * 0.5); }

QCPRange WithinWholeEnds(const QCPRange &range, const QCPRange &old, const QCPRange &curve)
{
    const double lower = std::max(std::trunc(curve.lower), range.lower);
    const double upper = std::min(range.upper, std::trunc(curve.upper));
    return lower < upper ? QCPRange(lower, upper) : old;
}

} // namespace

double UpperWithBlank(double upper, double blankRatio)
{
    const bool usable = blankRatio >= 0.0 && blankRatio < 1.0; // not a number: no blank either
    return usable ? upper / (1.0 - blankRatio) : upper;
}

QCPRange WithBlankAbove(double lower, double upper, double blankRatio)
{
    return upper < 0.0 ? QCPRange(lower, lower + UpperWithBlank(upper - lower, blankRatio))
                       : QCPRange(lower, UpperWithBlank(upper, blankRatio));
}

QCPRange ZoomedValueRange(const QCPRange &range, double factor)
{
    const double lower = std::trunc(range.lower);
    const double upper = std::trunc(range.upper) * factor;
    return lower < upper ? QCPRange(lower, upper) : range;
}

QCPRange HorizontallyZoomedIn(const QCPRange &range, const QCPRange &curve)
{
    return WithinWholeEnds(QCPRange(range.lower + Step(range), range.upper - Step(range)), range, curve);
}

QCPRange HorizontallyZoomedOut(const QCPRange &range, const QCPRange &curve)
{
    return WithinWholeEnds(QCPRange(range.lower - Step(range), range.upper + Step(range)), range, curve);
}

QCPRange DraggedRange(double from, double to, const QCPRange &curve)
{
    // As an aggregate of its two ends: the constructor would turn a reversed range around.
    QCPRange range;
    range.lower = std::max(from, curve.lower);
    range.upper = std::min(to, curve.upper);
    return range;
}
