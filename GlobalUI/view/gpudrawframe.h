// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>
#include <QWidget>

class DrawFrameBase;
class QScrollBar;

/// Hosts a draw view in its frame and switches it between CPU and GPU drawing. With GPU drawing its
/// own scroll bars beside the frame mirror the hidden ones of the view and scroll the picture.
class GPUDrawFrame : public QWidget
{
    Q_OBJECT

public:
    explicit GPUDrawFrame(QWidget *parent = nullptr);
    ~GPUDrawFrame() override;

    /// Moves the picture by as many screen pixels: right and down are positive.
    void MoveImage(QPointF delta);
    /// Lets the receiver ask for the next frame in the scene's background. It has the signal
    /// signalSetBrush() and the slot slotFinishSetBrush().
    void ConnectSetBrush(QObject *receiver);

    DrawFrameBase *GetDrawFrame() const;

public slots:
    void slotSetCPUDraw(bool cpuFlag);
    void slotSetHorizontalScrollBarVisible(bool value);
    void slotSetVerticalScrollBarVisible(bool value);
    /// Copy range, page step and position of the view's bar.
    void slotUpdateHorizontalScrollBar(QScrollBar *scrollBar);
    void slotUpdateVerticalScrollBar(QScrollBar *scrollBar);
    void slotHorizontalScrollBarValueChanged(int value);
    void slotVerticalScrollBarValueChanged(int value);

signals:
    void signalHorizontalScrollBarValueChanged(int value);
    void signalVerticalScrollBarValueChanged(int value);

private:
    void SetupUi();

    QScrollBar *m_horizontalScrollBar;
    QScrollBar *m_verticalScrollBar;
    DrawFrameBase *m_drawFrame;
};
