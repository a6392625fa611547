// SPDX-License-Identifier: GPL-3.0-or-later
#include "compareframe.h"

#include "comparechildframe.h"
#include "drawviewbase.h"
#include "globalclass.h"

#include <QHBoxLayout>

CompareFrame::CompareFrame(QWidget *parent)
    : QFrame(parent)
{
    setStyleSheet("CompareFrame{ background: white; }");
    m_left = new CompareChildFrame(this);
    m_right = new CompareChildFrame(this);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(1);
    row->addWidget(m_left, 1);
    row->addWidget(m_right, 1);

    for (CompareChildFrame *half : {m_left, m_right})
        connect(half, SIGNAL(signalFrameChecked(QObject *)), this, SLOT(slotFrameChecked(QObject *)));
}

void CompareFrame::AttachLeftFrame(GPUDrawFrame *frame, QObject *infoSource, const QString &text)
{
    m_left->AttachFrame(frame, infoSource, text);
    m_left->SetChecked(true);
}

void CompareFrame::AttachRightFrame(GPUDrawFrame *frame, QObject *infoSource, const QString &text)
{
    m_right->AttachFrame(frame, infoSource, text);
    m_right->SetChecked(false);
}

void CompareFrame::DetachFrames()
{
    m_left->DetachFrame();
    m_right->DetachFrame();
}

GPUDrawFrame *CompareFrame::GetLeftFrame() const
{
    return m_left->GetFrame();
}

void CompareFrame::SetLeftChecked(bool leftChecked)
{
    m_left->SetChecked(leftChecked);
    m_right->SetChecked(!leftChecked);
}

void CompareFrame::ConnectFramePressed(QObject *receiver)
{
    for (CompareChildFrame *half : {m_left, m_right}) {
        connect(half, SIGNAL(signalFramePressed(QGraphicsScene *)),
                receiver, SLOT(slotSetGraphicsScene(QGraphicsScene *)));
    }
}

void CompareFrame::slotCompareScale(int delta, QPointF point)
{
    if (IsLinkSuspended())
        return;
    if (CompareChildFrame *half = FollowingHalf())
        half->ApplyCompareScale(delta, point);
}

void CompareFrame::slotCompareMove(QPointF point)
{
    if (IsLinkSuspended())
        return;
    qDebug("CompareFrame::slotCompareMove, %lf %lf", point.x(), point.y());
    if (CompareChildFrame *half = FollowingHalf())
        half->ApplyCompareMove(point);
}

void CompareFrame::slotFrameChecked(QObject *frame)
{
    if (frame == m_left)
        m_right->SetChecked(false);
    else if (frame == m_right)
        m_left->SetChecked(false);
}

bool CompareFrame::IsLinkSuspended() const
{
    return GlobalClass::IsCtrlKeyPressed();
}

CompareChildFrame *CompareFrame::FollowingHalf() const
{
    const QObject *view = sender();
    if (!view)
        return nullptr;
    if (view == m_left->GetView())
        return m_right;
    if (view == m_right->GetView())
        return m_left;
    return nullptr;
}
