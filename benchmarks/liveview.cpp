// SPDX-License-Identifier: GPL-3.0-or-later
#include "liveview.h"

#include "drawframebase.h"
#include "drawviewbase.h"
#include "moduleview.h"
#include "previewmanager.h"

LiveView::LiveView(PreviewManager *preview)
{
    m_report.measureManager = &m_measure;
    m_global.cameraReportManager = &m_report;
    m_global.reportManager = &m_report;
    m_global.cameraView = true;
    m_global.drawViewCanMove = true;
    DrawViewBase *view = m_frame.GetDrawFrame()->GetDrawView();
    view->SetViewManager(&m_report);
    m_frame.setFixedSize(ModuleView::HostSize);
    m_frame.show();
    m_frame.slotSetCPUDraw(true);
    QObject::connect(preview, &PreviewManager::signalPreviewImage, view, &DrawViewBase::slotPaintPreview);
}
