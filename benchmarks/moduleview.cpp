// SPDX-License-Identifier: GPL-3.0-or-later
#include "moduleview.h"

#include "drawframebase.h"
#include "drawviewbase.h"

#include <QApplication>

ModuleView::ModuleView(Drawing drawing)
{
    m_services.preview.currentRawFrame = &m_record;
    m_services.global.drawViewCanMove = true;
    View()->SetViewManager(&m_services.cameraReport);
    m_frame.setFixedSize(HostSize);
    m_frame.show();
    m_frame.slotSetCPUDraw(drawing == Drawing::Cpu);
}

DrawViewBase *ModuleView::View() { return m_frame.GetDrawFrame()->GetDrawView(); }

void ModuleView::Show(const QImage &frame)
{
    m_record.width = quint16(frame.width());
    m_record.height = quint16(frame.height());
    m_record.channels = frame.format() == QImage::Format_RGB888 ? 3 : 1;
    m_record.buffer = const_cast<uchar *>(frame.constBits()); // only read
    View()->slotPaintPreview(frame);
    QApplication::processEvents();
}
