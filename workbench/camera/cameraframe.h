// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaType>
#include <QRect>
#include <QString>
#include <QVector>
#include <memory>

/// How the samples of a frame lie in memory. 12-bit samples take 16 bits, the upper four being zero;
/// 16-bit samples are in host byte order.
enum class PixelLayout
{
    Mono8,
    Mono12,
    Mono16,
    Rgb8
};

int BytesPerPixel(PixelLayout layout);
/// Bits of a sample that carry light: 8, 12 or 16.
int BitDepth(PixelLayout layout);
/// The GenICam name, which is also what users read: "Mono8", "Mono12", "Mono16", "RGB8".
QString PixelLayoutName(PixelLayout layout);

/// Which pixels of which camera a frame shows.
struct FrameOrigin
{
    QString camera;  ///< its name as it is kept; empty when it is not known
    QRect region;    ///< sensor pixels, unbinned; null when it is not known
    int binning = 1; ///< sensor pixels along each side of a pixel of the frame
};

/// One frame as the camera sent it. Copies share the pixels, which nobody writes any more: a frame may be handed to
/// any thread. The memory goes back to its stream when the last copy goes.
struct CameraFrame
{
    std::shared_ptr<const uchar> pixels;
    int width = 0;
    int height = 0;
    int strideBytes = 0; ///< from one row to the next
    PixelLayout layout = PixelLayout::Mono8;
    quint64 frameId = 0; ///< the camera's count since the start, unwrapped to 64 bits: a gap is a lost frame
    qint64 cameraTimeNs = 0; ///< by the camera's clock
    qint64 hostTimeNs = 0;   ///< arrival, since 1970
    FrameOrigin origin;

    bool IsNull() const { return !pixels; }
    int BitDepth() const { return ::BitDepth(layout); }
    qint64 ByteCount() const { return qint64(strideBytes) * height; }
    const uchar *Row(int y) const { return pixels.get() + qptrdiff(y) * strideBytes; }
};

Q_DECLARE_METATYPE(CameraFrame)
Q_DECLARE_METATYPE(PixelLayout)
