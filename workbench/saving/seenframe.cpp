// SPDX-License-Identifier: GPL-3.0-or-later
#include "seenframe.h"

#include "pixelmove.h"

CameraFrame SeenFrame(const CameraFrame &frame, const Orientation &orientation)
{
    if (orientation == Orientation())
        return frame;
    CameraFrame seen = frame;
    const QSize size = orientation.Map(QSize(frame.width, frame.height));
    seen.width = size.width();
    seen.height = size.height();
    seen.strideBytes = seen.width * BytesPerPixel(frame.layout);
    std::shared_ptr<uchar> pixels(new uchar[size_t(seen.ByteCount())], std::default_delete<uchar[]>());
    const PixelRows rows{ frame.pixels.get(), QSize(frame.width, frame.height), frame.strideBytes,
                          BytesPerPixel(frame.layout) };
    MovePixels(rows, orientation, pixels.get(), seen.strideBytes);
    seen.pixels = pixels;
    return seen;
}
