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

/// The index of the point farthest off the curve; -1 when none is too far. The residual that a point has in the fit times
/// the one it has without being in it is what leaving it out takes off the sum of squares.
int OutlierOf(const CalibrationFit &fit)
{
    const int count = fit.leaveOneOutErrors.size();
    const int free = count - fit.calibration.Degree() - 2; // of the others, fitted alone
    int outlier = -1;
    double most = mostDeviations;
    for (int i = 0; i < count && free > 0; ++i) {
        const double taken = fit.residualsPixel[i] * fit.leaveOneOutErrors[i];
        const double left = std::max(0.0, count * fit.rmsPixel * fit.rmsPixel - taken);
        const double deviations = std::sqrt(std::max(0.0, taken)) / std::max(leastDeviationPixels, std::sqrt(left / free));
        if (deviations <= most)
            continue;
        most = deviations;
        outlier = i;
    }
    return outlier;
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

std::vector<SpectralPeak> PeaksOfWidth(const std::vector<SpectralPeak> &peaks, double width, int least)
{
    // One that is cut off has lost its half height: its width says nothing.
    const auto oddness = [width](const SpectralPeak &peak) { return peak.isSaturated ? 0 : std::abs(peak.width - width); };
    std::vector<double> all;
    for (const SpectralPeak &peak : peaks)
        all.push_back(oddness(peak));
    std::sort(all.begin(), all.end());
    const size_t needed = std::min(all.size(), size_t(std::max(0, least)));
    const double ofLeast = needed > 0 ? all[needed - 1] : 0;
    const double most = std::max(widthTolerance * width, ofLeast);
    std::vector<SpectralPeak> usual;
    std::copy_if(peaks.begin(), peaks.end(), std::back_inserter(usual), [&](const SpectralPeak &peak) { return oddness(peak) <= most; });
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
        const int outlier = fit.IsGood() ? OutlierOf(fit) : -1;
        if (outlier < 0)
            break;
        points.remove(outlier);
    }
    return points;
}
