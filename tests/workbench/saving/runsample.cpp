// SPDX-License-Identifier: GPL-3.0-or-later
#include "runsample.h"

#include <cstring>

namespace {
constexpr quint64 FirstId = 100;
constexpr qint64 CameraStepNs = 1000000;
constexpr qint64 HostStepNs = 2000000;
constexpr qint64 HostStartNs = 1763700000000000000;
} // namespace

RunFacts RunSample::Facts(const QSize &size, PixelLayout layout)
{
    RunFacts facts;
    facts.vendor = "Maker & Sons";
    facts.model = "C-1";
    facts.serial = "S/N 42";
    facts.firmware = "1.0";
    facts.exposureUs = 12500;
    facts.gain = 1.5;
    facts.framesPerSecond = 500;
    facts.region = QRect(QPoint(16, 8), size * 2);
    facts.binning = QSize(2, 2);
    facts.frameSize = size;
    facts.layout = layout;
    facts.start = QDateTime(QDate(2026, 11, 21), QTime(4, 40), Qt::UTC);
    facts.software = "workbench test";
    return facts;
}

QByteArray RunSample::Samples(const QSize &size, PixelLayout layout, int frame)
{
    const int channels = layout == PixelLayout::Rgb8 ? 3 : 1;
    const int count = size.width() * size.height() * channels;
    const int fullScale = (1 << BitDepth(layout)) - 1;
    const int sampleBytes = BytesPerPixel(layout) / channels;
    QByteArray bytes(count * sampleBytes, Qt::Uninitialized);
    for (int i = 0; i < count; ++i) {
        const auto value = quint16((7 * i + 31 * frame) % (fullScale + 1));
        if (sampleBytes == 1)
            bytes[i] = char(value);
        else
            std::memcpy(bytes.data() + 2 * i, &value, 2);
    }
    return bytes;
}

CameraFrame RunSample::Frame(const QSize &size, PixelLayout layout, int frame, int paddingBytes)
{
    const QByteArray packed = Samples(size, layout, frame);
    const int rowBytes = size.width() * BytesPerPixel(layout);
    const int stride = rowBytes + paddingBytes;
    std::shared_ptr<uchar> pixels(new uchar[size_t(stride) * size_t(size.height())],
                                  std::default_delete<uchar[]>());
    std::memset(pixels.get(), 0xA5, size_t(stride) * size_t(size.height()));
    for (int y = 0; y < size.height(); ++y)
        std::memcpy(pixels.get() + size_t(y) * size_t(stride), packed.constData() + y * rowBytes,
                    size_t(rowBytes));
    CameraFrame result;
    result.pixels = pixels;
    result.width = size.width();
    result.height = size.height();
    result.strideBytes = stride;
    result.layout = layout;
    result.frameId = FirstId + quint64(frame);
    result.cameraTimeNs = frame * CameraStepNs;
    result.hostTimeNs = HostStartNs + frame * HostStepNs;
    return result;
}
