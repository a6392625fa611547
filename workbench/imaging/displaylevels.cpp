// SPDX-License-Identifier: GPL-3.0-or-later
#include "displaylevels.h"

#include <algorithm>

DisplayLevels DisplayLevels::FullRange(int bitDepth) { return { 0, (1 << bitDepth) - 1, 1.0 }; }

DisplayLevels DisplayLevels::Guarded(int bitDepth) const
{
    const int fullScale = (1 << bitDepth) - 1;
    DisplayLevels guarded;
    guarded.left = std::clamp(left, 0, fullScale - 1);
    guarded.right = std::clamp(right, guarded.left + 1, fullScale);
    guarded.gamma = GuardedGamma(gamma);
    return guarded;
}

double DisplayLevels::GuardedGamma(double gamma)
{
    return gamma > 0 ? std::clamp(gamma, LeastGamma, MostGamma) : 1.0; // also for "not a number"
}
