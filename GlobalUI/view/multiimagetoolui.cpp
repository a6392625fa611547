// SPDX-License-Identifier: GPL-3.0-or-later
#include "multiimagetoolui.h"

#include "globalclass.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScrollBar>

MultiImageToolUI::MultiImageToolUI(QWidget *parent)
    : QFrame(parent)
{
    BuildForm();
    setFixedHeight(GlobalClass::GetActualSize(15));
}

void MultiImageToolUI::BuildForm()
{
    setObjectName("MultiImageToolUI");
    setWindowTitle(tr("Form"));
    resize(578, 73);
    setStyleSheet("");
    auto *row = new QHBoxLayout(this);
    row->setObjectName("horizontalLayout");
    row->setSpacing(1);
    row->setContentsMargins(0, 1, 0, 1);

    m_scrollBar = new QScrollBar(Qt::Horizontal, this);
    m_scrollBar->setObjectName("horizontalScrollBar");
    m_scrollBar->setAccessibleName(tr("Frame"));
    m_scrollBar->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    m_scrollBar->setMinimumSize(0, 0);
    row->addWidget(m_scrollBar);

    m_pageInfo = new QLabel(this);
    m_pageInfo->setObjectName("labelPageInfo");
    m_pageInfo->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    m_pageInfo->setMinimumSize(60, 0);
    m_pageInfo->setAlignment(Qt::AlignCenter);
    row->addWidget(m_pageInfo);

    QMetaObject::connectSlotsByName(this);
}

void MultiImageToolUI::SetFrameCount(int count)
{
    m_frameCount = count;
    m_scrollBar->setRange(0, count - 1);
}

void MultiImageToolUI::SetCurrentFrame(int index)
{
    m_currentFrame = index;
    m_scrollBar->setValue(index);
    UpdateLabel();
}

void MultiImageToolUI::on_horizontalScrollBar_valueChanged(int value)
{
    m_currentFrame = value;
    emit SignalScrollbarValueChanged(value);
    UpdateLabel();
}

void MultiImageToolUI::UpdateLabel()
{
    m_pageInfo->setText(QString("%1/%2").arg(m_currentFrame + 1).arg(m_frameCount));
}
