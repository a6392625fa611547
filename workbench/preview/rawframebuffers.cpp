// SPDX-License-Identifier: GPL-3.0-or-later
#include "rawframebuffers.h"

#include <QImage>

#include <cstring>

namespace {
/// Room for what a camera layer keeps before the pixels.
constexpr quint16 HeaderLength = 64;
}

void RawFrameBuffers::FillBack(const QImage &picture)
{
    Record &record = m_records[1 - m_front];
    const int channels = picture.format() == QImage::Format_RGB888 ? 3 : 1;
    const size_t rowBytes = size_t(picture.width()) * channels;
    record.bytes.resize(HeaderLength + rowBytes * picture.height());
    uchar *target = record.bytes.data() + HeaderLength;
    for (int y = 0; y < picture.height(); ++y)
        std::memcpy(target + rowBytes * y, picture.constScanLine(y), rowBytes);

    record.frame.headerLength = HeaderLength;
    record.frame.width = quint16(picture.width());
    record.frame.height = quint16(picture.height());
    record.frame.channels = quint8(channels);
    record.frame.buffer = record.bytes.data();
}

void RawFrameBuffers::Swap()
{
    m_front = 1 - m_front;
    m_hasFront = true;
}

const RawCameraFrame *RawFrameBuffers::Front() const
{
    return m_hasFront ? &m_records[m_front].frame : nullptr;
}
