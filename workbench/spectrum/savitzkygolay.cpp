// SPDX-License-Identifier: GPL-3.0-or-later
#include "savitzkygolay.h"

#include <algorithm>

namespace {

/// The Gram polynomial of order k over 2m+1 points at i.
double GramPolynomial(int i, int m, int k)
{
    double before = 0;
    double value = 1;
    for (int order = 1; order <= k; ++order) {
        const double next = (4.0 * order - 2) / (order * (2.0 * m - order + 1)) * i * value
            - (order - 1) * (2.0 * m + order) / (order * (2.0 * m - order + 1)) * before;
        before = value;
        value = next;
    }
    return value;
}

/// a (a-1) … (a-b+1)
double FallingFactorial(int a, int b)
{
    double product = 1;
    for (int i = 0; i < b; ++i)
        product *= a - i;
    return product;
}

/// How much point i of a window counts for the smoothed value at t.
double Weight(int i, int t, int m, int degree)
{
    double sum = 0;
    for (int k = 0; k <= degree; ++k)
        sum += (2 * k + 1) * (FallingFactorial(2 * m, k) / FallingFactorial(2 * m + k + 1, k + 1)) * GramPolynomial(i, m, k)
            * GramPolynomial(t, m, k);
    return sum;
}

std::vector<double> Weights(int t, int m, int degree)
{
    std::vector<double> weights;
    for (int i = -m; i <= m; ++i)
        weights.push_back(Weight(i, t, m, degree));
    return weights;
}

double Sum(const std::vector<double> &samples, int middle, const std::vector<double> &weights)
{
    const int m = int(weights.size()) / 2;
    double sum = 0;
    for (int i = -m; i <= m; ++i)
        sum += weights[size_t(i + m)] * samples[size_t(middle + i)];
    return sum;
}

} // namespace

std::vector<double> SavitzkyGolay(const std::vector<double> &samples, int window, int degree)
{
    const int m = window / 2;
    const int count = int(samples.size());
    if (count < 2 * m + 1 || 2 * m + 1 <= degree)
        return samples;
    std::vector<double> smooth(samples.size());
    const std::vector<double> middleWeights = Weights(0, m, degree);
    for (int i = m; i < count - m; ++i)
        smooth[size_t(i)] = Sum(samples, i, middleWeights);
    for (int t = 1; t <= m; ++t) {
        smooth[size_t(m - t)] = Sum(samples, m, Weights(-t, m, degree));
        smooth[size_t(count - 1 - m + t)] = Sum(samples, count - 1 - m, Weights(t, m, degree));
    }
    return smooth;
}
