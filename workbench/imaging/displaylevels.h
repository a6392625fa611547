// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// How raw samples become the grey of a picture: up to `left` black, from `right` on white, in between by
/// ((sample - left) / (right - left)) ^ (1 / gamma); a gamma above 1 brightens the middle. The samples stay as they are.
struct DisplayLevels
{
    int left = 0;
    int right = 255;
    double gamma = 1.0;

    static DisplayLevels FullRange(int bitDepth);
    static constexpr double LeastGamma = 0.1;
    static constexpr double MostGamma = 10.0;
    /// LeastGamma to MostGamma; 1 for what makes no sense.
    static double GuardedGamma(double gamma);
    /// The nearest levels that make sense for samples of that depth: 0 <= left < right <= full scale, gamma 0.1 to 10.
    DisplayLevels Guarded(int bitDepth) const;
};
