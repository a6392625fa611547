// SPDX-License-Identifier: GPL-3.0-or-later
#include "comparechildframe.h"

#include "compareframe.h"
#include "drawframebase.h"
#include "drawviewbase.h"
#include "globalclass.h"
#include "gpudrawframe.h"
#include "zoomui.h"

#include <QCheckBox>
#include <QLabel>
#include <QVBoxLayout>

CompareChildFrame::CompareChildFrame(CompareFrame *parent)
    : QFrame(parent)
{
    m_layout = new QVBoxLayout(this);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_zoomUI = new ZoomUI(this);
    // Below the zoom buttons: the name, and the zoom below it.
    const int line = GlobalClass::GetActualSize(30);
    m_scalePercent = new QLabel(this);
    m_scalePercent->setObjectName("scalePercentLabel");
    m_scalePercent->setGeometry(20, GlobalClass::GetActualSize(60), 150, line);
    m_name = new QCheckBox(this);
    m_name->setGeometry(20, line, 1000, line);
    m_name->setEnabled(false); // it only displays
    m_name->setStyleSheet("color: black;");
}

void CompareChildFrame::SetChecked(bool checked)
{
    m_name->setChecked(checked);
    m_name->setStyleSheet(checked ? "color: rgb(255, 190, 0);" : "color: black;");
}

void CompareChildFrame::AttachFrame(GPUDrawFrame *frame, QObject *infoSource, const QString &text)
{
    DetachFrame();
    m_infoSource = infoSource;
    if (m_infoSource)
        ConnectInfoSource();
    m_frame = frame;
    m_layout->addWidget(frame);
    ConnectView();

    m_scalePercent->clear(); // of the picture before, until this one announces its own
    frame->show();
    m_layout->activate(); // the view fits the size the frame has here
    FitView();
    m_zoomUI->raise();
    m_scalePercent->raise();
    m_name->raise();
    m_name->setText(text);
}

void CompareChildFrame::ConnectInfoSource()
{
    m_connections << connect(m_infoSource, SIGNAL(signalUpdateFileNameAndSize(QString)),
                             this, SLOT(slotUpdateFileNameAndSize(QString)));
    m_connections << connect(m_infoSource, SIGNAL(signalResetImageInfo()), this, SLOT(slotResetImageInfo()));
}

void CompareChildFrame::ConnectView()
{
    DrawViewBase *view = GetView();
    m_connections << connect(m_zoomUI, SIGNAL(signalZoomIn()), view, SLOT(slotZoomIn()));
    m_connections << connect(m_zoomUI, SIGNAL(signalZoomOut()), view, SLOT(slotZoomOut()));
    m_connections << connect(m_zoomUI, SIGNAL(signalZoom1v1()), view, SLOT(slotZoom1v1()));
    m_connections << connect(m_zoomUI, SIGNAL(signalZoomFit()), view, SLOT(slotZoomFit()));
    m_connections << connect(view, SIGNAL(signalScaleFactorChanged(double)), this, SLOT(slotUpdateScaleFactor(double)));
    m_connections << connect(view, SIGNAL(signalCompareScale(int, QPointF)),
                             parentWidget(), SLOT(slotCompareScale(int, QPointF)));
    m_connections << connect(view, SIGNAL(signalCompareMove(QPointF)),
                             parentWidget(), SLOT(slotCompareMove(QPointF)));
}

void CompareChildFrame::DetachFrame()
{
    if (m_frame)
        m_layout->removeWidget(m_frame);
    for (const QMetaObject::Connection &connection : qAsConst(m_connections))
        disconnect(connection);
    m_connections.clear();
    m_infoSource.clear();
    m_frame.clear();
}

GPUDrawFrame *CompareChildFrame::GetFrame() const
{
    return m_frame;
}

DrawViewBase *CompareChildFrame::GetView() const
{
    return m_frame ? m_frame->GetDrawFrame()->GetDrawView() : nullptr;
}

void CompareChildFrame::ApplyCompareScale(int delta, QPointF point)
{
    if (!m_frame)
        return;
    DrawViewBase *view = GetView();
    view->ZoomByDelta(delta);
    m_frame->GetDrawFrame()->SetSliderPosition(point);
    if (view->IsGPUDraw()) { // scrolls by itself: its frame has nothing to scroll
        view->slotHorizontalScrollBarValueChanged(int(point.x()));
        view->slotVerticalScrollBarValueChanged(int(point.y()));
    }
}

void CompareChildFrame::ApplyCompareMove(QPointF delta)
{
    if (m_frame)
        m_frame->MoveImage(delta);
}

void CompareChildFrame::slotUpdateScaleFactor(double percentage)
{
    m_scalePercent->setText(QString::number(percentage * 100, 'f', 2) + " %");
}

void CompareChildFrame::slotUpdateFileNameAndSize(QString text)
{
    m_name->setText(text);
}

void CompareChildFrame::slotResetImageInfo()
{
    m_name->setText(QString());
    m_scalePercent->clear();
}

void CompareChildFrame::mousePressEvent(QMouseEvent *)
{
    if (DrawViewBase *view = GetView())
        emit signalFramePressed(view->scene());
    SetChecked(true);
    emit signalFrameChecked(this);
}

void CompareChildFrame::resizeEvent(QResizeEvent *)
{
    m_zoomUI->setGeometry(0, 0, width(), GlobalClass::GetActualSize(30));
    FitView();
}

void CompareChildFrame::FitView()
{
    if (DrawViewBase *view = GetView())
        view->ZoomFit();
}
