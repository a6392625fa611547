// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>

/// Workspace configuration: the current view, the stored tab indices, which panels are shown, and
/// the drawing choice. The host stores it across starts.
class GLOBALUI_SERVICES_EXPORT UIConfigManager : public QObject
{
    Q_OBJECT

public:
    static UIConfigManager *GetInstance();
    ~UIConfigManager() override;

    /// The current view, a ViewCode.
    virtual int GetCurrentView() const = 0;

    /// Page of the left stack and of the centre stack that belongs to the current view.
    virtual int GetLeftStackedWidgetIndex() const = 0;
    virtual int GetCenterStackedWidgetIndex() const = 0;

    /// Stored tab indices: of the image panel (kept as the left-UI index), the right tabs, the
    /// bottom tabs and the camera panel.
    virtual int GetLeftUIIndex() const = 0;
    virtual int GetRightUIIndex() const = 0;
    virtual int GetBottomUIIndex() const = 0;
    virtual int GetCameraUIIndex() const = 0;
    virtual void SetLeftUIIndex(int index) = 0;
    virtual void SetRightUIIndex(int index) = 0;
    virtual void SetBottomUIIndex(int index) = 0;
    virtual void SetCameraUIIndex(int index) = 0;

    /// Whether the folding buttons around the centre may be shown.
    virtual bool IsLeftToggleVisible() const = 0;
    virtual bool IsRightButtonsAvailable() const = 0;
    virtual bool IsBottomToggleVisible() const = 0;

    /// Whether the left, right and bottom panels are shown.
    virtual bool IsLeftUIChecked() const = 0;
    virtual bool IsRightUIChecked() const = 0;
    virtual bool IsBottomUIChecked() const = 0;
    virtual void SetLeftUIChecked(bool shown) = 0;
    virtual void SetRightUIChecked(bool shown) = 0;
    virtual void SetBottomUIChecked(bool shown) = 0;

    /// The stored drawing choice: CPU (true) or GPU (false).
    virtual bool IsCPUDraw() const = 0;
    /// Stores the choice and announces it with signalSetCPUDraw(); with `force` it is announced
    /// even when nothing changes.
    virtual void SetCPUDraw(bool cpuFlag, bool force) = 0;

    /// Change the current view and emit signalSwitchView().
    virtual void SetCameraView() = 0;
    virtual void SetFileView() = 0;
    /// Enters the compare view that suits the page now shown, or leaves it again.
    virtual void SetCompareView() = 0;
    /// Back from the file browser to the view before it.
    virtual void FileViewReturn() = 0;

    /// Emits signalUpdateCameraControlUI().
    virtual void UpdateCameraControlUI() = 0;

public slots:
    virtual void slotFileViewReturn() = 0;
    virtual void slotSetFileView() = 0;
    /// Runs the convert-to-CSV command for the open file.
    virtual void slotConvertToCSV() = 0;
    /// Runs the modify-DPI command for the open file.
    virtual void slotModifyDPI() = 0;

signals:
    void signalSwitchView();
    void signalSetCPUDraw(bool cpuFlag);
    void signalUpdateCameraControlUI();
    void signalUpdateImageControlUI();
    void signalUpdateMeasureControlUI();
    /// Mouse position or scale factor of a view changed; draw views emit it too.
    void signalImageInfoChanged();
    void signalSetMergeButtonVisible(bool visible);
    void signalSetSelectButtonVisible(bool visible);
    void signalAddToThumbnailList(QString fileName);

protected:
    explicit UIConfigManager(QObject *parent = nullptr);
};
