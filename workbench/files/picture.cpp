// SPDX-License-Identifier: GPL-3.0-or-later
#include "picture.h"

#include <cstring>

Picture::Picture(int width, int height, int channels, SampleType type)
    : m_width(width)
    , m_height(height)
    , m_channels(channels)
    , m_type(type)
{
    m_samples = std::make_shared<Buffer>(size_t(ByteCount()));
}

uchar *Picture::Data()
{
    if (!m_samples)
        return nullptr;
    if (m_samples.use_count() > 1)
        m_samples = std::make_shared<Buffer>(*m_samples);
    return m_samples->data();
}

void Picture::Reshape(int width, int height, int channels, SampleType type)
{
    const qint64 bytes = qint64(width) * height * channels * BytesPerSample(type);
    if (!m_samples || m_samples.use_count() > 1 || qint64(m_samples->size()) != bytes) {
        m_samples.reset(); // the old frame goes before the new one is allocated
        *this = Picture(width, height, channels, type);
        return;
    }
    m_width = width;
    m_height = height;
    m_channels = channels;
    m_type = type;
}

bool Picture::operator==(const Picture &other) const
{
    return Size() == other.Size() && m_channels == other.m_channels && m_type == other.m_type
        && IsNull() == other.IsNull() && (IsNull() || std::memcmp(Data(), other.Data(), size_t(ByteCount())) == 0);
}
