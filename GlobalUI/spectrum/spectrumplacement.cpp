// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumplacement.h"

#include "globalclass.h"
#include "spectrumzoomhistory.h"

#include <algorithm>
#include <cmath>

namespace {

// Design sizes of the aids with the space around them.
constexpr QSize AllAids(140, 180);
constexpr QSize Axes(60, 50);
constexpr QSize Curves(50, 50);
constexpr QSize ColorCard(0, 55);

QSize ActualSize(const QSize &designSize)
{
    return QSize(GlobalClass::GetActualSize(designSize.width()),
                 GlobalClass::GetActualSize(designSize.height()));
}

/// One side of the picture that is seen through a window of `length`, in picture pixels.
struct Span
{
    double from;
    double to;
};

/// The side from `first` screen pixels on. The scroll bars end with the picture, and so does what is seen.
Span SeenOf(double first, int shownLength, int viewLength, float scale, double side)
{
    if (shownLength >= viewLength)
        return { 0.0, side };
    Span span{ first / double(scale), (first + shownLength) / double(scale) };
    if (span.from < 0.0)
        span = { 0.0, std::min(span.to - span.from, side) };
    else if (span.to > side)
        span = { std::max(span.from - (span.to - side), 0.0), side };
    return span;
}

/// Cut to whole screen pixels, but never to none.
QSize ScaledSize(const QSize &size, float scale)
{
    return QSize(int(size.width() * scale), int(size.height() * scale)).expandedTo(QSize(1, 1));
}

double NearestInSide(double place, int side)
{
    return std::min(std::max(place, 0.0), std::nextafter(double(side), 0.0));
}

} // namespace

QSize ComputeSpectrumMargins(bool axisVisible, bool curveVisible, bool colorCardVisible)
{
    QSize margins = ActualSize(AllAids);
    if (!axisVisible)
        margins -= ActualSize(Axes);
    if (!curveVisible)
        margins -= ActualSize(Curves);
    if (!colorCardVisible)
        margins -= ActualSize(ColorCard);
    return margins;
}

FittedPicture FitPicture(const QSize &pictureSize, const QSize &freeSpace)
{
    const auto scale = float(std::min(double(freeSpace.width()) / pictureSize.width(),
                                      double(freeSpace.height()) / pictureSize.height()));
    const QSize viewSize = ScaledSize(pictureSize, scale);
    return { scale, viewSize, viewSize.boundedTo(freeSpace) };
}

PlacedPicture PlacePicture(const QRectF &target, const ZoomState &level, int levelCount,
                           const QSize &pictureSize, const QSize &freeSpace)
{
    const float scale = level.scale;
    const QSize targetSize = ScaledSize(target.size().toSize(), scale);
    PlacedPicture placed;
    const bool isSmall = targetSize.width() < freeSpace.width() && targetSize.height() < freeSpace.height();
    placed.shown = isSmall && levelCount > 1 ? freeSpace : targetSize.boundedTo(freeSpace);
    placed.viewSize = ScaledSize(pictureSize, scale);

    const QPointF centre(placed.viewSize.width() * (level.centre.x() / pictureSize.width()),
                         placed.viewSize.height() * (level.centre.y() / pictureSize.height()));
    const QPointF half(placed.shown.width() * 0.5, placed.shown.height() * 0.5);
    placed.scroll = centre - half;
    placed.pictureCentre = centre / double(scale);
    const Span x =
        SeenOf(placed.scroll.x(), placed.shown.width(), placed.viewSize.width(), scale, pictureSize.width());
    const Span y = SeenOf(placed.scroll.y(), placed.shown.height(), placed.viewSize.height(), scale,
                          pictureSize.height());
    placed.visible = { x.from, x.to, y.from, y.to };
    return placed;
}

QRectF NormalisedRect(const PictureRange &range, const QSize &pictureSize)
{
    return QRectF(range.xmin / pictureSize.width(), range.ymin / pictureSize.height(),
                  range.xmax / pictureSize.width(), range.ymax / pictureSize.height());
}

QPointF AnchorOfFit(const QPointF &remembered, const QSize &pictureSize)
{
    // Unalike on purpose: without a place of its own the anchor lies in the middle of the upper edge.
    const int middle = pictureSize.width() / 2; // whole pixels
    if (remembered.isNull())
        return QPointF(middle, 0);
    return QPointF(remembered.x() <= pictureSize.width() ? remembered.x() : middle,
                   remembered.y() <= pictureSize.height() ? remembered.y() : 0);
}

QPointF NearestInPicture(const QPointF &place, const QSize &pictureSize)
{
    if (pictureSize.isEmpty())
        return place;
    return QPointF(NearestInSide(place.x(), pictureSize.width()),
                   NearestInSide(place.y(), pictureSize.height()));
}
