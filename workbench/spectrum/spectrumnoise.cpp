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

/// The place of a share of the normal distribution, in standard deviations.
double NormalQuantile(double share)
{
    double low = -10;
    double high = 10;
    for (int i = 0; i < 60; ++i) {
        const double middle = (low + high) / 2;
        (0.5 * std::erfc(-middle / std::sqrt(2.0)) < share ? low : high) = middle;
    }
    return low;
}

/// The noise that samples around a level near 0 had before all that lay below 0 became 0; 0 when few did. Lines hardly
/// count: only samples beside a 0 tell. Of a sample beside a 0 the share that is 0 is that below the cut, and the median
/// of the rest is the quantile half way between that share and 1.
double NoiseBeforeCut(const std::vector<double> &samples)
{
    constexpr double leastCutShare = 0.25;
    std::vector<double> above;
    double cut = 0;
    double neighbours = 0;
    for (size_t i = 0; i < samples.size(); ++i) {
        if (samples[i] < 0)
            return 0; // nothing was cut
        cut += samples[i] == 0 ? 1 : 0;
        if ((i > 0 && samples[i - 1] == 0) || (i + 1 < samples.size() && samples[i + 1] == 0)) {
            ++neighbours;
            if (samples[i] > 0)
                above.push_back(samples[i]);
        }
    }
    if (above.empty() || cut < leastCutShare * double(samples.size()))
        return 0;
    const double share = 1 - double(above.size()) / neighbours;
    // Whole numbers above 0 begin at 0.5.
    const double middle = AreWhole(samples) ? MedianOfWhole(above) - 0.5 : MedianOf(above);
    return middle / (NormalQuantile((1 + share) / 2) - NormalQuantile(share));
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
    const double noise = std::max(deviationPerMad * deviation / std::sqrt(2.0), NoiseBeforeCut(samples));
    return areWhole ? std::max(noise, roundingNoise) : noise;
}

double RoundingNoise(const std::vector<double> &samples) { return AreWhole(samples) ? roundingNoise : 0; }
