// SPDX-License-Identifier: GPL-3.0-or-later
#include "samplehistogram.h"

#include "sampleview.h"

#include <algorithm>

namespace {

template <typename Sample>
void Count(const Sample *samples, int count, quint32 *counts)
{
    for (int i = 0; i < count; ++i)
        ++counts[samples[i]];
}

} // namespace

SampleHistogram::SampleHistogram(const SampleView &samples, int rowStep)
    : m_bitDepth(samples.bitDepth)
    , m_counts(samples.Has16BitSamples() ? 65536 : 256, 0)
{
    if (samples.IsEmpty())
        return;
    for (int y = 0; y < samples.height; y += rowStep) {
        if (samples.Has16BitSamples())
            Count(samples.Row16(y), samples.SamplesPerRow(), m_counts.data());
        else
            Count(samples.Row8(y), samples.SamplesPerRow(), m_counts.data());
        m_total += samples.SamplesPerRow();
    }
}

int SampleHistogram::ValueAtRank(qint64 rank) const
{
    qint64 before = 0;
    for (size_t value = 0; value < m_counts.size(); ++value) {
        before += m_counts[value];
        if (before > rank)
            return int(value);
    }
    return int(m_counts.size()) - 1;
}

std::vector<qint64> SampleHistogram::Condensed(int columns) const
{
    std::vector<qint64> condensed(size_t(columns), 0);
    const int valueCount = 1 << m_bitDepth;
    for (size_t value = 0; value < m_counts.size(); ++value) {
        // A camera may set bits above its depth; such samples count as full scale.
        const auto inDepth = std::min(qint64(value), qint64(valueCount) - 1);
        condensed[size_t(inDepth * columns / valueCount)] += m_counts[value];
    }
    return condensed;
}
