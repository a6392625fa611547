// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "spectralaxis.h"
#include "spectralcalibration.h"

#include <QString>

/// What pixels of a spectrum mean: by a calibration of our own or one that came with a file, in the unit wanted.
class CalibratedAxis
{
public:
    void SetCalibration(const SpectralCalibration &calibration) { m_calibration = calibration; }
    void SetFileAxis(const SpectralAxis &axis) { m_fileAxis = axis; }
    void SetUnit(SpectralUnit unit) { m_unit = unit; }
    /// Of the spectra, pixels. A spectrum of another width than our calibration comes from another part of the sensor, of
    /// which nothing is known.
    void SetWidth(int width) { m_width = width; }

    const SpectralCalibration &Calibration() const { return m_calibration; }
    const SpectralAxis &FileAxis() const { return m_fileAxis; }
    int Width() const { return m_width; }
    /// By what came with the file, or by our own calibration where it fits.
    bool IsCalibrated() const;
    /// What At() gives: pixels unless there is a calibration.
    SpectralUnit Unit() const;
    bool IsOwn() const { return m_fileAxis.IsEmpty() && IsCalibrated(); }
    /// The value at a pixel, counted from 0, beyond the spectrum too.
    double At(double pixel) const;
    /// For the axis: "Wavelength [nm]".
    QString Title() const;

private:
    double FileValue(double pixel) const;

    SpectralCalibration m_calibration;
    SpectralAxis m_fileAxis;
    SpectralUnit m_unit = SpectralUnit::Nanometre;
    int m_width = 0;
};
