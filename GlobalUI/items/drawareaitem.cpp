// SPDX-License-Identifier: GPL-3.0-or-later
#include "drawareaitem.h"

#include "markerview.h"

#include <QGraphicsScene>
#include <QPainter>
#include <QScopedValueRollback>

DrawAreaItem::DrawAreaItem(QGraphicsScene *scene)
{
    if (scene)
        scene->addItem(this);
}

void DrawAreaItem::AddAreaPoint(QPointF p)
{
    m_points.append(p);
}

void DrawAreaItem::SetAreaCurrentPoint(QPointF p)
{
    m_currentPoint = p;
    update();
}

QRectF DrawAreaItem::boundingRect() const
{
    if (!scene() || m_askingScene)
        return QRectF(); // a scene without a rectangle of its own asks its items back
    const QScopedValueRollback<bool> asking(m_askingScene, true);
    return scene()->sceneRect();
}

void DrawAreaItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    if (m_currentPoint.isNull() || m_points.isEmpty())
        return;
    painter->setPen(QPen(QBrush(QColor(255, 255, 255)), 1.0 / MarkerViewScale(this)));
    painter->setBrush(Qt::NoBrush);
    const QRectF area(m_points.first(), m_points.size() == 1 ? m_currentPoint : m_points.at(1));
    painter->drawRects(&area, 1);
}
