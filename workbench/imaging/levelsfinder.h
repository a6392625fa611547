// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "displaylevels.h"

struct SampleView;

/// Levels that suit a picture, found from its samples; a colour picture's three channels count alike. The gamma is 1.
/// A picture of one single value gets levels that are one apart; an empty one the full range.
class LevelsFinder
{
public:
    /// From the darkest sample to the brightest.
    static DisplayLevels FromRange(const SampleView &samples);
    /// Leaves out the darkest `low` and the brightest 1 - `high` of the samples, both 0 to 1: a few hot pixels do not
    /// make the picture dark. Looks at every `rowStep`th row only.
    static DisplayLevels FromPercentiles(const SampleView &samples, double low, double high, int rowStep = 1);
};
