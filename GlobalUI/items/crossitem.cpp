// SPDX-License-Identifier: GPL-3.0-or-later
#include "crossitem.h"

#include "markerview.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QPainter>
#include <QScopedValueRollback>

namespace {

constexpr double ArmLength = 16.0; // screen pixels

/// The middle of the pixel that holds this coordinate.
double PixelCenter(double coordinate, int rounded)
{
    return coordinate - rounded < 0.0 ? rounded - 0.5 : rounded + 0.5;
}

} // namespace

CrossItem::CrossItem(QGraphicsItem *parent)
    : QGraphicsItem(parent)
{
}

QRectF CrossItem::boundingRect() const
{
    if (!scene())
        return QRectF(center, QSizeF(2 * halfSize, 2 * halfSize));
    if (m_askingScene)
        return QRectF(); // a scene without a rectangle of its own asks its items back
    const QScopedValueRollback<bool> asking(m_askingScene, true);
    const QGraphicsView *view = MarkerView(this);
    return view ? view->sceneRect() : scene()->sceneRect();
}

void CrossItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    if (!qIsFinite(center.x()) || !qIsFinite(center.y()))
        return;
    painter->setPen(QPen(QBrush(color), penWidth));
    const QPoint rounded = center.toPoint();
    const double x = PixelCenter(center.x(), rounded.x());
    const double y = PixelCenter(center.y(), rounded.y());

    const double scale = MarkerViewScale(this);
    QPen pen = painter->pen();
    pen.setWidthF(1.0 / scale);
    painter->setPen(pen);
    const double arm = ArmLength / scale;
    painter->drawLine(QLineF(x - arm, y, x + arm, y));
    painter->drawLine(QLineF(x, y - arm, x, y + arm));
}
