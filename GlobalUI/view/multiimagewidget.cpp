// SPDX-License-Identifier: GPL-3.0-or-later
#include "multiimagewidget.h"

#include "globalmanager.h"
#include "imagemanager.h"
#include "multiimagetoolui.h"

#include <QVBoxLayout>

MultiImageWidget::MultiImageWidget(QWidget *parent)
    : QWidget(parent)
{
    setContentsMargins(0, 0, 0, 0);
    m_layout = new QVBoxLayout(this);
    m_layout->setSpacing(0);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_tool = new MultiImageToolUI(nullptr); // reparented by the layout
    m_layout->addWidget(m_tool);
    m_tool->hide();
    connect(m_tool, SIGNAL(SignalScrollbarValueChanged(int)), this, SLOT(SlotScrollValueChanged(int)));
}

void MultiImageWidget::SetView(QWidget *view)
{
    m_view = view;
    m_layout->insertWidget(0, m_view);
}

void MultiImageWidget::SlotScrollValueChanged(int value)
{
    qDebug("SlotScrollValueChanged:%d", value);
    if (ImageManager *image = GlobalManager::GetInstance()->GetActiveImageManager())
        image->SetImage(value);
}

void MultiImageWidget::SlotCurrentFileFrameNumber(int value)
{
    m_tool->raise();
    m_tool->setVisible(value >= 2);
    m_tool->SetFrameCount(value);
    m_tool->SetCurrentFrame(0);
}

void MultiImageWidget::SlotCurrentFrame(int index) { m_tool->SetCurrentFrame(index); }
