// SPDX-License-Identifier: GPL-3.0-or-later
#include "fvbline.h"

#include "globalclass.h"

#include <QCursor>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QPainter>

namespace {
constexpr int EdgeReachSize = 5; // design pixels, to each side of an edge
}

FVBLine::FVBLine()
{
    hide();
    UpdateMouse();
}

void FVBLine::Retire()
{
    m_active = false;
    m_dragged = Edge::None;
    hide();
}

void FVBLine::Begin(const QPointF &first, const QPointF &second, bool movable)
{
    m_active = true;
    m_manual = movable;
    UpdateMouse();
    SetFVBArea(first, second);
    show();
}

QRectF FVBLine::boundingRect() const
{
    return m_picture;
}

QPainterPath FVBLine::shape() const
{
    const qreal reach = EdgeReach();
    QPainterPath edges;
    edges.setFillRule(Qt::WindingFill);
    edges.addRect(m_picture.left(), m_top - reach, m_picture.width(), 2 * reach);
    edges.addRect(m_picture.left(), m_bottom - reach, m_picture.width(), 2 * reach);
    return edges;
}

void FVBLine::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->fillRect(QRectF(m_picture.left(), m_top, m_picture.width(), m_bottom - m_top),
                      QColor(0, 160, 255, 40));
    QPen pen(m_manual ? Qt::yellow : Qt::cyan);
    pen.setCosmetic(true);
    painter->setPen(pen);
    painter->drawLine(QPointF(m_picture.left(), m_top), QPointF(m_picture.right(), m_top));
    painter->drawLine(QPointF(m_picture.left(), m_bottom), QPointF(m_picture.right(), m_bottom));
}

void FVBLine::SetFVBArea(QPointF first, QPointF second)
{
    if (!m_active)
        return;
    SetRows(int(qMin(first.y(), second.y())), int(qMax(first.y(), second.y())));
}

void FVBLine::SlotFVBManualFlagChanged(bool manual)
{
    m_manual = manual;
    UpdateMouse();
    update();
}

void FVBLine::SlotFVBSpeedingFlagChanged(bool speeding)
{
    m_speeding = speeding;
    UpdateMouse();
}

void FVBLine::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    const qreal toTop = qAbs(event->scenePos().y() - m_top);
    const qreal toBottom = qAbs(event->scenePos().y() - m_bottom);
    m_dragged = toTop < toBottom ? Edge::Top : Edge::Bottom;
}

void FVBLine::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    const qreal lastRow = m_picture.bottom() - 1;
    const int row = qRound(qBound(m_picture.top(), event->scenePos().y(), lastRow));
    if (m_dragged == Edge::Top)
        SetRows(qMin(row, m_bottom), m_bottom);
    else if (m_dragged == Edge::Bottom)
        SetRows(m_top, qMax(row, m_top));
}

void FVBLine::mouseReleaseEvent(QGraphicsSceneMouseEvent *)
{
    if (m_dragged == Edge::None)
        return;
    m_dragged = Edge::None;
    emit SignalTopBottomChanged(m_top, m_bottom);
}

QVariant FVBLine::itemChange(GraphicsItemChange change, const QVariant &value)
{
    if (change == ItemSceneHasChanged && scene()) {
        connect(scene(), SIGNAL(sceneRectChanged(QRectF)), this, SLOT(slotSceneRectChanged(QRectF)));
        slotSceneRectChanged(scene()->sceneRect());
    }
    return QGraphicsObject::itemChange(change, value);
}

void FVBLine::slotSceneRectChanged(QRectF sceneRect)
{
    prepareGeometryChange();
    m_picture = sceneRect;
}

qreal FVBLine::EdgeReach() const
{
    const QList<QGraphicsView *> views = scene() ? scene()->views() : QList<QGraphicsView *>();
    const qreal scale = views.isEmpty() ? 1.0 : views.first()->transform().m22();
    return GlobalClass::GetActualSize(EdgeReachSize) / (scale > 0.0 ? scale : 1.0);
}

void FVBLine::SetRows(int top, int bottom)
{
    m_top = top;
    m_bottom = bottom;
    update();
}

void FVBLine::UpdateMouse()
{
    const bool movable = m_manual && !m_speeding;
    setAcceptedMouseButtons(movable ? Qt::LeftButton : Qt::NoButton);
    if (movable)
        setCursor(Qt::SizeVerCursor);
    else
        unsetCursor();
}
