// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <QPointF>
#include <QString>

class CompareChildFrame;
class GPUDrawFrame;

/// Two pictures side by side. A wheel zoom or a pan drag in one is repeated in the other, unless the
/// Ctrl key is held; the half that was clicked last is the checked one. The picture frames are lent
/// by the view stacks, which take them back when comparing ends.
class CompareFrame : public QFrame
{
    Q_OBJECT

public:
    explicit CompareFrame(QWidget *parent = nullptr);

    /// Lend a frame to the left half, which becomes the checked one, and to the right half.
    /// `infoSource` announces the picture's name and size; null when nobody does.
    void AttachLeftFrame(GPUDrawFrame *frame, QObject *infoSource, const QString &text);
    void AttachRightFrame(GPUDrawFrame *frame, QObject *infoSource, const QString &text);
    void DetachFrames();
    /// The frame lent to the left half, or null.
    GPUDrawFrame *GetLeftFrame() const;
    /// Checks the left half or else the right one; the other one loses it.
    void SetLeftChecked(bool leftChecked);
    /// Connects signalFramePressed() of both halves, left first, to the receiver's
    /// slotSetGraphicsScene(QGraphicsScene*).
    void ConnectFramePressed(QObject *receiver);

public slots:
    void slotCompareScale(int delta, QPointF point);
    void slotCompareMove(QPointF point);
    void slotFrameChecked(QObject *frame);

protected:
    /// While the Ctrl key is down each picture is moved alone.
    virtual bool IsLinkSuspended() const;

private:
    /// The half that follows the view whose signal is being handled; null when it is none of ours.
    CompareChildFrame *FollowingHalf() const;

    CompareChildFrame *m_left = nullptr;
    CompareChildFrame *m_right = nullptr;
};
