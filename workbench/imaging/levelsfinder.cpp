// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelsfinder.h"

#include "levelskernel.h"
#include "samplehistogram.h"
#include "sampleview.h"

#include <algorithm>
#include <cmath>

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

DisplayLevels LevelsFinder::FromPercentiles(const SampleView &samples, double low, double high, int rowStep)
{
    if (samples.IsEmpty())
        return DisplayLevels::FullRange(samples.bitDepth);
    const SampleHistogram histogram(samples, rowStep);
    const qint64 count = histogram.Total();
    const auto lowRank = std::clamp(qint64(std::floor(low * double(count))), qint64(0), count - 1);
    const auto highRank = std::clamp(qint64(std::ceil(high * double(count))) - 1, qint64(0), count - 1);
    return DisplayLevels{ histogram.ValueAtRank(lowRank), histogram.ValueAtRank(highRank), 1.0 }.Guarded(
        samples.bitDepth);
}
