// SPDX-License-Identifier: GPL-3.0-or-later
#include "componentitem.h"

#include <QPainter>

namespace {

/// No widget is larger.
int WholePixels(double length)
{
    return int(qBound(double(-QWIDGETSIZE_MAX), length, double(QWIDGETSIZE_MAX)));
}

} // namespace

ComponentItem::ComponentItem(QWidget *parent)
    : QWidget(parent)
{
}

void ComponentItem::SetItemSize(double width, double height)
{
    if (!qIsFinite(width) || !qIsFinite(height))
        return;
    itemSize = QSize(WholePixels(width), WholePixels(height));
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
