// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <limits>
#include <vector>

/// A line of a spectrum.
struct SpectralPeak
{
    int index = 0;         ///< of its highest sample
    double position = 0;   ///< samples, with fractions
    double height = 0;     ///< above the background
    double prominence = 0; ///< above the higher of the valleys that part it from higher ones
    double width = 0;      ///< full width at half of the prominence, samples
    bool isSaturated = false; ///< its top is cut off; the position comes from its flanks
};

/// What counts as a peak.
struct PeakRules
{
    /// The half width of the widest line, samples. The background is a running median over eight times as much.
    int halfWidth = 15;
    /// Of spectra of 2048 samples of white noise, so many thousands have one false peak among them.
    double thousandsPerFalsePeak = 10;
    /// A sample of that or more is cut off. Two or more equal highest samples side by side count as cut off too when
    /// they stand far above the noise.
    double saturation = std::numeric_limits<double>::infinity();
};

/// The peaks of a spectrum, by rising position. Matched filters of five line widths show where they are, above a bar in
/// the noise of the filter (see BarFor()). The samples themselves give the position: a Gaussian fitted by weighted least
/// squares to the logarithm (Guo, IEEE Signal Processing Magazine 28, 134, 2011), leaving out samples that are cut off:
/// those that look so, and those that `saturated` marks with 1 where it is not empty. The sum of many rows of which few
/// are saturated looks like any other.
std::vector<SpectralPeak> FindPeaks(const std::vector<double> &samples, const PeakRules &rules = PeakRules(),
                                    const std::vector<quint8> &saturated = {});
