// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sampletype.h"

#include <QSize>

#include <memory>

/// The samples of one frame, as measured: one channel (mono) or three (red, green, blue, interleaved),
/// rows packed without padding, the top row first. Implicitly shared: a copy is cheap, writing detaches.
class Picture
{
public:
    Picture() = default;
    /// The samples are not initialised. Throws std::bad_alloc when there is no memory.
    Picture(int width, int height, int channels, SampleType type);

    bool IsNull() const { return !m_samples; }
    int Width() const { return m_width; }
    int Height() const { return m_height; }
    QSize Size() const { return QSize(m_width, m_height); }
    int Channels() const { return m_channels; }
    SampleType Type() const { return m_type; }

    int BytesPerPixel() const { return m_channels * BytesPerSample(m_type); }
    qint64 BytesPerRow() const { return qint64(m_width) * BytesPerPixel(); }
    qint64 ByteCount() const { return BytesPerRow() * m_height; }

    const uchar *Data() const { return m_samples.get(); }
    uchar *Data();
    const uchar *Row(int y) const { return Data() + y * BytesPerRow(); }
    uchar *Row(int y) { return Data() + y * BytesPerRow(); }
    /// Row y as samples of type T, which must be the C++ type of Type(); Width() * Channels() of them.
    template <typename T>
    const T *Samples(int y) const { return reinterpret_cast<const T *>(Row(y)); }
    template <typename T>
    T *Samples(int y) { return reinterpret_cast<T *>(Row(y)); }

    /// Takes this shape, keeping the buffer if it fits and nobody shares it. The samples are undefined after. They
    /// begin `fileOffset` bytes, as far as their type allows, into a page of memory: bytes from there in a file are
    /// read quickest, page by page.
    void Reshape(int width, int height, int channels, SampleType type, quint64 fileOffset = 0);

    /// Same shape and, byte for byte, the same samples.
    bool operator==(const Picture &other) const;
    bool operator!=(const Picture &other) const { return !(*this == other); }

private:
    int m_width = 0;
    int m_height = 0;
    int m_channels = 1;
    SampleType m_type = SampleType::U8;
    /// No vector: a frame is always written whole, and clearing it first is lost time. The buffer has room for the
    /// samples from any place in its first page on.
    std::shared_ptr<uchar> m_samples;
};
