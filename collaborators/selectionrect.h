// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QPointF>
#include <QRect>

/// A rectangle of whole picture pixels that is drawn, moved and resized by dragging. Positions are
/// picture pixels; the rectangle never leaves the bounds and its edges lie between pixels.
class SelectionRect
{
public:
    enum class Grip { None, Body, TopLeft, Top, TopRight, Right, BottomRight, Bottom, BottomLeft, Left };

    /// The picture's rectangle. A selection that no longer fits is cut to it.
    void SetBounds(const QRect &bounds);
    void SetRect(const QRect &rect);
    void Clear();
    QRect Rect() const { return m_rect; }
    bool IsEmpty() const { return m_rect.isEmpty(); }

    /// What a press at `scenePos` takes hold of; corners and edges reach `tolerance` to both sides.
    Grip GripAt(const QPointF &scenePos, qreal tolerance) const;
    /// Begins a drag: of the grip found there, otherwise of a new rectangle.
    void Press(const QPointF &scenePos, qreal tolerance);
    /// True when the rectangle has changed. A drag never leaves it empty.
    bool Drag(const QPointF &scenePos);
    void Release() { m_dragging = false; }
    bool IsDragging() const { return m_dragging; }

private:
    QPoint NearestCorner(const QPointF &scenePos) const;
    QRect Moved(const QPointF &scenePos) const;
    QRect Resized(const QPoint &corner) const;

    QRect m_bounds;
    QRect m_rect;
    bool m_dragging = false;
    Grip m_grip = Grip::None;
    QPointF m_pressPos;
    QRect m_pressRect;
};
