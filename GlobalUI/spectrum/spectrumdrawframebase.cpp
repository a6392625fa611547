// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumdrawframebase.h"

#include "spectrumdrawviewbase.h"

#include <QDebug>
#include <QResizeEvent>
#include <QScrollBar>
#include <QWheelEvent>

SpectrumDrawFrameBase::SpectrumDrawFrameBase(QWidget *parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame); // the curves and rulers beside it begin where the picture does
    m_drawView = new SpectrumDrawViewBase(this);
    setWidget(m_drawView);
    m_drawView->SetParentFrame(parent);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(m_drawView, SIGNAL(SignalSetSliderPosition(QPointF)), this, SLOT(SlotSetSliderPosition(QPointF)));
}

void SpectrumDrawFrameBase::SlotSetSliderPosition(QPointF point)
{
    UpdateScrollRanges();
    horizontalScrollBar()->setSliderPosition(int(point.x()));
    verticalScrollBar()->setSliderPosition(int(point.y()));
}

void SpectrumDrawFrameBase::SlotValueChange(int) {}

void SpectrumDrawFrameBase::UpdateScrollRanges()
{
    const QSize hidden = m_drawView->size() - maximumViewportSize();
    horizontalScrollBar()->setRange(0, hidden.width());
    verticalScrollBar()->setRange(0, hidden.height());
}

void SpectrumDrawFrameBase::resizeEvent(QResizeEvent *event)
{
    qDebug() << "SpectrumDrawFrameBase::resizeEvent" << event->size();
    QScrollArea::resizeEvent(event);
}

void SpectrumDrawFrameBase::wheelEvent(QWheelEvent *event) { event->ignore(); }
