// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lamplines.h"
#include "peakfinder.h"
#include "spectralcalibration.h"

/// Fewer points than twice the coefficients of a polynomial say nothing of each other: none is left out below that.
int LeastScreenedPoints(int degree);

/// The median of the strongest ones, samples; all lines of a spectrum are about as wide as its slit makes them. 0 of none.
double UsualWidth(const std::vector<SpectralPeak> &peaks);

/// Those of about that width, at least the `least` that are nearest to it: a broader peak is two lines or more, and one
/// that has lost a flank to its neighbour looks narrow.
std::vector<SpectralPeak> PeaksOfWidth(const std::vector<SpectralPeak> &peaks, double width, int least);

/// Without those that have another line of the lamps, not much weaker, within a peak of `width` pixels: the place of such
/// a peak belongs to neither. All where fewer than `least` were left.
QVector<CalibrationPoint> WithoutBlends(const QVector<CalibrationPoint> &points, const QVector<Lamp> &lamps,
                                        const SpectralCalibration &calibration, double width, int least);

/// Without those that lie off the curve by more than three deviations of the others fitted alone (the externally
/// studentised residual; Cook and Weisberg, Residuals and Influence in Regression, 1982): the farthest goes, the curve is
/// fitted again, and so on while more than `least` are left.
QVector<CalibrationPoint> WithoutOutliers(QVector<CalibrationPoint> points, int degree, int spectrumWidth, int least);
