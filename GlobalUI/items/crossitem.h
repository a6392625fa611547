// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QGraphicsItem>
#include <QObject>

/// The cross-hair at the point whose row and column the intensity curves show: as large and as thin on
/// the screen at every zoom. The host moves it by its public fields, then shows and updates it.
class CrossItem : public QObject, public QGraphicsItem
{
    Q_OBJECT
    Q_INTERFACES(QGraphicsItem)

public:
    explicit CrossItem(QGraphicsItem *parent);

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

    int halfSize = 20; ///< of the bounding square outside a scene
    int penWidth = 1;
    QColor color = Qt::white;
    QPointF center;         ///< scene
    QPointF previousCenter; ///< scene, before the last move
    QPointF pressPoint;     ///< for the host
    QPointF movePoint;      ///< for the host

private:
    mutable bool m_askingScene = false;
};
