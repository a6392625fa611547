// SPDX-License-Identifier: GPL-3.0-or-later
#include "linescreening.h"

#include "calibrationfit.h"
#include "spectrumnoise.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr size_t strongPeaks = 16;
/// A peak's width may differ from the usual one by that share: noise, and lines that lie between pixels.
constexpr double widthTolerance = 0.25;
constexpr double comparableShare = 0.2;
constexpr double sameNm = 1e-3;
constexpr double mostDeviations = 3;
constexpr double deviationPerMedian = 1.4826; // of the absolute values of a normal distribution
/// No peak's place is known better than that.
constexpr double leastDeviationPixels = 0.01;

/// The strength of the line in the lists of the lamps; 0 where it is in none.
double StrengthOf(double nm, const QVector<Lamp> &lamps)
{
    double strength = 0;
    for (const Lamp lamp : lamps) {
        for (const LampLine &line : LinesOf(lamp))
            strength = std::abs(line.nm - nm) < sameNm ? std::max(strength, line.strength) : strength;
    }
    return strength;
}

bool IsBlend(const CalibrationPoint &point, const QVector<Lamp> &lamps, const SpectralCalibration &calibration, double width)
{
    const double own = StrengthOf(point.nm, lamps);
    const double widthNm = width * std::abs(calibration.Dispersion(point.pixel));
    return std::any_of(lamps.begin(), lamps.end(), [&](Lamp lamp) {
        const QVector<LampLine> &lines = LinesOf(lamp);
        return std::any_of(lines.begin(), lines.end(), [&](const LampLine &line) {
            const double off = std::abs(line.nm - point.nm);
            return off >= sameNm && off < widthNm && line.strength >= comparableShare * own;
        });
    });
}

/// The index of the point farthest off the curve; -1 when none is too far.
int OutlierOf(const QVector<double> &residuals)
{
    std::vector<double> sizes;
    for (const double residual : residuals)
        sizes.push_back(std::abs(residual));
    const double deviation = std::max(leastDeviationPixels, deviationPerMedian * MedianOf(sizes));
    const auto farthest = std::max_element(sizes.begin(), sizes.end());
    return farthest != sizes.end() && *farthest > mostDeviations * deviation ? int(farthest - sizes.begin()) : -1;
}

} // namespace

int LeastScreenedPoints(int degree) { return 2 * (degree + 1); }

double UsualWidth(const std::vector<SpectralPeak> &peaks)
{
    std::vector<SpectralPeak> strong;
    for (const SpectralPeak &peak : peaks) {
        if (peak.width > 0 && !peak.isSaturated)
            strong.push_back(peak);
    }
    std::sort(strong.begin(), strong.end(), [](const SpectralPeak &a, const SpectralPeak &b) { return a.height > b.height; });
    strong.resize(std::min(strong.size(), strongPeaks));
    std::vector<double> widths;
    for (const SpectralPeak &peak : strong)
        widths.push_back(peak.width);
    return MedianOf(widths);
}

std::vector<SpectralPeak> PeaksOfWidth(const std::vector<SpectralPeak> &peaks, double width)
{
    std::vector<SpectralPeak> usual;
    // One that is cut off has lost its half height: its width says nothing.
    std::copy_if(peaks.begin(), peaks.end(), std::back_inserter(usual), [width](const SpectralPeak &peak) {
        return peak.isSaturated || std::abs(peak.width - width) <= widthTolerance * width;
    });
    return usual;
}

QVector<CalibrationPoint> WithoutBlends(const QVector<CalibrationPoint> &points, const QVector<Lamp> &lamps,
                                        const SpectralCalibration &calibration, double width, int least)
{
    QVector<CalibrationPoint> apart;
    for (const CalibrationPoint &point : points) {
        if (!IsBlend(point, lamps, calibration, width))
            apart << point;
    }
    return apart.size() >= least ? apart : points;
}

QVector<CalibrationPoint> WithoutOutliers(QVector<CalibrationPoint> points, int degree, int spectrumWidth, int least)
{
    while (points.size() > least) {
        const CalibrationFit fit = FitCalibration(points, degree, spectrumWidth);
        const int outlier = fit.IsGood() ? OutlierOf(fit.residualsPixel) : -1;
        if (outlier < 0)
            break;
        points.remove(outlier);
    }
    return points;
}
