// SPDX-License-Identifier: GPL-3.0-or-later
#include "gpudrawframe.h"

#include "drawframebase.h"
#include "drawviewbase.h"

#include <QGridLayout>
#include <QScrollBar>
#include <QSignalBlocker>

namespace {

void CopyScrollBar(const QScrollBar *from, QScrollBar *to)
{
    const int position = from->sliderPosition();
    {
        // The old position, cut off by a smaller range, must not scroll the view.
        const QSignalBlocker blocker(to);
        to->setRange(from->minimum(), from->maximum());
        to->setPageStep(from->pageStep());
    }
    to->setSliderPosition(position);
}

} // namespace

GPUDrawFrame::GPUDrawFrame(QWidget *parent)
    : QWidget(parent)
{
    SetupUi();

    m_drawFrame = new DrawFrameBase(this);
    static_cast<QGridLayout *>(layout())->addWidget(m_drawFrame, 0, 0);

    connect(m_horizontalScrollBar, SIGNAL(valueChanged(int)), this,
            SLOT(slotHorizontalScrollBarValueChanged(int)));
    connect(m_verticalScrollBar, SIGNAL(valueChanged(int)), this,
            SLOT(slotVerticalScrollBarValueChanged(int)));

    m_horizontalScrollBar->hide();
    m_verticalScrollBar->hide();
}

GPUDrawFrame::~GPUDrawFrame() = default;

void GPUDrawFrame::SetupUi()
{
    setObjectName("GPUDrawFrame");
    resize(680, 576);
    setWindowTitle(tr("Form"));

    auto *gridLayout = new QGridLayout(this);
    gridLayout->setObjectName("gridLayout");
    gridLayout->setSpacing(0);
    gridLayout->setContentsMargins(0, 0, 0, 0);

    m_horizontalScrollBar = new QScrollBar(Qt::Horizontal, this);
    m_horizontalScrollBar->setObjectName("horizontalScrollBar");
    gridLayout->addWidget(m_horizontalScrollBar, 1, 0);

    m_verticalScrollBar = new QScrollBar(Qt::Vertical, this);
    m_verticalScrollBar->setObjectName("verticalScrollBar");
    gridLayout->addWidget(m_verticalScrollBar, 0, 1);

    QMetaObject::connectSlotsByName(this);
}

void GPUDrawFrame::MoveImage(QPointF delta)
{
    m_drawFrame->MoveImage(delta);
    m_horizontalScrollBar->setSliderPosition(int(m_horizontalScrollBar->value() - delta.x()));
    m_verticalScrollBar->setSliderPosition(int(m_verticalScrollBar->value() - delta.y()));
}

void GPUDrawFrame::ConnectSetBrush(QObject *receiver)
{
    if (!receiver)
        return;
    connect(receiver, SIGNAL(signalSetBrush()), m_drawFrame->GetDrawView(), SLOT(slotSetBrush()));
    connect(m_drawFrame->GetDrawView(), SIGNAL(signalFinishSetBrush()), receiver, SLOT(slotFinishSetBrush()));
}

DrawFrameBase *GPUDrawFrame::GetDrawFrame() const { return m_drawFrame; }

void GPUDrawFrame::slotSetCPUDraw(bool cpuFlag)
{
    if (cpuFlag) {
        m_horizontalScrollBar->hide();
        m_verticalScrollBar->hide();
    }
    m_drawFrame->SetCPUDraw(cpuFlag);
}

void GPUDrawFrame::slotSetHorizontalScrollBarVisible(bool value) { m_horizontalScrollBar->setVisible(value); }

void GPUDrawFrame::slotSetVerticalScrollBarVisible(bool value) { m_verticalScrollBar->setVisible(value); }

void GPUDrawFrame::slotUpdateHorizontalScrollBar(QScrollBar *scrollBar)
{
    CopyScrollBar(scrollBar, m_horizontalScrollBar);
}

void GPUDrawFrame::slotUpdateVerticalScrollBar(QScrollBar *scrollBar)
{
    CopyScrollBar(scrollBar, m_verticalScrollBar);
}

void GPUDrawFrame::slotHorizontalScrollBarValueChanged(int value)
{
    emit signalHorizontalScrollBarValueChanged(value);
}

void GPUDrawFrame::slotVerticalScrollBarValueChanged(int value)
{
    emit signalVerticalScrollBarValueChanged(value);
}
