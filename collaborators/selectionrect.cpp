// SPDX-License-Identifier: GPL-3.0-or-later
#include "selectionrect.h"

namespace {

using Grip = SelectionRect::Grip;

bool MovesLeft(Grip grip) { return grip == Grip::TopLeft || grip == Grip::Left || grip == Grip::BottomLeft; }
bool MovesRight(Grip grip)
{
    return grip == Grip::TopRight || grip == Grip::Right || grip == Grip::BottomRight;
}
bool MovesTop(Grip grip) { return grip == Grip::TopLeft || grip == Grip::Top || grip == Grip::TopRight; }
bool MovesBottom(Grip grip)
{
    return grip == Grip::BottomLeft || grip == Grip::Bottom || grip == Grip::BottomRight;
}

/// The rectangle between two corners, whichever way round they are.
QRect Between(const QPoint &a, const QPoint &b)
{
    const QPoint topLeft(qMin(a.x(), b.x()), qMin(a.y(), b.y()));
    return QRect(topLeft, QSize(qAbs(a.x() - b.x()), qAbs(a.y() - b.y())));
}

QPoint TopLeftCorner(const QRect &rect) { return rect.topLeft(); }
QPoint BottomRightCorner(const QRect &rect) { return rect.topLeft() + QPoint(rect.width(), rect.height()); }

/// The grip of the edges that a position is near to: -1 left or top, 1 right or bottom, 0 neither.
Grip GripOfEdges(int horizontal, int vertical)
{
    static const Grip grips[3][3] = {{Grip::TopLeft, Grip::Top, Grip::TopRight},
                                     {Grip::Left, Grip::Body, Grip::Right},
                                     {Grip::BottomLeft, Grip::Bottom, Grip::BottomRight}};
    return grips[vertical + 1][horizontal + 1];
}

/// Near the first edge -1, near the second 1, otherwise 0; the nearer one when both are in reach.
int NearEdge(qreal position, qreal first, qreal second, qreal tolerance)
{
    const qreal toFirst = qAbs(position - first);
    const qreal toSecond = qAbs(position - second);
    if (qMin(toFirst, toSecond) > tolerance)
        return 0;
    return toFirst < toSecond ? -1 : 1;
}

} // namespace

void SelectionRect::SetBounds(const QRect &bounds)
{
    m_bounds = bounds;
    SetRect(m_rect);
}

void SelectionRect::SetRect(const QRect &rect)
{
    m_rect = rect.intersected(m_bounds);
}

void SelectionRect::Clear()
{
    m_rect = QRect();
    m_dragging = false;
}

SelectionRect::Grip SelectionRect::GripAt(const QPointF &scenePos, qreal tolerance) const
{
    if (IsEmpty())
        return Grip::None;
    const QRectF rect(m_rect);
    if (!rect.adjusted(-tolerance, -tolerance, tolerance, tolerance).contains(scenePos))
        return Grip::None;
    // A small selection keeps a middle by which it can be moved.
    const qreal reachX = qMin(tolerance, rect.width() / 3.0);
    const qreal reachY = qMin(tolerance, rect.height() / 3.0);
    const bool insideX = scenePos.x() > rect.left() && scenePos.x() < rect.right();
    const bool insideY = scenePos.y() > rect.top() && scenePos.y() < rect.bottom();
    return GripOfEdges(NearEdge(scenePos.x(), rect.left(), rect.right(), insideX ? reachX : tolerance),
                       NearEdge(scenePos.y(), rect.top(), rect.bottom(), insideY ? reachY : tolerance));
}

void SelectionRect::Press(const QPointF &scenePos, qreal tolerance)
{
    m_grip = GripAt(scenePos, tolerance);
    m_pressPos = scenePos;
    m_pressRect = m_rect;
    m_dragging = true;
}

bool SelectionRect::Drag(const QPointF &scenePos)
{
    if (!m_dragging)
        return false;
    QRect rect;
    if (m_grip == Grip::Body)
        rect = Moved(scenePos);
    else if (m_grip == Grip::None)
        rect = Between(NearestCorner(m_pressPos), NearestCorner(scenePos));
    else
        rect = Resized(NearestCorner(scenePos));
    if (rect.isEmpty() || rect == m_rect)
        return false; // at least one pixel stays selected
    m_rect = rect;
    return true;
}

QPoint SelectionRect::NearestCorner(const QPointF &scenePos) const
{
    const QPoint first = TopLeftCorner(m_bounds);
    const QPoint last = BottomRightCorner(m_bounds);
    // Bounded before it is rounded: a position far outside may not fit an integer.
    return QPoint(qRound(qBound<qreal>(first.x(), scenePos.x(), last.x())),
                  qRound(qBound<qreal>(first.y(), scenePos.y(), last.y())));
}

QRect SelectionRect::Moved(const QPointF &scenePos) const
{
    const QPointF way = scenePos - m_pressPos;
    const QPoint lowest = TopLeftCorner(m_bounds);
    const QPoint highest = BottomRightCorner(m_bounds) - QPoint(m_pressRect.width(), m_pressRect.height());
    return QRect(QPoint(qRound(qBound<qreal>(lowest.x(), m_pressRect.x() + way.x(), highest.x())),
                        qRound(qBound<qreal>(lowest.y(), m_pressRect.y() + way.y(), highest.y()))),
                 m_pressRect.size());
}

QRect SelectionRect::Resized(const QPoint &corner) const
{
    QPoint topLeft = TopLeftCorner(m_pressRect);
    QPoint bottomRight = BottomRightCorner(m_pressRect);
    if (MovesLeft(m_grip))
        topLeft.setX(corner.x());
    if (MovesRight(m_grip))
        bottomRight.setX(corner.x());
    if (MovesTop(m_grip))
        topLeft.setY(corner.y());
    if (MovesBottom(m_grip))
        bottomRight.setY(corner.y());
    return Between(topLeft, bottomRight);
}
