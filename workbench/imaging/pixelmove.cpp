// SPDX-License-Identifier: GPL-3.0-or-later
#include "pixelmove.h"

#include <algorithm>

namespace {

/// A pixel as bytes; what they mean does not matter when it only moves.
template <int Size>
struct PixelBytes
{
    uchar bytes[Size];
};

/// How the source is walked, in bytes, while the target is filled row by row.
struct Walk
{
    qint64 start;
    qint64 perColumn;
    qint64 perRow;
};

Walk WalkThrough(const PixelRows &source, Orientation orientation)
{
    const Orientation back = orientation.Inverse();
    const QSize target = orientation.Map(source.size);
    const auto offsetOf = [&](const QPoint &pixel) {
        const QPoint from = back.Map(pixel, target);
        return from.y() * source.strideBytes + qint64(from.x()) * source.bytesPerPixel;
    };
    const qint64 start = offsetOf(QPoint(0, 0));
    return { start, offsetOf(QPoint(1, 0)) - start, offsetOf(QPoint(0, 1)) - start };
}

template <int Size>
void Move(const PixelRows &source, Orientation orientation, uchar *target, qint64 targetStride)
{
    using Pixel = PixelBytes<Size>;
    // Square pieces keep the rows that a rotation walks across in the processor's cache.
    constexpr int side = 64;
    const Walk walk = WalkThrough(source, orientation);
    const QSize size = orientation.Map(source.size);
    for (int top = 0; top < size.height(); top += side) {
        for (int left = 0; left < size.width(); left += side) {
            const int right = std::min(left + side, size.width());
            for (int y = top; y < std::min(top + side, size.height()); ++y) {
                const uchar *from = source.pixels + walk.start + y * walk.perRow;
                auto *to = reinterpret_cast<Pixel *>(target + y * targetStride);
                for (int x = left; x < right; ++x)
                    to[x] = *reinterpret_cast<const Pixel *>(from + x * walk.perColumn);
            }
        }
    }
}

} // namespace

void MovePixels(const PixelRows &source, Orientation orientation, uchar *target, qint64 targetStride)
{
    switch (source.bytesPerPixel) {
    case 1:
        Move<1>(source, orientation, target, targetStride);
        break;
    case 2:
        Move<2>(source, orientation, target, targetStride);
        break;
    case 3:
        Move<3>(source, orientation, target, targetStride);
        break;
    case 4:
        Move<4>(source, orientation, target, targetStride);
        break;
    case 6:
        Move<6>(source, orientation, target, targetStride);
        break;
    case 8:
        Move<8>(source, orientation, target, targetStride);
        break;
    case 12:
        Move<12>(source, orientation, target, targetStride);
        break;
    default:
        Move<24>(source, orientation, target, targetStride);
        break;
    }
}
