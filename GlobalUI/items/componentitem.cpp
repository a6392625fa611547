// SPDX-License-Identifier: GPL-3.0-or-later
#include "componentitem.h"

#include <QPainter>

ComponentItem::ComponentItem(QWidget *parent)
    : QWidget(parent)
{
}

void ComponentItem::SetItemSize(double width, double height)
{
    if (!qIsFinite(width) || !qIsFinite(height))
        return;
    itemSize = QSize(int(width), int(height));
    OnItemSizeChanged(itemSize);
}

void ComponentItem::OnItemSizeChanged(QSize) {}

void ComponentItem::DrawContent(QPainter *) {}

void ComponentItem::DrawForeground(QPainter *) {}

void ComponentItem::DrawBorders(QPainter *) {}

void ComponentItem::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.save();
    DrawBorders(&painter);
    DrawContent(&painter);
    DrawForeground(&painter);
    painter.restore();
}
