// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturegeometry.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>
#include <vector>

namespace {

/// A pixel as bytes; what they mean does not matter when it only moves.
template <int Size>
struct PixelBytes
{
    uchar bytes[Size];
};

/// How the source is walked, in pixels, while the target is filled row by row.
struct Walk
{
    qint64 start;
    qint64 perColumn;
    qint64 perRow;
};

Walk WalkThrough(const QSize &source, Orientation orientation)
{
    const Orientation back = orientation.Inverse();
    const QSize target = orientation.Map(source);
    const auto indexOf = [&](const QPoint &pixel) {
        const QPoint from = back.Map(pixel, target);
        return qint64(from.y()) * source.width() + from.x();
    };
    const qint64 start = indexOf(QPoint(0, 0));
    return {start, indexOf(QPoint(1, 0)) - start, indexOf(QPoint(0, 1)) - start};
}

template <int Size>
void MovePixels(const Picture &source, const Walk &walk, Picture &target)
{
    using Pixel = PixelBytes<Size>;
    // Square pieces keep the rows that a rotation walks across in the processor's cache.
    constexpr int side = 64;
    const auto *from = reinterpret_cast<const Pixel *>(source.Data()) + walk.start;
    auto *to = reinterpret_cast<Pixel *>(target.Data());
    const int width = target.Width();
    const int height = target.Height();
    for (int top = 0; top < height; top += side) {
        for (int left = 0; left < width; left += side) {
            for (int y = top; y < std::min(top + side, height); ++y) {
                for (int x = left; x < std::min(left + side, width); ++x)
                    to[qint64(y) * width + x] = from[y * walk.perRow + x * walk.perColumn];
            }
        }
    }
}

/// Bins of one row of the target: the samples of `rows` source rows added up.
template <typename Sample, typename Sum>
void AddUp(const Picture &picture, int top, int columns, int rows, std::vector<Sum> &sums)
{
    std::fill(sums.begin(), sums.end(), Sum(0));
    const int channels = picture.Channels();
    const int bins = int(sums.size()) / channels;
    for (int y = top; y < top + rows; ++y) {
        const Sample *source = picture.Samples<Sample>(y);
        for (int bin = 0; bin < bins; ++bin) {
            for (int column = 0; column < columns; ++column, source += channels) {
                for (int channel = 0; channel < channels; ++channel)
                    sums[size_t(bin * channels + channel)] += Sum(source[channel]);
            }
        }
    }
}

template <typename Sample, typename Sum>
Sample Result(Sum sum, qint64 count, Binning binning)
{
    if constexpr (std::is_floating_point_v<Sample>) {
        return Sample(binning == Binning::Sum ? sum : sum / Sum(count));
    } else {
        if (binning == Binning::Mean)
            return Sample((sum + (sum < 0 ? -count : count) / 2) / count);
        return Sample(std::clamp(sum, Sum(std::numeric_limits<Sample>::min()), Sum(std::numeric_limits<Sample>::max())));
    }
}

template <typename Sample>
void BinSamples(const Picture &picture, int columns, int rows, Binning binning, Picture &target)
{
    using Sum = std::conditional_t<std::is_floating_point_v<Sample>, double, qint64>;
    std::vector<Sum> sums(size_t(target.Width()) * size_t(target.Channels()));
    for (int y = 0; y < target.Height(); ++y) {
        AddUp<Sample>(picture, y * rows, columns, rows, sums);
        Sample *row = target.Samples<Sample>(y);
        for (size_t i = 0; i < sums.size(); ++i)
            row[i] = Result<Sample>(sums[i], qint64(columns) * rows, binning);
    }
}

} // namespace

Picture Oriented(const Picture &picture, Orientation orientation)
{
    if (picture.IsNull() || orientation == Orientation())
        return picture;
    const QSize size = orientation.Map(picture.Size());
    Picture target(size.width(), size.height(), picture.Channels(), picture.Type());
    const Walk walk = WalkThrough(picture.Size(), orientation);
    switch (picture.BytesPerPixel()) {
    case 1: MovePixels<1>(picture, walk, target); break;
    case 2: MovePixels<2>(picture, walk, target); break;
    case 3: MovePixels<3>(picture, walk, target); break;
    case 4: MovePixels<4>(picture, walk, target); break;
    case 6: MovePixels<6>(picture, walk, target); break;
    case 8: MovePixels<8>(picture, walk, target); break;
    case 12: MovePixels<12>(picture, walk, target); break;
    default: MovePixels<24>(picture, walk, target); break;
    }
    return target;
}

Picture Cropped(const Picture &picture, const QRect &region)
{
    const QRect inside = region & QRect(QPoint(0, 0), picture.Size());
    if (inside.isEmpty())
        return Picture();
    if (inside.size() == picture.Size())
        return picture;
    Picture target(inside.width(), inside.height(), picture.Channels(), picture.Type());
    const qint64 skipped = qint64(inside.left()) * picture.BytesPerPixel();
    for (int y = 0; y < inside.height(); ++y)
        std::memcpy(target.Row(y), picture.Row(inside.top() + y) + skipped, size_t(target.BytesPerRow()));
    return target;
}

Picture Binned(const Picture &picture, int columns, int rows, Binning binning)
{
    if (columns < 1 || rows < 1 || columns > picture.Width() || rows > picture.Height())
        return Picture();
    if (columns == 1 && rows == 1)
        return picture;
    Picture target(picture.Width() / columns, picture.Height() / rows, picture.Channels(), picture.Type());
    VisitSampleType(picture.Type(), [&](auto sample) { BinSamples<decltype(sample)>(picture, columns, rows, binning, target); });
    return target;
}
