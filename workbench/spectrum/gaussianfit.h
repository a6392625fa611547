// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

struct Gaussian
{
    double position = 0;
    double height = 0;
    double sigma = 0;

    double At(double x) const;
};

/// Fits a Gaussian without background to samples: a parabola through their logarithms, by least squares weighted with
/// the square of the fitted value, so that the weak samples on the flanks do not spoil it (Guo, IEEE Signal Processing
/// Magazine 28, 134, 2011).
class GaussianFit
{
public:
    /// Samples that are not above nothing are left out.
    void Add(double x, double y);
    /// False when the samples have no top.
    bool Solve(Gaussian *gaussian) const;

private:
    struct Sample
    {
        double x;
        double y;
    };
    struct Parabola
    {
        double a, b, c; ///< a + b x + c x²
    };

    bool Fit(const std::vector<double> &weights, Parabola *parabola) const;

    std::vector<Sample> m_samples;
};
