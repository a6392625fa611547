// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrum3ddrawframebase.h"

#include "spectrum3ddrawviewbase.h"

#include <QDebug>
#include <QResizeEvent>

Spectrum3DDrawFrameBase::Spectrum3DDrawFrameBase(QWidget *parent)
    : QWidget(parent)
    , m_view(new Spectrum3DDrawViewBase(this))
{
    GlobalAttachObserver(this);
}

void Spectrum3DDrawFrameBase::resizeEvent(QResizeEvent *event)
{
    qDebug() << "Spectrum3DDrawFrameBase::resizeEvent:" << event->size();
    m_view->resize(event->size());
}
