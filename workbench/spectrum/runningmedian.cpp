// SPDX-License-Identifier: GPL-3.0-or-later
#include "runningmedian.h"

#include "spectrumnoise.h"

#include <algorithm>

std::vector<double> RunningMedian(const std::vector<double> &samples, int reach)
{
    const int count = int(samples.size());
    const int stride = std::max(1, reach / 8);
    const auto medianAt = [&](int i) {
        const int from = std::max(0, i - reach);
        const int to = std::min(count, i + reach + 1);
        return MedianOf(std::vector<double>(samples.begin() + from, samples.begin() + to));
    };
    std::vector<double> medians(samples.size());
    if (count == 0)
        return medians;
    double before = medianAt(0);
    medians[0] = before;
    for (int last = 0; last + 1 < count;) {
        const int next = std::min(count - 1, last + stride);
        const double median = medianAt(next);
        for (int i = last + 1; i <= next; ++i)
            medians[size_t(i)] = before + (median - before) * (i - last) / (next - last);
        before = median;
        last = next;
    }
    return medians;
}
