// SPDX-License-Identifier: GPL-3.0-or-later
#include "linetilt.h"

#include "lineassignment.h"
#include "peakfinder.h"
#include "rowbinning.h"
#include "sampleview.h"
#include "spectrumnoise.h"

#include <QtMath>

#include <algorithm>

namespace {

constexpr int mostSlices = 12;
constexpr int leastSlices = 3;
/// How far a line may lean away between the middle and the ends of the band, pixels.
constexpr double reachPixels = 12;

struct Slice
{
    double row; ///< its middle
    std::vector<SpectralPeak> peaks;
};

std::vector<SpectralPeak> PeaksOfRows(const SampleView &picture, int top, int bottom)
{
    BinnedLine line;
    BinRows(picture, top, bottom, &line);
    return FindPeaks(std::vector<double>(line.sums.begin(), line.sums.end()));
}

/// Slope of the straight line through the points, and its value at the mean of x.
struct Straight
{
    double slope = 0;
    double meanX = 0;
    double meanY = 0;
};

Straight FitStraight(const std::vector<std::pair<double, double>> &points)
{
    Straight fit;
    for (const auto &point : points) {
        fit.meanX += point.first / double(points.size());
        fit.meanY += point.second / double(points.size());
    }
    double xx = 0;
    double xy = 0;
    for (const auto &point : points) {
        xx += (point.first - fit.meanX) * (point.first - fit.meanX);
        xy += (point.first - fit.meanX) * (point.second - fit.meanY);
    }
    fit.slope = xx > 0 ? xy / xx : 0;
    return fit;
}

} // namespace

std::vector<LineFocus> MeasureLines(const SampleView &picture, int top, int bottom, int mostLines)
{
    std::vector<LineFocus> lines;
    top = qBound(0, top, picture.height);
    bottom = qBound(top, bottom, picture.height);
    const int slices = std::min(mostSlices, bottom - top);
    if (picture.IsEmpty() || slices < leastSlices)
        return lines;
    std::vector<SpectralPeak> peaks = PeaksOfRows(picture, top, bottom);
    std::sort(peaks.begin(), peaks.end(), [](const SpectralPeak &a, const SpectralPeak &b) { return a.height > b.height; });
    peaks.resize(std::min(peaks.size(), size_t(std::max(0, mostLines))));

    std::vector<Slice> cut;
    for (int i = 0; i < slices; ++i) {
        const int from = top + (bottom - top) * i / slices;
        const int to = top + (bottom - top) * (i + 1) / slices;
        cut.push_back({(from + to - 1) / 2.0, PeaksOfRows(picture, from, to)});
    }
    for (const SpectralPeak &peak : peaks) {
        std::vector<std::pair<double, double>> places;
        std::vector<double> widths;
        for (const Slice &slice : cut) {
            if (const SpectralPeak *here = NearestPeak(slice.peaks, peak.position, reachPixels)) {
                places.emplace_back(slice.row, here->position);
                widths.push_back(here->width);
            }
        }
        if (int(places.size()) < leastSlices)
            continue;
        const Straight straight = FitStraight(places);
        LineFocus line;
        line.tiltDegrees = qRadiansToDegrees(std::atan(straight.slope));
        line.width = MedianOf(widths);
        line.column = straight.meanY + straight.slope * ((top + bottom - 1) / 2.0 - straight.meanX);
        const int half = int(std::ceil(line.width + std::abs(straight.slope) * (bottom - top) / 2)) + 2;
        line.area = QRect(qRound(line.column) - half, top, 2 * half + 1, bottom - top) & QRect(0, 0, picture.width, picture.height);
        lines.push_back(line);
    }
    std::sort(lines.begin(), lines.end(), [](const LineFocus &a, const LineFocus &b) { return a.column < b.column; });
    return lines;
}
