// SPDX-License-Identifier: GPL-3.0-or-later
#include "matchedfilter.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double pi = 3.14159265358979323846;
}

MatchedFilter::MatchedFilter(double sigma)
    : m_sigma(sigma)
{
    const int reach = int(std::ceil(4 * sigma));
    double sum = 0;
    for (int k = -reach; k <= reach; ++k) {
        m_weights.push_back(std::exp(-0.5 * k * k / (sigma * sigma)));
        sum += m_weights.back();
    }
    double squares = 0;
    for (double &weight : m_weights) {
        weight /= sum;
        squares += weight * weight;
    }
    m_noiseShare = std::sqrt(squares);
}

std::vector<double> MatchedFilter::Apply(const std::vector<double> &samples) const
{
    const int count = int(samples.size());
    const int reach = int(m_weights.size()) / 2;
    const auto mirrored = [count](int at) {
        const int inside = std::abs(at);
        return inside < count ? inside : std::max(0, 2 * count - 2 - inside);
    };
    std::vector<double> padded;
    for (int i = -reach; count > 0 && i < count + reach; ++i)
        padded.push_back(samples[size_t(mirrored(i))]);
    std::vector<double> curve(samples.size());
    for (size_t i = 0; i < curve.size(); ++i) {
        double sum = 0;
        for (size_t k = 0; k < m_weights.size(); ++k)
            sum += m_weights[k] * padded[i + k];
        curve[i] = sum;
    }
    return curve;
}

/// The filter and its mirror image, which lies twice as far away as the end, have the overlap exp(-distance²).
double MatchedFilter::NoiseShare(int index, int count) const
{
    const double toEnd = std::min(index, count - 1 - index) / m_sigma;
    return m_noiseShare * std::sqrt(1 + std::exp(-toEnd * toEnd));
}

double BarFor(double falsePeaks, int samples, const std::vector<double> &sigmas)
{
    // Maxima of filtered noise come at 1 / (2 pi sqrt(2) sigma) * exp(-bar² / 2) a sample.
    double maxima = 0;
    for (const double sigma : sigmas)
        maxima += samples / (2 * pi * std::sqrt(2.0) * sigma);
    return std::sqrt(std::max(0.0, 2 * std::log(maxima / falsePeaks)));
}
