// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <random>
#include <vector>

/// Spectra whose truth is known.
inline std::vector<double> NoiseOnly(int count, double level, double noise, unsigned seed, bool whole = true)
{
    std::mt19937 random(seed);
    std::normal_distribution<double> normal(level, noise);
    std::vector<double> samples(static_cast<size_t>(count));
    for (double &sample : samples)
        sample = whole ? std::floor(normal(random) + 0.5) : normal(random);
    return samples;
}

inline void AddLine(std::vector<double> *samples, double position, double height, double sigma)
{
    for (size_t i = 0; i < samples->size(); ++i)
        (*samples)[i] += height * std::exp(-0.5 * std::pow((double(i) - position) / sigma, 2));
}

inline void Round(std::vector<double> *samples, double most = 1e300)
{
    for (double &sample : *samples)
        sample = std::fmin(most, std::floor(sample + 0.5));
}
