// SPDX-License-Identifier: GPL-3.0-or-later
#include "fvbline.h"

#include "globalclass.h"
#include "spectrumuimanager.h"

#include <QCursor>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QPainter>
#include <QtMath>

namespace {

constexpr int EdgeReachSize = 5; // design pixels, to each side of an edge

/// A spectrum along the columns is made of columns: the edges stand upright then.
bool IsUpright() { return !SpectrumUIManager::GetInstance()->IsDirectionHorinzontal(); }

/// The row there, or the column.
qreal LineAt(const QPointF &scenePos) { return IsUpright() ? scenePos.x() : scenePos.y(); }

} // namespace

FVBLine::FVBLine()
{
    hide();
    UpdateMouse();
    connect(SpectrumUIManager::GetInstance(), SIGNAL(signalDisplayModePropertyChange()), this,
            SLOT(slotDirectionChanged()));
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
    edges.addRect(Part(m_top - reach, m_top + reach));
    edges.addRect(Part(LowerEdge() - reach, LowerEdge() + reach));
    return edges;
}

void FVBLine::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->fillRect(Part(m_top, m_bottom + 1), QColor(0, 160, 255, 40));
    const QRectF band = Part(m_top, LowerEdge());
    QPen pen(m_manual ? Qt::yellow : Qt::cyan);
    pen.setCosmetic(true);
    painter->setPen(pen);
    const bool upright = IsUpright();
    painter->drawLine(band.topLeft(), upright ? band.bottomLeft() : band.topRight());
    painter->drawLine(upright ? band.topRight() : band.bottomLeft(), band.bottomRight());
}

void FVBLine::SetFVBArea(QPointF first, QPointF second)
{
    if (!m_active)
        return;
    SetLines(int(qMin(first.y(), second.y())), int(qMax(first.y(), second.y())));
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
    const qreal toTop = qAbs(LineAt(event->scenePos()) - m_top);
    const qreal toBottom = qAbs(LineAt(event->scenePos()) - LowerEdge());
    m_dragged = toTop < toBottom ? Edge::Top : Edge::Bottom;
}

void FVBLine::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    const qreal first = LineAt(m_picture.topLeft());
    const qreal last = LineAt(m_picture.bottomRight()) - 1;
    // The row under the mouse becomes the first or the last one.
    const int line = qFloor(qBound(first, LineAt(event->scenePos()), last));
    if (m_dragged == Edge::Top)
        SetLines(qMin(line, m_bottom), m_bottom);
    else if (m_dragged == Edge::Bottom)
        SetLines(m_top, qMax(line, m_top));
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

void FVBLine::slotDirectionChanged()
{
    UpdateMouse();
    update();
}

QRectF FVBLine::Part(qreal from, qreal to) const
{
    if (IsUpright())
        return QRectF(from, m_picture.top(), to - from, m_picture.height());
    return QRectF(m_picture.left(), from, m_picture.width(), to - from);
}

qreal FVBLine::LowerEdge() const
{
    return qMin(m_bottom + 1.0, LineAt(m_picture.bottomRight()) - ScreenPixel());
}

qreal FVBLine::EdgeReach() const
{
    return GlobalClass::GetActualSize(EdgeReachSize) * ScreenPixel();
}

qreal FVBLine::ScreenPixel() const
{
    const QList<QGraphicsView *> views = scene() ? scene()->views() : QList<QGraphicsView *>();
    const QTransform zoom = views.isEmpty() ? QTransform() : views.first()->transform();
    const qreal scale = IsUpright() ? zoom.m11() : zoom.m22();
    return scale > 0.0 ? 1.0 / scale : 1.0;
}

void FVBLine::SetLines(int top, int bottom)
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
        setCursor(IsUpright() ? Qt::SizeHorCursor : Qt::SizeVerCursor);
    else
        unsetCursor();
}
