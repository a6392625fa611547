// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>

/// What a ruler shows from its one end to the other.
struct RulerRange
{
    double first;
    double last;
};

/// The value of a pixel; false where it has none.
using PixelValue = std::function<bool(int pixel, double &value)>;

/// The values along some pixels, as far as a ruler can show them: it counts evenly, upwards, over 5 at least and never
/// below 0. Nothing for values that fall, like the wavenumbers of rising wavelengths, or that are a fiftieth of the range
/// away from an even count; the ruler has to count pixels there.
std::optional<RulerRange> FindRulerRange(const PixelValue &valueAt, const RulerRange &pixels);
