// SPDX-License-Identifier: GPL-3.0-or-later
#include "picture.h"

#include <cstring>
#include <new>

namespace {

/// Many processors copy several times more slowly to an address that lies, within its page, a few bytes behind the
/// source's. The samples of most files begin a few bytes into a page, so those of a picture begin with one, unless
/// they are to lie in their pages as they do in the file.
constexpr size_t PageBytes = 4096;
constexpr std::align_val_t BufferAlignment{PageBytes};

/// `place` is less than a page.
std::shared_ptr<uchar> NewBuffer(qint64 bytes, size_t place)
{
    const std::shared_ptr<uchar> buffer(static_cast<uchar *>(::operator new(size_t(bytes) + PageBytes, BufferAlignment)),
                                        [](uchar *start) { ::operator delete(start, BufferAlignment); });
    return {buffer, buffer.get() + place};
}

uchar *PageOf(uchar *address)
{
    return address - reinterpret_cast<quintptr>(address) % PageBytes;
}

} // namespace

Picture::Picture(int width, int height, int channels, SampleType type)
    : m_width(width)
    , m_height(height)
    , m_channels(channels)
    , m_type(type)
{
    m_samples = NewBuffer(ByteCount(), 0);
}

uchar *Picture::Data()
{
    if (m_samples.use_count() > 1) {
        const std::shared_ptr<uchar> shared = m_samples;
        m_samples = NewBuffer(ByteCount(), 0);
        std::memcpy(m_samples.get(), shared.get(), size_t(ByteCount()));
    }
    return m_samples.get();
}

void Picture::Reshape(int width, int height, int channels, SampleType type, quint64 fileOffset)
{
    const qint64 bytes = qint64(width) * height * channels * BytesPerSample(type);
    const size_t place = fileOffset % BytesPerSample(type) == 0 ? fileOffset % PageBytes : 0;
    if (!m_samples || m_samples.use_count() > 1 || ByteCount() != bytes) {
        m_samples.reset(); // the old frame goes before the new one is allocated
        m_samples = NewBuffer(bytes, place);
    } else {
        m_samples = {m_samples, PageOf(m_samples.get()) + place};
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
