// SPDX-License-Identifier: GPL-3.0-or-later
#include "peakfinder.h"

#include "gaussianfit.h"
#include "matchedfilter.h"
#include "noisealong.h"
#include "runningmedian.h"
#include "spectrumnoise.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// Of the filters, samples: from the sharpest lines of a sensor to those of a wide slit. A line between two of them
/// loses 2 % of its height over the noise at most.
const std::vector<double> sigmas = {0.9, 1.5, 2.5, 4, 6};
constexpr double backgroundSigma = 0.9; // of the filter whose curve tells the background
constexpr int backgroundRounds = 2;
constexpr double clippedDeviations = 3;
constexpr double widthPerSigma = 2.3548; // of a Gaussian, at half of its height
constexpr int backgroundPerHalfWidth = 4; // the running median reaches so far to each side
constexpr int leastSamples = 5;
constexpr int fitRounds = 3;
constexpr size_t neighbours = 2; // to each side
/// Noise that grows with the signal makes bumps on the flank of a strong line.
constexpr double leastShareOfHeight = 0.01;
constexpr double shareOfOwnFoot = 0.3;
constexpr double leastValleyShare = 0.05;
constexpr double leastDeviations = 4; // of the faintest beside many others
/// A line within so many widths of its filter, of this least width, of another one is the same or its flank.
constexpr double nearSigmas = 3;
constexpr double leastNearSigma = 2;
constexpr double usualSamples = 2048;
constexpr double leastThousands = 1e-3;

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
    double deviations; ///< of the noise in its filter, that it stands high
    double sigma;      ///< of its filter
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

/// What is known of a spectrum before lines are looked for.
struct Search
{
    const std::vector<double> &samples;
    const std::vector<quint8> &saturated;
    double saturation;              ///< as in PeakRules
    std::vector<double> background; ///< at each sample
    std::vector<double> noise;      ///< of each sample
    double certainBar;              ///< deviations of a line that needs no others beside it
    double leastBar;                ///< deviations below which nothing is a line
};

/// The mean of the values up to `reach` to each side, each no further from 0 than `most`.
std::vector<double> ClippedMean(const std::vector<double> &values, size_t reach, double most)
{
    std::vector<double> sums(1, 0.0);
    for (const double value : values)
        sums.push_back(sums.back() + std::max(-most, std::min(value, most)));
    std::vector<double> means;
    for (size_t i = 0; i < values.size(); ++i) {
        const size_t from = i > reach ? i - reach : 0;
        const size_t to = std::min(values.size(), i + reach + 1);
        means.push_back((sums[to] - sums[from]) / double(to - from));
    }
    return means;
}

/// A running median does not see lines, but lies too low at the top of a wide hump and is itself noisy there: what it
/// left is put right by means, to which a line counts little.
std::vector<double> BackgroundOf(const std::vector<double> &curve, double noise, int reach)
{
    constexpr double unclipped = std::numeric_limits<double>::infinity();
    std::vector<double> background = ClippedMean(RunningMedian(curve, reach), size_t(reach / 2), unclipped);
    std::vector<double> left(curve.size());
    for (int round = 0; round < backgroundRounds; ++round) {
        for (size_t i = 0; i < curve.size(); ++i)
            left[i] = curve[i] - background[i];
        const std::vector<double> means = ClippedMean(left, size_t(reach), clippedDeviations * noise);
        for (size_t i = 0; i < curve.size(); ++i)
            background[i] += means[i];
    }
    return background;
}

/// The line at a maximum of the filter's curve.
FoundLine LineAt(int i, const std::vector<double> &curve, double valley, double noiseShare, double sigma, const Search &search)
{
    const std::vector<double> &samples = search.samples;
    const double noise = search.noise[size_t(i)];
    const double background = search.background[size_t(i)];
    SpectralPeak peak;
    peak.height = curve[size_t(i)] - background;
    peak.prominence = curve[size_t(i)] - valley;
    // A line on the flank of another one has its own foot.
    LineWindow window;
    const bool isOnFlank = peak.prominence < shareOfOwnFoot * peak.height;
    window.background = isOnFlank ? valley : background;
    const double half = isOnFlank ? curve[size_t(i)] - peak.prominence / 2 : curve[size_t(i)] - peak.height / 2;
    const double rise = search.certainBar * noise * noiseShare;
    const double left = CrossingFrom(curve, i, -1, half, rise);
    const double right = CrossingFrom(curve, i, 1, half, rise);
    // The smoothing has widened the line.
    const double kernelWidth = widthPerSigma * sigma;
    peak.width = std::sqrt(std::max(0.0, (right - left) * (right - left) - kernelWidth * kernelWidth));
    peak.index = HighestNear(samples, i);
    peak.isSaturated = IsCutOff(samples, peak.index, peak.height > 50 * noise, search.saturation) || IsMarked(search.saturated, peak.index);
    peak.height = samples[size_t(peak.index)] - background;
    peak.position = (left + right) / 2;

    const double room = peak.isSaturated ? (right - left) / 4 : 0; // only the flanks are left
    window.from = std::max(0, int(std::floor(left - room)));
    window.to = std::min(int(samples.size()) - 1, int(std::ceil(right + room)));
    if (!peak.isSaturated)
        LeaveOutNeighbours(samples, peak, search.certainBar * noise, &window);
    else
        window.limit = std::min(samples[size_t(peak.index)], search.saturation);
    return {peak, window, 0, sigma};
}

/// The top of a maximum between samples, by a parabola through the three around it.
double TopAt(const std::vector<double> &curve, int i)
{
    if (i == 0 || i + 1 == int(curve.size()))
        return curve[size_t(i)];
    const double slope = (curve[size_t(i + 1)] - curve[size_t(i - 1)]) / 2;
    const double bend = curve[size_t(i + 1)] - 2 * curve[size_t(i)] + curve[size_t(i - 1)];
    return bend < 0 ? curve[size_t(i)] - slope * slope / (2 * bend) : curve[size_t(i)];
}

/// The lines that stand out of the filter's curve, and out of their surroundings.
std::vector<FoundLine> LinesIn(const MatchedFilter &filter, const Search &search)
{
    std::vector<FoundLine> found;
    const std::vector<double> curve = filter.Apply(search.samples);
    for (int i = 0; i < int(curve.size()); ++i) {
        if (!IsLocalMaximum(curve, i))
            continue;
        const double share = filter.NoiseShare(i, int(curve.size()));
        const double noise = search.noise[size_t(i)] * share;
        const double top = TopAt(curve, i);
        const double height = top - search.background[size_t(i)];
        if (height <= search.leastBar * noise)
            continue;
        const double valley = std::max(LowestOnTheWay(curve, i, -1), LowestOnTheWay(curve, i, 1));
        const double prominence = top - valley;
        if (prominence <= std::max(search.leastBar * noise, leastShareOfHeight * height))
            continue;
        FoundLine line = LineAt(i, curve, valley, share, filter.Sigma(), search);
        line.deviations = std::min(height, prominence) / noise;
        found.push_back(line);
    }
    return found;
}

bool IsNear(const FoundLine &line, const std::vector<FoundLine> &others)
{
    return std::any_of(others.begin(), others.end(), [&](const FoundLine &other) {
        return std::abs(other.peak.position - line.peak.position) < nearSigmas * std::max(leastNearSigma, line.sigma);
    });
}

/// Adds the lines of a filter that are certain and that no narrower filter has shown.
void AddCertain(const std::vector<FoundLine> &ofFilter, double bar, std::vector<FoundLine> *lines)
{
    const std::vector<FoundLine> narrower = *lines;
    for (const FoundLine &line : ofFilter) {
        if (line.deviations > bar && (narrower.empty() || !IsNear(line, narrower)))
            lines->push_back(line);
    }
}

/// Where k lines have been found, k times as many false ones are as rare among them as one false peak where there is
/// nothing: the bar falls with each line (Benjamini and Hochberg, Journal of the Royal Statistical Society B 57, 289, 1995).
void AddFaint(std::vector<FoundLine> faint, double falsePeaks, int samples, std::vector<FoundLine> *lines)
{
    std::sort(faint.begin(), faint.end(), [](const FoundLine &a, const FoundLine &b) { return a.deviations > b.deviations; });
    std::vector<FoundLine> apart = *lines;
    for (const FoundLine &line : faint) {
        if (!IsNear(line, apart))
            apart.push_back(line);
    }
    size_t kept = apart.size();
    while (kept > lines->size() && apart[kept - 1].deviations <= BarFor(falsePeaks * double(kept), samples, sigmas))
        --kept;
    apart.resize(kept);
    *lines = std::move(apart);
}

std::vector<FoundLine> LinesOf(const Search &search, double falsePeaks)
{
    std::vector<FoundLine> lines;
    std::vector<FoundLine> faint;
    for (const double sigma : sigmas) {
        const std::vector<FoundLine> found = LinesIn(MatchedFilter(sigma), search);
        AddCertain(found, search.certainBar, &lines);
        faint.insert(faint.end(), found.begin(), found.end());
    }
    AddFaint(std::move(faint), falsePeaks, int(search.samples.size()), &lines);
    std::sort(lines.begin(), lines.end(), [](const FoundLine &a, const FoundLine &b) { return a.peak.position < b.peak.position; });
    return lines;
}

} // namespace

std::vector<SpectralPeak> FindPeaks(const std::vector<double> &samples, const PeakRules &rules, const std::vector<quint8> &saturated)
{
    std::vector<SpectralPeak> peaks;
    const double usualNoise = EstimateNoise(samples);
    const bool areNumbers = std::all_of(samples.begin(), samples.end(), [](double sample) { return std::isfinite(sample); });
    if (int(samples.size()) < leastSamples || !areNumbers || std::isnan(usualNoise))
        return peaks;
    Search search{samples, saturated, rules.saturation, {}, {}, 0, leastDeviations};
    const MatchedFilter filter(backgroundSigma);
    FilteredNoise filtered;
    filtered.curve = filter.Apply(samples);
    filtered.noiseShare = filter.NoiseShare(int(samples.size() / 2), int(samples.size()));
    const int reach = backgroundPerHalfWidth * std::max(1, rules.halfWidth);
    filtered.background = BackgroundOf(filtered.curve, usualNoise * filtered.noiseShare, reach);
    search.noise = NoiseAlong(samples, filtered);
    search.background = std::move(filtered.background);
    // Expected in this spectrum if it is nothing but noise.
    const double falsePeaks = double(samples.size()) / (usualSamples * 1000 * std::max(leastThousands, rules.thousandsPerFalsePeak));
    search.certainBar = BarFor(falsePeaks, int(samples.size()), sigmas);
    std::vector<FoundLine> lines = LinesOf(search, falsePeaks);
    FitTogether(samples, saturated, &lines);
    for (FoundLine &line : lines) {
        if (line.window.shape.height > 0)
            line.peak.position = line.window.shape.position;
        peaks.push_back(line.peak);
    }
    return peaks;
}
