// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

/// The noise of one sample, as a standard deviation: 1.4826 times the median absolute deviation of the differences
/// of neighbours, over the root of 2. Lines and slow changes hardly move it. Samples that are whole numbers count as
/// noisy by their rounding at least. Where all that lay below 0 was cut off, the noise is that of the samples before. 0
/// for fewer than three samples.
double EstimateNoise(const std::vector<double> &samples);

/// That of samples which are all whole numbers, 0 otherwise.
double RoundingNoise(const std::vector<double> &samples);

/// The middle value; 0 of nothing.
double MedianOf(std::vector<double> values);
