// SPDX-License-Identifier: GPL-3.0-or-later
#include "gaussianfit.h"

#include <cmath>

namespace {
constexpr int rounds = 4; // the position moves by less than a thousandth of a sample after that
}

double Gaussian::At(double x) const
{
    const double deviations = (x - position) / sigma;
    return height * std::exp(-0.5 * deviations * deviations);
}

void GaussianFit::Add(double x, double y)
{
    if (y > 0)
        m_samples.push_back({x, y});
}

bool GaussianFit::Solve(Gaussian *gaussian) const
{
    if (m_samples.size() < 3)
        return false;
    std::vector<double> weights;
    for (const Sample &sample : m_samples)
        weights.push_back(sample.y * sample.y);
    const double origin = m_samples.front().x;
    Parabola parabola{};
    for (int round = 0; round < rounds; ++round) {
        if (!Fit(weights, &parabola) || parabola.c >= 0)
            return false;
        for (size_t i = 0; i < m_samples.size(); ++i) {
            const double x = m_samples[i].x - origin;
            weights[i] = std::exp(2 * (parabola.a + parabola.b * x + parabola.c * x * x));
        }
    }
    gaussian->position = origin - parabola.b / (2 * parabola.c);
    gaussian->sigma = std::sqrt(-0.5 / parabola.c);
    gaussian->height = std::exp(parabola.a - parabola.b * parabola.b / (4 * parabola.c));
    return std::isfinite(gaussian->position) && std::isfinite(gaussian->height);
}

/// The normal equations, by Cramer's rule.
bool GaussianFit::Fit(const std::vector<double> &weights, Parabola *parabola) const
{
    double s[5] = {};
    double t[3] = {};
    const double origin = m_samples.front().x;
    for (size_t i = 0; i < m_samples.size(); ++i) {
        const double x = m_samples[i].x - origin;
        const double logarithm = std::log(m_samples[i].y);
        double power = weights[i];
        for (int k = 0; k < 5; ++k, power *= x) {
            s[k] += power;
            if (k < 3)
                t[k] += power * logarithm;
        }
    }
    const auto determinant = [](double a, double b, double c, double d, double e, double f, double g, double h, double i) {
        return a * (e * i - f * h) - b * (d * i - f * g) + c * (d * h - e * g);
    };
    const double whole = determinant(s[0], s[1], s[2], s[1], s[2], s[3], s[2], s[3], s[4]);
    if (!std::isnormal(whole))
        return false;
    parabola->a = determinant(t[0], s[1], s[2], t[1], s[2], s[3], t[2], s[3], s[4]) / whole;
    parabola->b = determinant(s[0], t[0], s[2], s[1], t[1], s[3], s[2], t[2], s[4]) / whole;
    parabola->c = determinant(s[0], s[1], t[0], s[1], s[2], t[1], s[2], s[3], t[2]) / whole;
    return std::isfinite(parabola->a) && std::isfinite(parabola->b) && std::isfinite(parabola->c);
}
