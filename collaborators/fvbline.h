// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGraphicsObject>
#include <QPointF>

/// The FVB band: the rows of the picture that are binned into one line, between a top and a bottom
/// edge; its columns, when the spectrum runs along them. The user may drag the edges when the band is
/// set by hand. The scene owns it.
class FVBLine : public QGraphicsObject
{
    Q_OBJECT

public:
    FVBLine();

    /// Hidden, and deaf to the slots until it is begun again.
    void Retire();
    void Begin(const QPointF &first, const QPointF &second, bool movable);

    QRectF boundingRect() const override;
    /// The two edges, as wide as a mouse can hit; what lies between lets the mouse through.
    QPainterPath shape() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

public slots:
    /// The y of each point is a row, or the column; they may come in either order.
    void SetFVBArea(QPointF first, QPointF second);
    /// Only a band set by hand can be dragged.
    void SlotFVBManualFlagChanged(bool manual);
    /// While the camera reads out nothing but the band, it can't be dragged.
    void SlotFVBSpeedingFlagChanged(bool speeding);

signals:
    /// The user has dragged an edge; rows of the picture, or columns.
    void SignalTopBottomChanged(int top, int bottom);

protected:
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;

private slots:
    void slotSceneRectChanged(QRectF sceneRect);
    /// Rows may have become columns.
    void slotDirectionChanged();

private:
    enum class Edge { None, Top, Bottom };

    /// Where the lower edge is drawn: behind the last row, and still on the picture.
    qreal LowerEdge() const;
    /// Reach of an edge in picture pixels.
    qreal EdgeReach() const;
    /// The side of a pixel of the screen in picture pixels.
    qreal ScreenPixel() const;
    /// The part of the picture from one row to another, or from one column.
    QRectF Part(qreal from, qreal to) const;
    void SetLines(int top, int bottom);
    void UpdateMouse();

    QRectF m_picture;
    int m_top = 0;
    int m_bottom = 0;
    bool m_active = false;
    bool m_manual = false;
    bool m_speeding = false;
    Edge m_dragged = Edge::None;
};
