// SPDX-License-Identifier: GPL-3.0-or-later
#include "intensitycurvevertical.h"

#include <QPainter>

IntensityCurveVertical::IntensityCurveVertical(QWidget *parent)
    : IntensityCurveLayoutItem(parent)
{
    SetItemSize(50, 400);
    setGeometry(QRect(QPoint(0, 0), itemSize + QSize(borderWidth, borderWidth)));
    anchor = itemSize.height() / 2;
}

void IntensityCurveVertical::changedAnchorPosition(QPointF position)
{
    if (!qIsFinite(position.x()) || !qIsFinite(position.y()))
        return;
    anchor = position.toPoint().y();
    update();
}

void IntensityCurveVertical::OnItemSizeChanged(QSize size)
{
    ResizeToItem(size);
}

void IntensityCurveVertical::BuildCurve()
{
    BuildVerticalCurve(samples, Window(), &curveLines);
}

void IntensityCurveVertical::DragTo(QPointF pos)
{
    emit scrollDistance(pressPosition.toPoint().y() - pos.toPoint().y());
}

void IntensityCurveVertical::DrawAnchor(QPainter *painter)
{
    painter->setPen(AnchorPen());
    painter->drawLine(borderWidth, anchor, itemSize.width() + borderWidth, anchor);
}

void IntensityCurveVertical::MapToAxis(QPointF in, QPointF &out)
{
    out.setX(in.x());
}
