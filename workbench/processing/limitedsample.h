// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <limits>
#include <type_traits>

/// A calculated value as a sample: rounded to the nearest, halves to the even one, and limited to what the type holds.
/// What is no number has a place in floating point only and is 0 elsewhere.
template <typename Sample>
Sample LimitedSample(double value)
{
    if constexpr (std::is_floating_point_v<Sample>) {
        return Sample(value);
    } else {
        const double rounded = std::nearbyint(value);
        if (rounded <= double(std::numeric_limits<Sample>::min()))
            return std::numeric_limits<Sample>::min();
        if (rounded >= double(std::numeric_limits<Sample>::max()))
            return std::numeric_limits<Sample>::max();
        return std::isnan(rounded) ? Sample(0) : Sample(rounded);
    }
}
