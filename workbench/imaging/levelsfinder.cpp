// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelsfinder.h"

#include "levelskernel.h"
#include "sampleview.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

using Histogram = std::vector<qint64>;

template <typename Sample>
void Count(const Sample *samples, int count, Histogram &histogram)
{
    for (int i = 0; i < count; ++i)
        ++histogram[samples[i]];
}

Histogram HistogramOf(const SampleView &samples)
{
    Histogram histogram(samples.Has16BitSamples() ? 65536 : 256, 0);
    for (int y = 0; y < samples.height; ++y) {
        if (samples.Has16BitSamples())
            Count(samples.Row16(y), samples.SamplesPerRow(), histogram);
        else
            Count(samples.Row8(y), samples.SamplesPerRow(), histogram);
    }
    return histogram;
}

/// Value of the sample that has `rank` samples before it when all are sorted.
int ValueAtRank(const Histogram &histogram, qint64 rank)
{
    qint64 before = 0;
    for (size_t value = 0; value < histogram.size(); ++value) {
        before += histogram[value];
        if (before > rank)
            return int(value);
    }
    return int(histogram.size()) - 1;
}

} // namespace

DisplayLevels LevelsFinder::FromRange(const SampleView &samples)
{
    if (samples.IsEmpty())
        return DisplayLevels::FullRange(samples.bitDepth);
    int least = samples.Has16BitSamples() ? 65535 : 255;
    int most = 0;
    for (int y = 0; y < samples.height; ++y) {
        if (samples.Has16BitSamples())
            LevelsKernel::FindRange(samples.Row16(y), samples.SamplesPerRow(), &least, &most);
        else
            LevelsKernel::FindRange(samples.Row8(y), samples.SamplesPerRow(), &least, &most);
    }
    return DisplayLevels{ least, most, 1.0 }.Guarded(samples.bitDepth);
}

DisplayLevels LevelsFinder::FromPercentiles(const SampleView &samples, double low, double high)
{
    if (samples.IsEmpty())
        return DisplayLevels::FullRange(samples.bitDepth);
    const Histogram histogram = HistogramOf(samples);
    const qint64 count = qint64(samples.SamplesPerRow()) * samples.height;
    const auto lowRank = std::clamp(qint64(std::floor(low * double(count))), qint64(0), count - 1);
    const auto highRank = std::clamp(qint64(std::ceil(high * double(count))) - 1, qint64(0), count - 1);
    return DisplayLevels{ ValueAtRank(histogram, lowRank), ValueAtRank(histogram, highRank), 1.0 }.Guarded(
        samples.bitDepth);
}
