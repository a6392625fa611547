// SPDX-License-Identifier: GPL-3.0-or-later
#include "peakfinder.h"

#include "gaussianfit.h"
#include "runningmedian.h"
#include "spectrumnoise.h"

#include <algorithm>
#include <cmath>

namespace {

/// Samples. The narrow one is that of the sharpest lines, so that close pairs stay two; the wide one finds faint lines of
/// a wide slit.
constexpr double narrowSigma = 0.9;
constexpr double wideSigma = 2.0;
constexpr double widthPerSigma = 2.3548; // of a Gaussian, at half of its height
constexpr int backgroundPerHalfWidth = 4; // the running median reaches so far to each side
constexpr int leastSamples = 5;
constexpr int fitRounds = 3;
constexpr size_t neighbours = 2; // to each side
/// Noise that grows with the signal makes bumps on the flank of a strong line.
constexpr double leastShareOfHeight = 0.01;
constexpr double shareOfOwnFoot = 0.3;
constexpr double leastValleyShare = 0.05;

std::vector<double> KernelOf(double sigma)
{
    const int reach = int(std::ceil(4 * sigma));
    std::vector<double> kernel(size_t(2 * reach + 1));
    double sum = 0;
    for (int k = -reach; k <= reach; ++k)
        sum += kernel[size_t(k + reach)] = std::exp(-0.5 * k * k / (sigma * sigma));
    for (double &weight : kernel)
        weight /= sum;
    return kernel;
}

/// What smoothing leaves of the noise of a sample.
double NoiseShare(const std::vector<double> &kernel)
{
    double sum = 0;
    for (const double weight : kernel)
        sum += weight * weight;
    return std::sqrt(sum);
}

/// Mirrored at the ends.
std::vector<double> Smoothed(const std::vector<double> &samples, const std::vector<double> &kernel)
{
    const int count = int(samples.size());
    const int reach = int(kernel.size()) / 2;
    std::vector<double> smooth(samples.size());
    for (int i = 0; i < count; ++i) {
        double sum = 0;
        for (int k = -reach; k <= reach; ++k) {
            int at = std::abs(i + k);
            at = at < count ? at : 2 * count - 2 - at;
            sum += kernel[size_t(k + reach)] * samples[size_t(std::max(0, at))];
        }
        smooth[size_t(i)] = sum;
    }
    return smooth;
}

/// The valley on the way from `peak` in direction `step` to the next higher sample or the end; a step onto an equal
/// sample goes on, so that of a flat top the first sample counts.
double LowestOnTheWay(const std::vector<double> &curve, int peak, int step)
{
    double lowest = curve[size_t(peak)];
    for (int i = peak + step; i >= 0 && i < int(curve.size()) && curve[size_t(i)] <= curve[size_t(peak)]; i += step)
        lowest = std::min(lowest, curve[size_t(i)]);
    return lowest;
}

/// Where the curve falls to `level` on the way from `peak`, between two samples; where it rises again before that, by
/// more than `rise`, the valley.
double CrossingFrom(const std::vector<double> &curve, int peak, int step, double level, double rise)
{
    int i = peak;
    int valley = peak;
    while (i + step >= 0 && i + step < int(curve.size()) && curve[size_t(i + step)] > level) {
        i += step;
        if (curve[size_t(i)] < curve[size_t(valley)])
            valley = i;
        else if (curve[size_t(i)] > curve[size_t(valley)] + rise)
            return valley;
    }
    if (i + step < 0 || i + step >= int(curve.size()))
        return i;
    const double inside = curve[size_t(i)];
    const double outside = curve[size_t(i + step)];
    return inside > outside ? i + step * (inside - level) / (inside - outside) : i;
}

bool IsLocalMaximum(const std::vector<double> &curve, int i)
{
    const bool risesBefore = i == 0 || curve[size_t(i - 1)] < curve[size_t(i)];
    const bool fallsBehind = i + 1 == int(curve.size()) || curve[size_t(i + 1)] <= curve[size_t(i)];
    return risesBefore && fallsBehind;
}

/// The index of the highest sample near where the smooth curve is highest.
int HighestNear(const std::vector<double> &samples, int at)
{
    const int from = std::max(0, at - 2);
    const int to = std::min(int(samples.size()), at + 3);
    return int(std::max_element(samples.begin() + from, samples.begin() + to) - samples.begin());
}

/// The samples that give a line its place, and what they say.
struct LineWindow
{
    int from = 0; ///< samples
    int to = 0;
    double background = 0;
    double limit = std::numeric_limits<double>::infinity(); ///< samples from there on are cut off
    Gaussian shape; ///< height 0 until it was fitted
};

bool IsCutOff(const std::vector<double> &samples, int index, bool standsOut, double saturation)
{
    const double top = samples[size_t(index)];
    const auto isTop = [&](int i) { return i >= 0 && i < int(samples.size()) && samples[size_t(i)] == top; };
    const bool isFlat = (isTop(index + 1) && isTop(index + 2)) || (isTop(index - 1) && isTop(index + 1));
    return top >= saturation || (isFlat && standsOut);
}

/// A sample of those around the top was cut off.
bool IsMarked(const std::vector<quint8> &saturated, int index)
{
    for (int i = std::max(0, index - 1); i <= index + 1 && i < int(saturated.size()); ++i) {
        if (saturated[size_t(i)])
            return true;
    }
    return false;
}

/// A neighbour too close to be a peak of the smooth curve would pull the place to itself: behind a valley of the samples
/// that is deeper than noise makes it, the line ends.
void LeaveOutNeighbours(const std::vector<double> &samples, const SpectralPeak &peak, double noise, LineWindow *window)
{
    constexpr double nothing = -std::numeric_limits<double>::infinity();
    const double rise = std::max(noise, leastValleyShare * peak.height);
    window->from = std::max(window->from, int(CrossingFrom(samples, peak.index, -1, nothing, rise)));
    window->to = std::min(window->to, int(CrossingFrom(samples, peak.index, 1, nothing, rise)));
}

struct FoundLine
{
    SpectralPeak peak;
    LineWindow window;
};

/// Fits every line to what the others leave of the samples, so that neighbours do not pull at each other.
void FitTogether(const std::vector<double> &samples, const std::vector<quint8> &saturated, std::vector<FoundLine> *lines)
{
    for (int round = 0; round < fitRounds; ++round) {
        for (size_t line = 0; line < lines->size(); ++line) {
            LineWindow &window = (*lines)[line].window;
            GaussianFit fit;
            for (int i = window.from; i <= window.to; ++i) {
                if (samples[size_t(i)] >= window.limit || (size_t(i) < saturated.size() && saturated[size_t(i)]))
                    continue;
                double others = 0;
                for (size_t k = line < neighbours ? 0 : line - neighbours; k < std::min(lines->size(), line + neighbours + 1); ++k)
                    others += k != line && (*lines)[k].window.shape.height > 0 ? (*lines)[k].window.shape.At(i) : 0;
                fit.Add(i, samples[size_t(i)] - window.background - others);
            }
            Gaussian shape;
            const bool isFit = fit.Solve(&shape) && shape.position >= window.from && shape.position <= window.to;
            window.shape = isFit ? shape : Gaussian();
        }
    }
}

/// The lines that stand out of the samples smoothed with a Gaussian of `sigma`.
std::vector<FoundLine> LinesAt(double sigma, const std::vector<double> &samples, const std::vector<quint8> &saturated, double noise,
                               const PeakRules &rules)
{
    std::vector<FoundLine> found;
    const std::vector<double> kernel = KernelOf(sigma);
    const std::vector<double> curve = Smoothed(samples, kernel);
    const std::vector<double> background = RunningMedian(curve, backgroundPerHalfWidth * std::max(1, rules.halfWidth));
    const double leastHeight = DeviationsFor(rules.certainty) * noise * NoiseShare(kernel);

    for (int i = 0; i < int(curve.size()); ++i) {
        if (!IsLocalMaximum(curve, i))
            continue;
        SpectralPeak peak;
        peak.height = curve[size_t(i)] - background[size_t(i)];
        if (peak.height <= leastHeight)
            continue;
        const double valley = std::max(LowestOnTheWay(curve, i, -1), LowestOnTheWay(curve, i, 1));
        peak.prominence = curve[size_t(i)] - valley;
        if (peak.prominence <= std::max(leastHeight, leastShareOfHeight * peak.height))
            continue;
        // A line on the flank of another one has its own foot.
        LineWindow window;
        const bool isOnFlank = peak.prominence < shareOfOwnFoot * peak.height;
        window.background = isOnFlank ? valley : background[size_t(i)];
        const double half = isOnFlank ? curve[size_t(i)] - peak.prominence / 2 : curve[size_t(i)] - peak.height / 2;
        const double left = CrossingFrom(curve, i, -1, half, leastHeight);
        const double right = CrossingFrom(curve, i, 1, half, leastHeight);
        // The smoothing has widened the line.
        const double kernelWidth = widthPerSigma * sigma;
        peak.width = std::sqrt(std::max(0.0, (right - left) * (right - left) - kernelWidth * kernelWidth));
        peak.index = HighestNear(samples, i);
        peak.isSaturated = IsCutOff(samples, peak.index, peak.height > 50 * noise, rules.saturation) || IsMarked(saturated, peak.index);
        peak.height = samples[size_t(peak.index)] - background[size_t(i)];
        peak.position = (left + right) / 2;

        const double room = peak.isSaturated ? (right - left) / 4 : 0; // only the flanks are left
        window.from = std::max(0, int(std::floor(left - room)));
        window.to = std::min(int(samples.size()) - 1, int(std::ceil(right + room)));
        if (!peak.isSaturated)
            LeaveOutNeighbours(samples, peak, DeviationsFor(rules.certainty) * noise, &window);
        else
            window.limit = std::min(samples[size_t(peak.index)], rules.saturation);
        found.push_back({peak, window});
    }
    return found;
}

/// Adds what only the wide kernel shows.
void AddFaint(const std::vector<FoundLine> &wide, std::vector<FoundLine> *lines)
{
    const std::vector<FoundLine> narrow = *lines;
    for (const FoundLine &line : wide) {
        const auto isNear = [&](const FoundLine &other) { return std::abs(other.peak.position - line.peak.position) < 3 * wideSigma; };
        if (std::none_of(narrow.begin(), narrow.end(), isNear))
            lines->push_back(line);
    }
    std::sort(lines->begin(), lines->end(), [](const FoundLine &a, const FoundLine &b) { return a.peak.position < b.peak.position; });
}

} // namespace

double DeviationsFor(double certainty)
{
    // Halving the interval: the tail of the normal distribution falls steadily.
    double low = 0;
    double high = 40;
    const double chance = std::pow(10.0, -certainty);
    for (int i = 0; i < 100; ++i) {
        const double middle = (low + high) / 2;
        (0.5 * std::erfc(middle / std::sqrt(2.0)) > chance ? low : high) = middle;
    }
    return high;
}

std::vector<SpectralPeak> FindPeaks(const std::vector<double> &samples, const PeakRules &rules, const std::vector<quint8> &saturated)
{
    std::vector<SpectralPeak> peaks;
    const double noise = EstimateNoise(samples);
    if (int(samples.size()) < leastSamples || std::isnan(noise))
        return peaks;
    std::vector<FoundLine> lines = LinesAt(narrowSigma, samples, saturated, noise, rules);
    AddFaint(LinesAt(wideSigma, samples, saturated, noise, rules), &lines);
    FitTogether(samples, saturated, &lines);
    for (FoundLine &line : lines) {
        if (line.window.shape.height > 0)
            line.peak.position = line.window.shape.position;
        peaks.push_back(line.peak);
    }
    return peaks;
}
