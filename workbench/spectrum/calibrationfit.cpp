// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibrationfit.h"

#include <QCoreApplication>

#include <cmath>
#include <opencv2/core.hpp>

namespace {

/// Two lines nearer than that are the same peak.
constexpr double samePixel = 0.5;
constexpr double sameNm = 1e-4;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CalibrationFit)
};

SpectralCalibration Solve(const QVector<CalibrationPoint> &points, int degree, int width)
{
    const double half = std::max(1.0, (width - 1) / 2.0);
    cv::Mat powers(points.size(), degree + 1, CV_64F);
    cv::Mat wavelengths(points.size(), 1, CV_64F);
    for (int i = 0; i < points.size(); ++i) {
        double power = 1;
        for (int k = 0; k <= degree; ++k, power *= (points[i].pixel - half) / half)
            powers.at<double>(i, k) = power;
        wavelengths.at<double>(i, 0) = points[i].nm;
    }
    cv::Mat solution;
    cv::solve(powers, wavelengths, solution, cv::DECOMP_SVD);
    QVector<double> coefficients;
    for (int k = 0; k <= degree; ++k)
        coefficients << solution.at<double>(k, 0);
    return SpectralCalibration(coefficients, width);
}

QString FaultOfPair(const CalibrationPoint &one, const CalibrationPoint &other)
{
    if (std::abs(one.pixel - other.pixel) < samePixel)
        return Text::tr("Two points lie at pixel %1 (%2 nm and %3 nm): remove one of them.")
            .arg(one.pixel, 0, 'f', 2).arg(one.nm, 0, 'f', 3).arg(other.nm, 0, 'f', 3);
    if (std::abs(one.nm - other.nm) < sameNm)
        return Text::tr("Two points have the wavelength %1 nm (at pixel %2 and %3): give one of them another line.")
            .arg(one.nm, 0, 'f', 3).arg(one.pixel, 0, 'f', 2).arg(other.pixel, 0, 'f', 2);
    return QString();
}

QString FaultOf(const QVector<CalibrationPoint> &points, int degree, int width)
{
    if (degree < LeastCalibrationDegree || degree > MostCalibrationDegree)
        return Text::tr("The degree must be from %1 to %2.").arg(LeastCalibrationDegree).arg(MostCalibrationDegree);
    for (const CalibrationPoint &point : points) {
        if (!std::isfinite(point.nm) || !(point.pixel >= 0 && point.pixel <= width - 1))
            return Text::tr("The point at pixel %1 lies outside the spectrum of %2 pixels: remove it.").arg(point.pixel).arg(width);
    }
    for (int i = 0; i < points.size(); ++i) {
        for (int k = i + 1; k < points.size(); ++k) {
            const QString fault = FaultOfPair(points[i], points[k]);
            if (!fault.isEmpty())
                return fault;
        }
    }
    if (points.size() <= degree)
        return Text::tr("A polynomial of degree %1 needs at least %2 points and there are %3: assign more lines or choose a lower degree.")
            .arg(degree).arg(degree + 1).arg(points.size());
    return QString();
}

/// In pixels by the slope at that place.
double Residual(const SpectralCalibration &calibration, const CalibrationPoint &point)
{
    return (calibration.Wavelength(point.pixel) - point.nm) / calibration.Dispersion(point.pixel);
}

double RootMeanSquare(const QVector<double> &values)
{
    double sum = 0;
    for (const double value : values)
        sum += value * value;
    return std::sqrt(sum / values.size());
}

QVector<double> LeaveOneOut(const QVector<CalibrationPoint> &points, const SpectralCalibration &whole)
{
    QVector<double> errors;
    if (points.size() < whole.Degree() + 2)
        return errors;
    for (int i = 0; i < points.size(); ++i) {
        QVector<CalibrationPoint> others = points;
        others.remove(i);
        const SpectralCalibration without = Solve(others, whole.Degree(), whole.Width());
        errors << (without.Wavelength(points[i].pixel) - points[i].nm) / whole.Dispersion(points[i].pixel);
    }
    return errors;
}

} // namespace

CalibrationFit FitCalibration(const QVector<CalibrationPoint> &points, int degree, int width)
{
    CalibrationFit fit;
    fit.fault = FaultOf(points, degree, width);
    if (!fit.fault.isEmpty())
        return fit;
    const SpectralCalibration calibration = Solve(points, degree, width);
    double turn = 0;
    if (!calibration.IsSteady(&turn)) {
        fit.fault = Text::tr("With these points the wavelength does not rise or fall steadily (it turns at pixel %1): check which line "
                              "each point has, or choose a lower degree.").arg(turn, 0, 'f', 0);
        return fit;
    }
    fit.calibration = calibration;
    QVector<double> residualsNm;
    for (const CalibrationPoint &point : points) {
        fit.residualsPixel << Residual(calibration, point);
        residualsNm << calibration.Wavelength(point.pixel) - point.nm;
    }
    fit.rmsPixel = RootMeanSquare(fit.residualsPixel);
    fit.rmsNm = RootMeanSquare(residualsNm);
    fit.leaveOneOutErrors = LeaveOneOut(points, calibration);
    fit.leaveOneOutPixel = fit.leaveOneOutErrors.isEmpty() ? -1 : RootMeanSquare(fit.leaveOneOutErrors);
    return fit;
}
