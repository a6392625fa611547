// SPDX-License-Identifier: GPL-3.0-or-later
#include "randomsamples.h"

#include <random>

RandomSamples::RandomSamples(QSize size, int bitDepth, bool isColour, quint32 seed)
{
    m_shape.width = size.width();
    m_shape.height = size.height();
    m_shape.bitDepth = bitDepth;
    m_shape.isColour = isColour;
    m_rowSamples = m_shape.SamplesPerRow() + 3;

    std::mt19937 random(seed);
    const quint32 mask = (1u << bitDepth) - 1;
    const size_t count = size_t(m_rowSamples) * size_t(size.height());
    for (size_t i = 0; i < count; ++i) {
        if (bitDepth > 8)
            m_samples16.push_back(quint16(random() & mask));
        else
            m_samples8.push_back(quint8(random() & mask));
    }
}

SampleView RandomSamples::View() const
{
    SampleView view = m_shape;
    const bool is16 = m_shape.Has16BitSamples();
    view.samples = is16 ? reinterpret_cast<const uchar *>(m_samples16.data()) : m_samples8.data();
    view.strideBytes = m_rowSamples * (is16 ? 2 : 1);
    return view;
}

int RandomSamples::At(int x, int y, int channel) const
{
    return m_shape.Has16BitSamples() ? m_samples16[Index(x, y, channel)] : m_samples8[Index(x, y, channel)];
}

void RandomSamples::Set(int x, int y, int value)
{
    if (m_shape.Has16BitSamples())
        m_samples16[Index(x, y, 0)] = quint16(value);
    else
        m_samples8[Index(x, y, 0)] = quint8(value);
}

std::vector<int> RandomSamples::Values() const
{
    std::vector<int> values;
    for (int y = 0; y < m_shape.height; ++y) {
        for (int x = 0; x < m_shape.SamplesPerRow(); ++x)
            values.push_back(m_shape.isColour ? At(x / 3, y, x % 3) : At(x, y));
    }
    return values;
}

size_t RandomSamples::Index(int x, int y, int channel) const
{
    return size_t(y) * size_t(m_rowSamples) + size_t(m_shape.isColour ? 3 * x + channel : x);
}
