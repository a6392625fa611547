// SPDX-License-Identifier: GPL-3.0-or-later
// The draw view with GPU drawing: the visible part and the change of mode.
#include "drawviewbase.h"

#include "cropframe.h"
#include "gpuviewrect.h"
#include "lxgpudrawitem.h"
#include "zoomladder.h"

#include <QDebug>
#include <QGraphicsScene>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <memory>

void DrawViewBase::slotHorizontalScrollBarValueChanged(int value)
{
    UpdateGPUViewRect({ value, verticalScrollBar()->value() });
}

void DrawViewBase::slotVerticalScrollBarValueChanged(int value)
{
    UpdateGPUViewRect({ horizontalScrollBar()->value(), value });
}

QPoint DrawViewBase::ScrollPosition() const
{
    return QPoint(horizontalScrollBar()->value(), verticalScrollBar()->value());
}

void DrawViewBase::UpdateGPUViewRect(const QPoint &scroll)
{
    if (!m_gpuDrawItem)
        return;
    const QScopedValueRollback<bool> placing(m_isPlacing, true);
    const QPoint bounded(qBound(0, scroll.x(), horizontalScrollBar()->maximum()),
                         qBound(0, scroll.y(), verticalScrollBar()->maximum()));
    // The viewport of a hidden view has not taken its size yet; this is the size it will have.
    const QRectF viewRect = ComputeGPUViewRect(bounded, maximumViewportSize(), sceneRect().size(), Scale());

    horizontalScrollBar()->setValue(bounded.x());
    verticalScrollBar()->setValue(bounded.y());
    emit signalUpdateHorizontalScrollBar(horizontalScrollBar());
    emit signalUpdateVerticalScrollBar(verticalScrollBar());

    if (IsGPUViewRectInside(viewRect)) {
        m_gpuViewRect = viewRect;
        HandViewRectToItem();
    }
}

void DrawViewBase::slotOwnScrollBarMoved()
{
    if (!m_isPlacing)
        PlaceOwnScrollBars();
}

void DrawViewBase::PlaceOwnScrollBars()
{
    if (m_gpuDrawItem) {
        UpdateGPUViewRect(ScrollPosition());
        return;
    }
    // A view cut to whole screen pixels could be scrolled by the fraction that is missing.
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(0);
}

void DrawViewBase::HandViewRectToItem()
{
    const QSize viewportSize = maximumViewportSize();
    m_gpuDrawItem->SetViewRect(viewportSize.width(), viewportSize.height(), m_gpuViewRect);
}

void DrawViewBase::SetCPUDraw(bool cpuFlag)
{
    if (!cpuFlag) {
        SetGPUDrawView();
        return;
    }
    RemoveGPUItem();
    if (!m_glViewport)
        return;
    if (viewport() == m_glViewport)
        InstallViewport(nullptr, MinimalViewportUpdate);
    else
        m_glViewport->setParent(nullptr);
    m_glViewport = nullptr;
    ShowInBackground(m_pictureBrush);

    const bool isCut = !m_imageSize.isEmpty() && size() != ZoomLadder::ScaledSize(m_imageSize, Scale());
    if (isCut || m_geometryPending)
        UpdateViewGeometry(); // the frame scrolls the whole picture now
    else
        PlaceOwnScrollBars();
}

void DrawViewBase::SetGPUDrawView()
{
    if (m_gpuDrawItem)
        return;
    const bool isLarger = !m_imageSize.isEmpty() && size().boundedTo(HostSize()) != size();
    if (isLarger)
        setFixedSize(size().boundedTo(HostSize())); // a GL viewport needs memory for all of its size
    if (!m_glViewport)
        InstallGLViewport();

    auto item = std::make_unique<LxGPUDrawItem>(false);
    if (scene()) {
        m_gpuDrawItem = item.release();
        scene()->addItem(m_gpuDrawItem);
        setViewportMargins(0, 0, 0, 0);
        UpdateGPUViewRect(ScrollPosition());
        HandViewRectToItem();
        m_gpuDrawItem->UpdateView();
    } else {
        qWarning("DrawViewBase::SetGPUDrawView(): Failed to create LxGPUDrawItem");
    }

    if (m_gpuDrawItem && isLarger)
        UpdateViewGeometry(); // shows the host's scroll bars, and the crop frame is as large as the view
}

void DrawViewBase::InstallGLViewport()
{
    m_glViewport = new QOpenGLWidget; // reparented by setViewport()
    // The frame is always drawn anew as a whole, so the marks above it must be too.
    InstallViewport(m_glViewport, FullViewportUpdate);
    qDebug("[%s:%d %s] DrawViewBase::SetGPUDrawView()", "drawviewbase.cpp", 589,
           "DrawViewBase::SetGPUDrawView");
}

void DrawViewBase::InstallViewport(QWidget *widget, ViewportUpdateMode mode)
{
    setViewport(widget);
    viewport()->setMouseTracking(true); // a new viewport has not taken it from the view
    setViewportUpdateMode(mode);
    m_cropFrame->raise(); // a new viewport is the topmost child
}

void DrawViewBase::RemoveGPUItem()
{
    if (!m_gpuDrawItem)
        return;
    if (scene())
        scene()->removeItem(m_gpuDrawItem);
    delete m_gpuDrawItem;
    m_gpuDrawItem = nullptr;
}
