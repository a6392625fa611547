// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Two samples that are shown black and white, in units of the samples.
struct SampleRange
{
    double left = 0;
    double right = 0; ///< not above `left`: not known yet

    bool IsKnown() const { return right > left; }
};
