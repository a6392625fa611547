// SPDX-License-Identifier: GPL-3.0-or-later
// The draw view under the mouse: panning, wheel zoom and what is reported about the position.
#include "drawviewbase.h"

#include "globalmanager.h"
#include "measuremanager.h"
#include "reportmanager.h"
#include "uiconfigmanager.h"

#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>

namespace {

/// In eighths of a degree; a turn across counts when there is none up or down.
int WheelDelta(const QWheelEvent *event)
{
    const QPoint angle = event->angleDelta();
    return angle.y() != 0 ? angle.y() : angle.x();
}

} // namespace

void DrawViewBase::slotUpdateMousePosition(QPoint point) { ReportMousePosition(mapToScene(point)); }

void DrawViewBase::ReportMousePosition(const QPointF &scenePos)
{
    emit signalUpdateMousePosition(scenePos);
    if (m_viewManager)
        m_viewManager->SetMousePosition(scenePos.toPoint());
    emit UIConfigManager::GetInstance()->signalImageInfoChanged();
}

void DrawViewBase::mousePressEvent(QMouseEvent *event)
{
    emit signalGraphicsViewPressed(scene());
    m_lastMousePos = mapToParent(event->pos());
    if (GlobalManager::GetInstance()->IsDrawViewCanMove()) {
        m_isMousePressed = true;
        viewport()->setCursor(Qt::SizeAllCursor);
    }
    emit signalMousePressEvent(event, mapToScene(event->pos()));
    QGraphicsView::mousePressEvent(event);
}

void DrawViewBase::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_isMousePressed)
        viewport()->setCursor(Qt::ArrowCursor);
    m_isMousePressed = false;
    emit signalMouseReleaseEvent(event);
    QGraphicsView::mouseReleaseEvent(event);
}

void DrawViewBase::mouseDoubleClickEvent(QMouseEvent *event)
{
    emit signalMouseDoubleClickEvent(event);
    QGraphicsView::mouseDoubleClickEvent(event);
}

void DrawViewBase::mouseMoveEvent(QMouseEvent *event)
{
    if (!MeasureManager::IsMeasuring())
        emit signalEnableScaleFactor(event->pos());
    if (m_isMousePressed && GlobalManager::GetInstance()->IsDrawViewCanMove())
        DragPicture(event->pos());
    ReportMousePosition(mapToScene(event->pos()));
    emit signalUpdateImageGrayValueInfo();
    emit signalMouseMoveEvent(event);
    QGraphicsView::mouseMoveEvent(event);
}

void DrawViewBase::DragPicture(const QPoint &viewPos)
{
    const QPointF parentPos = mapToParent(viewPos);
    const QPointF delta = parentPos - m_lastMousePos;
    m_lastMousePos = parentPos;
    const QPoint origin = pos();
    emit signalMoveImage(delta);
    emit signalCompareMove(delta);
    // The frame can move the view by as much as the host's scroll bars take from it; the rest is ours.
    const QPoint moved = pos() - origin;
    UpdateGPUViewRect(ScrollPosition() - QPoint(int(delta.x()), int(delta.y())) + moved);
}

void DrawViewBase::wheelEvent(QWheelEvent *event)
{
    event->accept(); // the frame around the view must not scroll
    const int delta = WheelDelta(event);
    if (delta == 0)
        return; // a gesture begins or ends, or the second event of a slanting turn
    const QPoint viewPos = event->position().toPoint();
    if (m_gpuDrawItem)
        ZoomGPUByWheel(viewPos, delta);
    else
        ZoomCPUByWheel(viewPos, delta);
}

void DrawViewBase::ZoomGPUByWheel(const QPoint &viewPos, int delta)
{
    const QPointF scenePos = mapToScene(viewPos);
    const float fractionX = float(viewPos.x()) / float(width());
    const float fractionY = float(viewPos.y()) / float(height());
    ZoomByDelta(delta);

    // What was under the mouse stays there.
    const QPointF scaledPos = transform().map(scenePos);
    const QSizeF viewportSize = maximumViewportSize();
    UpdateGPUViewRect({ int(scaledPos.x() - viewportSize.width() * fractionX),
                        int(scaledPos.y() - viewportSize.height() * fractionY) });
    emit signalCompareScale(
        delta, QPointF(horizontalScrollBar()->sliderPosition(), verticalScrollBar()->sliderPosition()));
}

void DrawViewBase::ZoomCPUByWheel(const QPoint &viewPos, int delta)
{
    const QPointF parentPos = mapToParent(viewPos);
    const QPointF scenePos = mapToScene(viewPos);
    const double relativeX = scenePos.x() / sceneRect().width();
    const double relativeY = scenePos.y() / sceneRect().height();
    ZoomByDelta(delta);

    const QPointF sliderPos(width() * relativeX - parentPos.x(), height() * relativeY - parentPos.y());
    emit signalSetSliderPosition(sliderPos);
    emit signalCompareScale(delta, sliderPos);
}
