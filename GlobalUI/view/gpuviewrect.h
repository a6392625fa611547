// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QRectF>
#include <QSize>
#include <QSizeF>

/// The part of the picture that a GPU view shows, as fractions of the picture's size. The edges left,
/// top, right and bottom stand in the x, y, width and height slots of the rectangle.
/// `scroll` is the view's scroll position in screen pixels, `sceneSize` the picture's size in picture
/// pixels.
QRectF ComputeGPUViewRect(const QPoint &scroll, const QSize &viewportSize, const QSizeF &sceneSize,
                          double scale);

/// Whether the rectangle shows some part of the picture and nothing beside it.
bool IsGPUViewRectInside(const QRectF &viewRect);
