// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "uiconfigmanager.h"
#include "viewcodes.h"

class QSettings;

/// Panels of the left tabs on the camera page.
enum class CameraPanel { Camera, Adjustment, Hardware, Acquisition };

/// The workspace of the application: which view is shown, which panels and tabs, and how the live
/// picture is drawn. Every change but that of the view is stored at once; a start begins with the
/// camera. GUI thread.
class WorkspaceConfig : public UIConfigManager
{
    Q_OBJECT

public:
    /// `settings` is borrowed and outlives this object.
    explicit WorkspaceConfig(QSettings *settings, QObject *parent = nullptr);

    int GetCurrentView() const override;
    /// The current view; while files are browsed the one before.
    ViewCode WorkedView() const;
    int GetLeftStackedWidgetIndex() const override;
    int GetCenterStackedWidgetIndex() const override;
    int GetLeftUIIndex() const override;
    int GetRightUIIndex() const override;
    int GetBottomUIIndex() const override;
    int GetCameraUIIndex() const override;
    void SetLeftUIIndex(int index) override;
    void SetRightUIIndex(int index) override;
    void SetBottomUIIndex(int index) override;
    void SetCameraUIIndex(int index) override;

    bool IsLeftToggleVisible() const override;
    bool IsRightButtonsAvailable() const override;
    bool IsBottomToggleVisible() const override;
    bool IsLeftUIChecked() const override;
    bool IsRightUIChecked() const override;
    bool IsBottomUIChecked() const override;
    void SetLeftUIChecked(bool shown) override;
    void SetRightUIChecked(bool shown) override;
    void SetBottomUIChecked(bool shown) override;

    bool IsCPUDraw() const override;
    void SetCPUDraw(bool cpuFlag, bool force) override;

    void SetCameraView() override;
    void SetImageView();
    void SetFileView() override;
    /// From the file browser the comparison suits the page before it.
    void SetCompareView() override;
    void FileViewReturn() override;

    void UpdateCameraControlUI() override;
    /// Goes to the camera page with this panel in front.
    void ShowCameraPanel(CameraPanel panel);
    /// Asks every panel to show the state of the services anew.
    void UpdateAllControlUI();
    /// Panels, tabs and drawing as on the first start; the view stays.
    void RestoreDefaults();

public slots:
    void slotFileViewReturn() override;
    void slotSetFileView() override;
    void slotConvertToCSV() override;
    void slotModifyDPI() override;

signals:
    /// Of the files selected on the file page, elsewhere of the picture that is worked on.
    void signalConvertToCSVWanted();
    void signalModifyDPIWanted();

private:
    struct Layout
    {
        int leftIndex = 0;
        int rightIndex = 0;
        int bottomIndex = 0;
        int cameraIndex = 0;
        bool leftShown = true;
        bool rightShown = false;
        bool bottomShown = false;
        bool cpuDraw = true;
    };

    void SwitchTo(ViewCode view);
    void Load();
    void Store() const;

    QSettings *m_settings;
    ViewCode m_view = CameraView;
    /// The view that the file browser was entered from.
    ViewCode m_viewBeforeFiles = CameraView;
    Layout m_layout;
};
