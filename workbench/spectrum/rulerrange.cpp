// SPDX-License-Identifier: GPL-3.0-or-later
#include "rulerrange.h"

#include <QtGlobal>

#include <cmath>

namespace {

constexpr double SmallestRange = 5.0;         // narrower ones are widened by the ruler
constexpr double LargestDeviation = 1.0 / 50; // of the range: a tenth of the way between two of its numbers
constexpr int Probes = 8;                     // a calibration bends once or twice

} // namespace

std::optional<RulerRange> FindRulerRange(const PixelValue &valueAt, const RulerRange &pixels)
{
    const int firstPixel = qRound(pixels.first);
    const int lastPixel = qRound(pixels.last);
    RulerRange range{ 0, 0 };
    if (!valueAt(firstPixel, range.first) || !valueAt(lastPixel, range.last))
        return std::nullopt;
    const double width = range.last - range.first;
    if (!(range.first >= 0) || !(width >= SmallestRange) || lastPixel <= firstPixel)
        return std::nullopt;
    for (int probe = 1; probe < Probes; ++probe) {
        const int pixel = firstPixel + (lastPixel - firstPixel) * probe / Probes;
        const double even = range.first + width * (pixel - firstPixel) / (lastPixel - firstPixel);
        double value = 0;
        if (!valueAt(pixel, value) || !(std::abs(value - even) <= width * LargestDeviation))
            return std::nullopt;
    }
    return range;
}
