// SPDX-License-Identifier: GPL-3.0-or-later
// The spectrum image under the mouse: clicks, drags and what is reported about them.
#include "spectrumdrawviewbase.h"

#include "spectrumplacement.h"

#include <QMouseEvent>

#include <cmath>

namespace {

constexpr double LongestClick = 6.0; // view pixels on either axis

} // namespace

void SpectrumDrawViewBase::mousePressEvent(QMouseEvent *event)
{
    if (event->buttons() == Qt::LeftButton) {
        m_pressPoint = event->localPos();
        m_pressed = true;
        emit SignalDrawArea(mapToScene(event->pos()), true, true);
    }
    QGraphicsView::mousePressEvent(event);
}

void SpectrumDrawViewBase::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons() == Qt::LeftButton && m_pressed) {
        m_moved = true;
        emit SignalDrawArea(mapToScene(event->pos()), false, false);
    }
    QGraphicsView::mouseMoveEvent(event);
}

void SpectrumDrawViewBase::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        m_releasePoint = event->localPos();
        const QPointF scenePos = mapToScene(event->pos());
        if (IsDrag()) {
            emit SignalDrawArea(scenePos, true, false);
            SetViewGeometry();
        } else if (m_pressed) {
            Pick(scenePos);
        } else {
            emit SignalDrawArea(scenePos, true, false); // the picture of the drag is gone
        }
        EndDrag();
    }
    QGraphicsView::mouseReleaseEvent(event);
}

void SpectrumDrawViewBase::EndDrag()
{
    m_pressed = false;
    m_moved = false;
}

bool SpectrumDrawViewBase::IsDrag() const
{
    const QPointF way = m_releasePoint - m_pressPoint;
    return m_moved && std::abs(way.x()) > LongestClick && std::abs(way.y()) > LongestClick;
}

void SpectrumDrawViewBase::Pick(const QPointF &scenePos)
{
    const QPointF point = NearestInPicture(scenePos, m_imageSize);
    emit SignalPressPosChange(point, m_normalisedRect);
    emit SignalPressPosChangeStatic(point, m_normalisedRect, true);
    emit SignalDrawArea(point, true, false);
    ReportAnchor(point);
}

void SpectrumDrawViewBase::SlotDisplayModeChange()
{
    if (!m_staticMode || m_releasePoint.isNull())
        return;
    const QPointF point = mapToScene(m_releasePoint.toPoint());
    emit SignalPressPosChange(point, m_normalisedRect);
    emit SignalPressPosChangeStatic(point, m_normalisedRect, true);
}

void SpectrumDrawViewBase::ReportAnchor(const QPointF &scenePos)
{
    emit SignalAnchorPosChange(mapToParent(mapFromScene(scenePos)));
}
