// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturegeometry.h"

#include "pixelmove.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>
#include <vector>

namespace {

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
    const PixelRows source{ picture.Data(), picture.Size(), picture.BytesPerRow(), picture.BytesPerPixel() };
    MovePixels(source, orientation, target.Data(), target.BytesPerRow());
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
