// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "spectralaxis.h"
#include "spectralcalibration.h"
#include "spectralframe.h"
#include "spectralmetadata.h"

#include <QString>

/// What pixels of a spectrum mean: by a calibration of our own or one that came with a file, in the unit wanted.
class CalibratedAxis
{
public:
    /// `frame` is that of the spectrum it was made with, null when that is not known.
    void SetCalibration(const SpectralCalibration &calibration, const SpectralFrame &frame);
    /// Of the picture as it is seen. It holds for spectra along that side; for those along the other one ours does where
    /// it was made on a file, and is not assumed to.
    void SetFileAxis(const SpectralAxis &axis);
    void SetUnit(SpectralUnit unit) { m_unit = unit; }
    /// Of the spectra: their width in pixels, and where they lie on the sensor or in their file; null when that is not
    /// known, and then those as wide as our calibration are taken for calibrated.
    void SetSpectrum(int width, const SpectralFrame &frame);

    /// As it was made.
    const SpectralCalibration &Calibration() const { return m_calibration; }
    /// Our own for the pixels of these spectra: turned around for a mirrored picture, cut to a region, binned. Null where
    /// it does not hold.
    const SpectralCalibration &Fitting() const { return m_fitting; }
    /// The same, as a file of pictures carries it; of no coefficients where it does not hold.
    SpectralRecord Record() const;
    /// Why our own does not hold for these live spectra, for the user; empty when it does.
    QString Misfit() const;
    /// The place in these spectra of a pixel of the spectrum that our own was made with.
    double PixelHere(double calibrated) const;
    int Width() const { return m_width; }
    /// By what came with the file, or by our own calibration where it fits.
    bool IsCalibrated() const;
    /// What At() gives: pixels unless there is a calibration; its own unit where a wavelength or wavenumber of 0 lies in
    /// it, which has no inverse.
    SpectralUnit Unit() const;
    bool IsOwn() const { return !IsByFile() && IsCalibrated(); }
    /// The value at a pixel, counted from 0, beyond the spectrum too.
    double At(double pixel) const;
    /// For the axis: "Wavelength [nm]".
    QString Title() const;

private:
    bool IsByFile() const { return !m_fileAxis.IsEmpty() && m_fileAxis.side == m_frame.Side(); }
    /// Before it is converted.
    SpectralUnit OwnUnit() const;
    double OwnValue(double pixel) const;
    bool HasInverse() const;
    void Fit();
    /// Where our own was made, as these spectra count: an opened picture that brings no calibration, and does not say where
    /// on the sensor it was taken, is assumed to show what a calibration as wide as its file was made with.
    SpectralFrame Calibrated() const;
    double FileValue(double pixel) const;

    SpectralCalibration m_calibration;
    SpectralCalibration m_fitting;
    SpectralFrame m_calibrated; ///< of m_calibration
    SpectralFrame m_frame;
    SpectralAxis m_fileAxis;
    SpectralUnit m_unit = SpectralUnit::Nanometre;
    int m_width = 0;
};
