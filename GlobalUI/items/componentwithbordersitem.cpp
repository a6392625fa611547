// SPDX-License-Identifier: GPL-3.0-or-later
#include "componentwithbordersitem.h"

#include <QPainter>

ComponentWithBordersItem::ComponentWithBordersItem(QWidget *parent)
    : ComponentItem(parent)
{
}

void ComponentWithBordersItem::DrawBorders(QPainter *painter)
{
    QPen pen(borderColor);
    pen.setWidth(borderWidth);
    painter->setPen(pen);
    const QRectF border(QPointF(0, 0), QSizeF(itemSize) - QSizeF(borderWidth, borderWidth));
    painter->drawRects(&border, 1);
}

void ComponentWithBordersItem::DrawExtra(QPainter *) {}
