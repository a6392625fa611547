// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "spectralcalibration.h"

/// What a fit says of itself.
struct CalibrationFit
{
    SpectralCalibration calibration; ///< null when `fault` says why there is none
    QString fault;                   ///< for the user: what is wrong and what to do
    QVector<double> residualsPixel;  ///< of each point: where it is, less where its wavelength should be
    double rmsPixel = 0;
    double rmsNm = 0;
    /// Of each point by a fit without it, pixels; empty with too few points for that.
    QVector<double> leaveOneOutErrors;
    /// Root mean square of the errors of each point by a fit without it, pixels; negative with too few points for that.
    double leaveOneOutPixel = -1;

    bool IsGood() const { return fault.isEmpty() && !calibration.IsNull(); }
};

constexpr int LeastCalibrationDegree = 1;
constexpr int MostCalibrationDegree = 5;

/// Fits a polynomial by least squares (singular values, with the pixel normalised to -1 to 1) for spectra of `width`
/// pixels. Refuses, in words, too few points, equal ones, ones outside, and a curve that is not steady.
CalibrationFit FitCalibration(const QVector<CalibrationPoint> &points, int degree, int width);
