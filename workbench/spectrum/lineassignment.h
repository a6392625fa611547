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

/// Lines that were assigned, and how many peaks were left out because their place is that of no one line.
struct AssignedLines
{
    QVector<CalibrationPoint> points; ///< empty when nothing fits well
    int oddWidths = 0;                ///< peaks broader or narrower than the lines of this spectrum
    int blends = 0;                   ///< two lines of the lamps in one peak
    int outliers = 0;                 ///< far off the curve of the others
};

/// Finds which lamp line each peak is: tries every three strong peaks with every three strong lines, takes the parabolas
/// that explain most, and lets them bend to the degree wanted while they gather more. Peaks that no line explains are
/// left out, and, where enough others are left, those that would pull the curve aside (linescreening.h). Takes up to some
/// tenths of a second.
AssignedLines AssignLines(const std::vector<SpectralPeak> &peaks, const AssignmentHints &hints);

/// The line of the lamps that is nearest to a wavelength, "nm" 0 if there is none within `reachNm`.
CalibrationPoint NearestLine(const QVector<Lamp> &lamps, double nm, double reachNm);
/// The peak nearest to a pixel; null if none is within `reach` pixels.
const SpectralPeak *NearestPeak(const std::vector<SpectralPeak> &peaks, double pixel, double reach);
