// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaType>
#include <QString>
#include <QVector>

/// A line of known wavelength, found at a pixel.
struct CalibrationPoint
{
    double pixel = 0;
    double nm = 0;
    QString line; ///< "Hg"; empty for one of no list
    bool isSaturated = false; ///< the top of its peak was cut off: the pixel comes from the flanks

    bool operator==(const CalibrationPoint &other) const
    {
        return pixel == other.pixel && nm == other.nm && line == other.line && isSaturated == other.isSaturated;
    }
    /// For the user, in a table: "Hg (saturated)".
    QString LineText() const;
};
Q_DECLARE_METATYPE(CalibrationPoint)

/// Wavelength in air as a polynomial of the pixel, which is a whole number in the middle of a column, from 0. It rises
/// or falls steadily over the spectrum it was made for. Made by FitCalibration().
class SpectralCalibration
{
public:
    SpectralCalibration() = default;
    /// Lowest power first, of (pixel - middle) / half, which lies between -1 and 1 on `width` pixels.
    SpectralCalibration(const QVector<double> &coefficients, int width);

    bool IsNull() const { return m_coefficients.isEmpty(); }
    int Degree() const { return m_coefficients.size() - 1; }
    int Width() const { return m_width; }
    const QVector<double> &Coefficients() const { return m_coefficients; }
    /// The same as powers of the pixel, for other programs.
    QVector<double> PixelCoefficients() const;

    /// The same for the `width` pixels of another spectrum, whose pixel p is pixel `first` + `step` * p of this one.
    SpectralCalibration Along(double first, double step, int width) const;

    double Wavelength(double pixel) const;
    /// nm for each pixel
    double Dispersion(double pixel) const;
    /// The pixel that has this wavelength; beyond the spectrum the end that is nearer to it.
    double PixelAt(double nm) const;
    /// Neither turns around nor stands still from its first to its last pixel; `turn` says where it does.
    bool IsSteady(double *turn) const;

private:
    double Half() const;
    double Normalised(double pixel) const;

    QVector<double> m_coefficients;
    int m_width = 0;
};
