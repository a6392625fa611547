// SPDX-License-Identifier: GPL-3.0-or-later
#include "rulerticks.h"

#include "rulersteps.h"

#include <algorithm>
#include <cmath>

namespace {

bool IsMajor(int index, const RulerSteps &steps)
{
    return index % steps.minorsPerMajor == 0;
}

void AppendTick(const QLineF &tick, bool labelled, int index, const RulerNumbers &numbers, RulerTicks *ticks)
{
    ticks->lines.append(tick);
    if (!labelled)
        return;
    ticks->majorLines.append(tick);
    ticks->labels.append(QString::number(index * numbers.multiplier + numbers.offset, 'f', numbers.decimals));
}

double StartOffset(const RulerPlace &place, int itemLength)
{
    return (1.0 - 1.0 / place.zoom) * itemLength;
}

} // namespace

RulerNumbers ComputeRulerNumbers(int minorStep, int imageLength, double rangeMin, double rangeMax, int decimals)
{
    const bool hasRange = rangeMin >= 0.0 && rangeMax >= 0.0 && imageLength > 0;
    if (!hasRange)
        return {double(minorStep), 0.0, decimals};
    return {minorStep * (rangeMax - rangeMin) / imageLength, rangeMin, decimals};
}

void RulerTicks::Clear()
{
    lines.clear();
    majorLines.clear();
    labels.clear();
}

bool RulerTicks::operator==(const RulerTicks &other) const
{
    return lines == other.lines && majorLines == other.majorLines && labels == other.labels;
}

void BuildHorizontalTicks(const RulerSteps &steps, const RulerNumbers &numbers, const RulerPlace &place,
                          RulerTicks *ticks)
{
    ticks->Clear();
    if (!steps.IsValid())
        return;
    const int width = place.itemSize.width();
    const double startPx = std::max(int(place.visibleStart + StartOffset(place, width)), 0) * steps.scale;
    const int firstIndex = int(std::ceil(startPx / steps.minorStepPx));
    int index = firstIndex;
    for (double x = firstIndex * steps.minorStepPx - startPx; x < width; x += steps.minorStepPx, ++index) {
        const bool major = IsMajor(index, steps);
        const QLineF tick(x, 0.0, x, major ? place.majorTickLength : place.minorTickLength);
        // A number further left would be cut off by the edge.
        AppendTick(tick, major && x > steps.minorStepPx, index, numbers, ticks);
    }
}

void BuildVerticalTicks(const RulerSteps &steps, const RulerNumbers &numbers, const RulerPlace &place, bool bottomUp,
                        RulerTicks *ticks)
{
    ticks->Clear();
    if (!steps.IsValid())
        return;
    const int height = place.itemSize.height();
    // Unlike the horizontal ruler: neither cut to whole pixels nor held at 0.
    const double startPx = place.visibleStart * steps.scale + StartOffset(place, height);
    const int firstIndex = int(std::ceil(startPx / steps.minorStepPx));
    const double firstOffset = firstIndex * steps.minorStepPx - startPx;
    const double end = height + 1 - firstOffset;

    const double right = place.itemSize.width();
    int index = firstIndex;
    const auto append = [&](double y, bool besideFirst) {
        const bool major = IsMajor(index, steps);
        const QLineF tick(right, y, right - (major ? place.majorTickLength : place.minorTickLength), y);
        AppendTick(tick, major && besideFirst, index, numbers, ticks);
        ++index;
    };
    if (bottomUp) {
        for (double y = end; y > 0.0; y -= steps.minorStepPx)
            append(y, y < end);
    } else {
        // From the edge itself, not from the first whole step.
        for (double y = 0.0; y < end; y += steps.minorStepPx)
            append(y, y > firstOffset);
    }
}
