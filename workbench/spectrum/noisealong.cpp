// SPDX-License-Identifier: GPL-3.0-or-later
#include "noisealong.h"

#include "runningmedian.h"
#include "spectrumnoise.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int reach = 128; ///< samples to each side that tell the noise of one
/// The noise of so many samples is known to 6 %: that much more is no accident.
constexpr double clearlyMore = 1.3;
/// A filtered curve that far from the background, in deviations of its own, shows a line...
constexpr double lineDeviations = 4;
constexpr int lineReach = 5; ///< ...that covers so many samples to each side of there
constexpr size_t leastSamples = 64;
constexpr double medianPerDeviation = 0.9539; ///< of the step from one sample of normal noise to the next
constexpr double fewCounts = 10; ///< rounding noises
/// What the mean says of few counts may differ from what the median says by these factors.
constexpr double leastOfMedian = 0.85;
constexpr double mostOfMedian = 1.35;
constexpr double mostDeviations = 12; ///< of a step between neighbours; rays and jumps are longer

/// From each sample to the next; 0 behind the last.
std::vector<double> StepsOf(const std::vector<double> &samples)
{
    std::vector<double> steps(samples.size(), 0.0);
    for (size_t i = 0; i + 1 < samples.size(); ++i)
        steps[i] = std::abs(samples[i + 1] - samples[i]);
    return steps;
}

/// The mean square of the steps from one sample to the next, over any stretch.
class SquaredSteps
{
public:
    SquaredSteps(const std::vector<double> &samples, double usualNoise)
        : m_sums(1, 0.0)
    {
        const double most = mostDeviations * usualNoise;
        for (size_t i = 0; i + 1 < samples.size(); ++i)
            m_sums.push_back(m_sums.back() + std::pow(std::min(most, std::abs(samples[i + 1] - samples[i])), 2));
    }

    /// Of a sample of those from `from` to before `to`.
    double Noise(size_t from, size_t to) const { return std::sqrt((m_sums[to - 1] - m_sums[from]) / (2 * double(to - 1 - from))); }

private:
    std::vector<double> m_sums;
};

/// The samples beside lines.
std::vector<size_t> PlacesBesideLines(const std::vector<double> &samples, const FilteredNoise &filtered, double noise)
{
    const std::vector<double> usual = RunningMedian(StepsOf(samples), reach);
    size_t clear = 0; // the first one behind the last line
    std::vector<size_t> places;
    for (size_t i = 0; i < samples.size(); ++i) {
        const double deviation = filtered.noiseShare * std::max(noise, usual[i] / medianPerDeviation);
        const bool isLine = std::abs(filtered.curve[i] - filtered.background[i]) > lineDeviations * deviation;
        if (isLine) {
            while (!places.empty() && places.back() + lineReach >= i)
                places.pop_back();
            clear = i + lineReach + 1;
        } else if (i >= clear) {
            places.push_back(i);
        }
    }
    return places;
}

/// The median of steps of few counts jumps from one whole number to the next; their mean square does not, unless samples
/// were cut off at 0.
double NoiseOf(const std::vector<double> &samples, const SquaredSteps &steps)
{
    const double usual = EstimateNoise(samples);
    const double rounding = RoundingNoise(samples);
    const double mean = steps.Noise(0, samples.size());
    const bool isByMean = usual < fewCounts * rounding && mean > leastOfMedian * usual;
    return isByMean ? std::max(rounding, std::min(mean, mostOfMedian * usual)) : usual;
}

} // namespace

std::vector<double> NoiseAlong(const std::vector<double> &samples, const FilteredNoise &filtered)
{
    const double usual = EstimateNoise(samples);
    const std::vector<size_t> places = PlacesBesideLines(samples, filtered, usual);
    if (places.size() < leastSamples)
        return std::vector<double>(samples.size(), usual);
    std::vector<double> beside;
    for (const size_t place : places)
        beside.push_back(samples[place]);
    const SquaredSteps squares(beside, usual);
    const std::vector<double> medians = RunningMedian(StepsOf(beside), reach);
    const double noise = NoiseOf(beside, squares);
    std::vector<double> along(samples.size(), noise);
    size_t step = 0;
    for (size_t i = 0; i < samples.size(); ++i) {
        while (step + 1 < places.size() && places[step] < i)
            ++step;
        const size_t from = step > size_t(reach) ? step - size_t(reach) : 0;
        const double mean = squares.Noise(from, std::min(beside.size(), step + size_t(reach) + 1));
        const double here = std::min(mean, medians[step] / medianPerDeviation); // lines too faint to be seen move the mean
        along[i] = here > clearlyMore * noise ? here : noise;
    }
    return along;
}
