// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>

struct ZoomState;

// Where the spectrum image lies: its margins, sizes, scroll position and visible part. Screen pixels
// unless a name says picture.

/// What the aids around the image take of the page's width and height.
QSize ComputeSpectrumMargins(bool axisVisible, bool curveVisible, bool colorCardVisible);

/// The whole picture, as large as the free space holds it.
struct FittedPicture
{
    float scale;
    QSize viewSize;
    QSize shown; ///< the part of it inside the free space
};
FittedPicture FitPicture(const QSize &pictureSize, const QSize &freeSpace);

/// A part of the picture, in picture pixels.
struct PictureRange
{
    double xmin;
    double xmax;
    double ymin;
    double ymax;
};

/// A zoom level on the screen.
struct PlacedPicture
{
    QSize shown;
    QSize viewSize;
    QPointF scroll; ///< puts the centre in the middle of what is shown
    PictureRange visible;
    QPointF pictureCentre;
};
/// `target`, in picture pixels, is what the level is to show, and `levelCount` how many there are.
/// The visible part is what is seen of the picture, of a level that was stepped back to as well.
PlacedPicture PlacePicture(const QRectF &target, const ZoomState &level, int levelCount,
                           const QSize &pictureSize, const QSize &freeSpace);

/// Left, top, right and bottom as fractions of the picture, the last two in the width and height slots.
QRectF NormalisedRect(const PictureRange &range, const QSize &pictureSize);

/// The anchor in the fitted picture: the remembered centre (none: (0, 0)) as far as the picture has it,
/// else the middle of the upper edge.
QPointF AnchorOfFit(const QPointF &remembered, const QSize &pictureSize);

/// The nearest place in the picture; a place in it stays.
QPointF NearestInPicture(const QPointF &place, const QSize &pictureSize);
