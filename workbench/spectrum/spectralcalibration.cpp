// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectralcalibration.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CalibrationPoint)
};

/// The polynomial of `start` + `step` * x: Horner's scheme on polynomials.
QVector<double> Composed(const QVector<double> &coefficients, double start, double step)
{
    QVector<double> result(coefficients.size(), 0.0);
    for (int power = coefficients.size() - 1; power >= 0; --power) {
        QVector<double> next(coefficients.size(), 0.0);
        for (int k = 0; k < result.size(); ++k) {
            next[k] += start * result[k];
            if (k + 1 < next.size())
                next[k + 1] += step * result[k];
        }
        next[0] += coefficients[power];
        result = next;
    }
    return result;
}

} // namespace

QString CalibrationPoint::LineText() const
{
    if (!isSaturated)
        return line;
    return line.isEmpty() ? Text::tr("saturated") : Text::tr("%1 (saturated)").arg(line);
}

SpectralCalibration::SpectralCalibration(const QVector<double> &coefficients, int width)
    : m_coefficients(coefficients)
    , m_width(width)
{
}

double SpectralCalibration::Half() const { return std::max(1.0, (m_width - 1) / 2.0); }

double SpectralCalibration::Normalised(double pixel) const { return (pixel - Half()) / Half(); }

double SpectralCalibration::Wavelength(double pixel) const
{
    const double x = Normalised(pixel);
    double nm = 0;
    for (int power = Degree(); power >= 0; --power)
        nm = nm * x + m_coefficients[power];
    return nm;
}

double SpectralCalibration::Dispersion(double pixel) const
{
    const double x = Normalised(pixel);
    double slope = 0;
    for (int power = Degree(); power >= 1; --power)
        slope = slope * x + power * m_coefficients[power];
    return slope / Half();
}

QVector<double> SpectralCalibration::PixelCoefficients() const { return Composed(m_coefficients, -1, 1 / Half()); }

SpectralCalibration SpectralCalibration::Along(double first, double step, int width) const
{
    const double half = std::max(1.0, (width - 1) / 2.0);
    return SpectralCalibration(Composed(m_coefficients, Normalised(first + step * half), step * half / Half()), width);
}

double SpectralCalibration::PixelAt(double nm) const
{
    double low = 0;
    double high = std::max(0, m_width - 1);
    const bool rises = Wavelength(high) > Wavelength(low);
    for (int i = 0; i < 60; ++i) {
        const double middle = (low + high) / 2;
        ((Wavelength(middle) < nm) == rises ? low : high) = middle;
    }
    return (low + high) / 2;
}

bool SpectralCalibration::IsSteady(double *turn) const
{
    const bool rises = Wavelength(m_width - 1) > Wavelength(0);
    for (int pixel = 0; pixel < m_width; ++pixel) {
        const double slope = Dispersion(pixel);
        if (!std::isfinite(slope) || (slope > 0) != rises || slope == 0) {
            *turn = pixel;
            return false;
        }
    }
    return true;
}
