// SPDX-License-Identifier: GPL-3.0-or-later
#include "shownframes.h"

#include "livepreview.h"
#include "workspace.h"

#include <QEvent>
#include <QGraphicsScene>
#include <QGraphicsView>

ShownFrames::ShownFrames(const LivePreview *preview, const Workspace *workspace, const QWidget *page, QObject *parent)
    : QObject(parent)
    , m_preview(preview)
    , m_workspace(workspace)
{
    connect(preview, SIGNAL(signalPictureDelivered()), this, SLOT(slotWatchViewport()));
    for (QWidget *widget : page->findChildren<QWidget *>()) {
        if (widget->inherits("SpectrumDrawViewBase"))
            Watch(static_cast<QGraphicsView *>(widget)->viewport());
        else if (widget->inherits("QCustomPlot"))
            Watch(widget);
    }
}

void ShownFrames::Watch(QWidget *surface)
{
    m_spectrumViews << surface;
    surface->installEventFilter(this);
}

/// The view exchanges its viewport when the drawing choice changes.
void ShownFrames::slotWatchViewport()
{
    QWidget *viewport = m_workspace->GetCameraScene()->views().first()->viewport();
    if (viewport == m_viewport)
        return;
    if (m_viewport)
        m_viewport->removeEventFilter(this);
    m_viewport = viewport;
    viewport->installEventFilter(this);
}

bool ShownFrames::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint && m_preview->DeliveredCount() != m_deliveredWhenPainted
        && (watched == m_viewport || m_spectrumViews.contains(static_cast<QWidget *>(watched)))) {
        m_deliveredWhenPainted = m_preview->DeliveredCount();
        ++m_count;
        // Told when the paint is over and on the screen.
        QMetaObject::invokeMethod(this, "signalFrameShown", Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}
