// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>
#include <QScrollArea>

class DrawViewBase;

/// The scroll area around a draw view. With CPU drawing its scroll bars scroll the view, which is as
/// large as the scaled picture; with GPU drawing they are off. Child of the GPUDrawFrame.
class DrawFrameBase : public QScrollArea
{
    Q_OBJECT

public:
    explicit DrawFrameBase(QWidget *parent);
    ~DrawFrameBase() override;

    /// Moves the picture by as many screen pixels: right and down are positive.
    void MoveImage(QPointF delta);
    /// Scrolls to a position in screen pixels.
    void SetSliderPosition(QPointF pos);
    /// The same part of the picture is shown after it.
    void SetCPUDraw(bool cpuFlag);

    DrawViewBase *GetDrawView() const;

public slots:
    void slotMoveImage(QPointF point);
    void slotSetSliderPosition(QPointF point);

signals:
    /// The mouse moved beside the picture while nothing is being measured; frame coordinates.
    void signalEnableScaleFactor(QPoint point);

protected:
    void mouseMoveEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    /// Of the picture in what the frame shows, by whichever bars; screen pixels.
    QPoint PicturePosition() const;
    /// All of the view can be scrolled into what the frame shows of it.
    void UpdateScrollRanges();

    DrawViewBase *m_drawView;
};
