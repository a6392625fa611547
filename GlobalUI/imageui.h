// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "uimanagerbase.h"

#include <QPointer>

class ImageNavigateUI;
class ImageSpectrumStackedWidget;
class ImageStackedWidget;
class MultiImageWidget;
class QStackedWidget;

/// The picture file's side of the window: its control page, its centre pages (image and spectrum,
/// above the frame browser) and its plug-in panels. Owned by GlobalUI; the widgets belong to the
/// window once they are placed.
class ImageUI : public UIManagerBase
{
    Q_OBJECT

public:
    ImageUI();

    void LoadPluginUI(QWidget *parent);
    /// A new page of the left stack.
    QWidget *GetControlScrollArea();
    /// The wrapper with the frame browser that holds the image centre stack.
    QWidget *CreateCenterWidget(QWidget *parent);
    void OnDisplayModeChange();

    /// Null before CreateCenterWidget().
    ImageStackedWidget *GetImageStack() const;

public slots:
    /// The image tab is kept as the left-UI index.
    void slotImageTabWidgetCurrentChanged(int index);
    void slotUpdateImageControlUI();

private:
    QPointer<QStackedWidget> m_centerStack;
    QPointer<ImageStackedWidget> m_imageStack;
    QPointer<ImageSpectrumStackedWidget> m_spectrumStack;
    QPointer<ImageNavigateUI> m_navigateUI;
    QPointer<MultiImageWidget> m_multiImageWidget;
    QPointer<QTabWidget> m_leftTabWidget;
};
