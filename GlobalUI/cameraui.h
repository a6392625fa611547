// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "uimanagerbase.h"

#include <QPointer>

class CameraSpectrumStackedWidget;
class CameraStackedWidget;
class CapturePreviewUI;
class QStackedWidget;
class QTabWidget;

/// The camera's side of the window: its control page, its centre pages (image and spectrum) and its
/// plug-in panels. Owned by GlobalUI; the widgets belong to the window once they are placed.
class CameraUI : public UIManagerBase
{
    Q_OBJECT

public:
    CameraUI();
    ~CameraUI() override;

    void LoadPluginUI(QWidget *parent);
    /// A new page of the left stack; the last one built is kept up to date.
    QWidget *GetControlScrollArea();
    QStackedWidget *CreateCenterWidget(QWidget *parent);
    void OnDisplayModeChange();

    /// Null before CreateCenterWidget().
    CameraStackedWidget *GetImageStack() const;

public slots:
    void slotCameraTabWidgetCurrentChanged(int index);
    void slotUpdateUI();

private:
    void UpdatePlugins(bool cameraPresent);
    void RebuildTabs(bool hasHardwareSettings);
    void PlaceLastTabs(bool hasHardwareSettings);

    QPointer<CapturePreviewUI> m_capturePreviewUI;
    QPointer<QTabWidget> m_leftTabWidget;
    QPointer<QStackedWidget> m_centerStack;
    QPointer<CameraStackedWidget> m_imageStack;
    QPointer<CameraSpectrumStackedWidget> m_spectrumStack;
};
