// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lamplines.h"
#include "peakfinder.h"
#include "spectralcalibration.h"

/// What is known before lines are assigned to peaks.
struct AssignmentHints
{
    QVector<Lamp> lamps;
    int width = 0; ///< of the spectrum, pixels
    /// About the wavelengths at its first and last pixel; equal when nothing is known of them.
    double firstNm = 0;
    double lastNm = 0;
    int degree = 3;
};

/// Finds which lamp line each peak is: tries every three strong peaks with every three strong lines, takes the parabolas
/// that explain most, and lets them bend to the degree wanted while they gather more. Peaks that no line explains are
/// left out. Empty when nothing fits well. Takes up to some tenths of a second.
QVector<CalibrationPoint> AssignLines(const std::vector<SpectralPeak> &peaks, const AssignmentHints &hints);

/// The line of the lamps that is nearest to a wavelength, "nm" 0 if there is none within `reachNm`.
CalibrationPoint NearestLine(const QVector<Lamp> &lamps, double nm, double reachNm);
/// The peak nearest to a pixel; null if none is within `reach` pixels.
const SpectralPeak *NearestPeak(const std::vector<SpectralPeak> &peaks, double pixel, double reach);
