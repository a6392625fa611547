// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

/// A spectrum seen through a filter, which tells lines from noise.
struct FilteredNoise
{
    std::vector<double> curve;
    std::vector<double> background; ///< what is there beside lines
    double noiseShare = 1;          ///< what the filter leaves of the noise of a sample
};

/// The noise of each sample: that of all that are no lines (EstimateNoise()), and more where a stretch of them is clearly
/// noisier, as at the dark ends of an absorbance.
std::vector<double> NoiseAlong(const std::vector<double> &samples, const FilteredNoise &filtered);
