// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

/// A filter with the shape of a line, a Gaussian: of all filters it lifts a line of its width highest above white noise
/// (Turin, IRE Transactions on Information Theory 6, 311, 1960). A line of height h and width sigma, in samples of noise
/// s, stands h / s * sqrt(sigma * sqrt(pi)) deviations high in it.
class MatchedFilter
{
public:
    /// `sigma` in samples.
    explicit MatchedFilter(double sigma);

    double Sigma() const { return m_sigma; }
    /// Mirrored at the ends.
    std::vector<double> Apply(const std::vector<double> &samples) const;
    /// What it leaves of white noise of 1 at a sample of `count`; more at the ends, where it sees samples twice.
    double NoiseShare(int index, int count) const;

private:
    const double m_sigma;
    std::vector<double> m_weights;
    double m_noiseShare;
};

/// How many deviations a filter's output must stand high, so that a spectrum of `samples` of white noise has no more than
/// `falsePeaks` false peaks on average in all the filters of these widths together. From the number of maxima of Gaussian
/// noise above a high bar (Rice, Bell System Technical Journal 24, 46, 1945).
double BarFor(double falsePeaks, int samples, const std::vector<double> &sigmas);
