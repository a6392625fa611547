// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "stackedwidgetbase.h"

/// The page of an opened picture file. It also makes the second frame, hidden until the compare
/// frame shows it beside the main one.
class ImageStackedWidget : public StackedWidgetBase
{
    Q_OBJECT

public:
    /// The second frame becomes a child of `parent`.
    explicit ImageStackedWidget(QWidget *parent);

    void UpdateViewOverlays() override;

    /// Null when the compare frame was destroyed with the frame in it.
    GPUDrawFrame *GetSecondFrame() const;
    DrawViewBase *GetSecondDrawView() const;

public slots:
    void slotUpdateImageInfoUI() override;
    /// `type` is a RotateType.
    void slotRotateImage(int type);
    void slotSaveImageAs();
    void slotImageCrop();
    void slotImageInfo();

private:
    void BindMainFrame();
    void ConnectCommands();
    void CreateSecondFrame(QWidget *parent);

    QPointer<GPUDrawFrame> m_secondFrame;
};
