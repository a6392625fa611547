// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumnoise.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace {

constexpr double deviationPerMad = 1.4826; // of a normal distribution
const double roundingNoise = std::sqrt(1.0 / 12.0);

bool AreWhole(const std::vector<double> &samples)
{
    return std::all_of(samples.begin(), samples.end(), [](double sample) { return sample == std::floor(sample); });
}

/// The median of values that are not below 0 and were rounded to whole numbers: within those that share the middle
/// one's number they are taken to lie evenly.
double MedianOfWhole(const std::vector<double> &values)
{
    const double middle = MedianOf(values);
    double below = 0;
    double same = 0;
    for (const double value : values) {
        below += value < middle ? 1 : 0;
        same += value == middle ? 1 : 0;
    }
    const double low = middle > 0 ? middle - 0.5 : 0;
    return low + (middle + 0.5 - low) * (double(values.size()) / 2 - below) / same;
}

} // namespace

double MedianOf(std::vector<double> values)
{
    if (values.empty())
        return 0;
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double EstimateNoise(const std::vector<double> &samples)
{
    if (samples.size() < 3)
        return 0;
    std::vector<double> steps(samples.size() - 1);
    for (size_t i = 0; i < steps.size(); ++i)
        steps[i] = samples[i + 1] - samples[i];
    const double median = MedianOf(steps);
    for (double &step : steps)
        step = std::abs(step - median);
    const bool areWhole = AreWhole(samples);
    const double deviation = areWhole ? MedianOfWhole(steps) : MedianOf(steps);
    const double noise = deviationPerMad * deviation / std::sqrt(2.0);
    return areWhole ? std::max(noise, roundingNoise) : noise;
}
