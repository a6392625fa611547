// SPDX-License-Identifier: GPL-3.0-or-later
#include "focuscrossline.h"

#include <QGraphicsScene>
#include <QPainter>

FocusCrossLine::FocusCrossLine()
{
    setAcceptedMouseButtons(Qt::NoButton);
    UpdateVisibility();
}

void FocusCrossLine::Retire()
{
    m_retired = true;
    UpdateVisibility();
}

void FocusCrossLine::Begin()
{
    m_retired = false;
    UpdateVisibility();
}

QRectF FocusCrossLine::boundingRect() const
{
    return m_picture;
}

void FocusCrossLine::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    QPen pen(Qt::green);
    pen.setCosmetic(true);
    painter->setPen(pen);
    const QPointF centre = m_picture.center();
    painter->drawLine(QPointF(m_picture.left(), centre.y()), QPointF(m_picture.right(), centre.y()));
    painter->drawLine(QPointF(centre.x(), m_picture.top()), QPointF(centre.x(), m_picture.bottom()));
}

void FocusCrossLine::SlotImageSizeChanged()
{
    if (!scene())
        return;
    prepareGeometryChange();
    m_picture = scene()->sceneRect();
}

void FocusCrossLine::SlotCrossLineVisiable(bool visible)
{
    m_wanted = visible;
    UpdateVisibility();
}

void FocusCrossLine::SlotCrossLineEnable(bool enable)
{
    m_enabled = enable;
    UpdateVisibility();
}

QVariant FocusCrossLine::itemChange(GraphicsItemChange change, const QVariant &value)
{
    if (change == ItemSceneHasChanged && scene()) {
        connect(scene(), SIGNAL(sceneRectChanged(QRectF)), this, SLOT(SlotImageSizeChanged()));
        SlotImageSizeChanged();
    }
    return QGraphicsObject::itemChange(change, value);
}

void FocusCrossLine::UpdateVisibility()
{
    setVisible(m_wanted && m_enabled && !m_retired);
}
