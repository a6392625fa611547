// SPDX-License-Identifier: GPL-3.0-or-later
#include "intensitycurvehorizontal.h"

#include <QPainter>

IntensityCurveHorizontal::IntensityCurveHorizontal(QWidget *parent)
    : IntensityCurveLayoutItem(parent)
{
    SetItemSize(400, 50);
    setGeometry(QRect(QPoint(0, 0), itemSize + QSize(borderWidth, borderWidth)));
    anchor = itemSize.width() / 2;
}

void IntensityCurveHorizontal::changedAnchorPosition(QPointF position)
{
    if (!qIsFinite(position.x()) || !qIsFinite(position.y()))
        return;
    anchor = position.toPoint().x();
    update();
}

void IntensityCurveHorizontal::OnItemSizeChanged(QSize size)
{
    ResizeToItem(size);
}

void IntensityCurveHorizontal::BuildCurve()
{
    BuildHorizontalCurve(samples, Window(), &curveLines);
}

void IntensityCurveHorizontal::DragTo(QPointF pos)
{
    emit scrollDistance(pressPosition.toPoint().x() - pos.toPoint().x());
}

void IntensityCurveHorizontal::DrawAnchor(QPainter *painter)
{
    if (anchor > itemSize.width() - borderWidth)
        return; // beyond the curve
    painter->setPen(AnchorPen());
    painter->drawLine(anchor, borderWidth, anchor, itemSize.height() + borderWidth);
}

void IntensityCurveHorizontal::MapToAxis(QPointF in, QPointF &out)
{
    out.setY(in.y());
}
