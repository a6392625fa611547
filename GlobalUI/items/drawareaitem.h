// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGraphicsItem>
#include <QList>

/// The thin rectangle that follows the mouse while the user drags out an area: one screen pixel wide at
/// every zoom, from the first corner to the moving one, or to the second once that is fixed.
class DrawAreaItem : public QGraphicsItem
{
public:
    /// Adds itself to the scene, which owns it then; null leaves it to the caller.
    explicit DrawAreaItem(QGraphicsScene *scene);

    /// Fixes a corner (scene); shows with the next move.
    void AddAreaPoint(QPointF p);
    /// Moves the free corner (scene); at (0, 0) nothing is drawn.
    void SetAreaCurrentPoint(QPointF p);

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    QList<QPointF> m_points;
    QPointF m_currentPoint;
    mutable bool m_askingScene = false;
};
