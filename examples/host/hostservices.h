// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plainservices.h"

#include "cameramainmanager.h"
#include "globalmanager.h"
#include "previewmanager.h"
#include "uiconfigmanager.h"
#include "viewcodes.h"

/// The current view, in memory only: a real host keeps indices and flags in its settings.
class HostConfig : public UIConfigManager
{
public:
    int GetCurrentView() const override { return m_view; }
    int GetLeftStackedWidgetIndex() const override;
    int GetCenterStackedWidgetIndex() const override;
    int GetLeftUIIndex() const override { return m_leftIndex; }
    int GetRightUIIndex() const override { return m_rightIndex; }
    int GetBottomUIIndex() const override { return m_bottomIndex; }
    int GetCameraUIIndex() const override { return m_cameraIndex; }
    void SetLeftUIIndex(int index) override { m_leftIndex = index; }
    void SetRightUIIndex(int index) override { m_rightIndex = index; }
    void SetBottomUIIndex(int index) override { m_bottomIndex = index; }
    void SetCameraUIIndex(int index) override { m_cameraIndex = index; }
    bool IsLeftToggleVisible() const override { return true; }
    bool IsRightButtonsAvailable() const override { return true; }
    bool IsBottomToggleVisible() const override { return true; }
    bool IsLeftUIChecked() const override { return m_leftShown; }
    bool IsRightUIChecked() const override { return m_rightShown; }
    bool IsBottomUIChecked() const override { return m_bottomShown; }
    void SetLeftUIChecked(bool shown) override { m_leftShown = shown; }
    void SetRightUIChecked(bool shown) override { m_rightShown = shown; }
    void SetBottomUIChecked(bool shown) override { m_bottomShown = shown; }
    bool IsCPUDraw() const override { return true; }
    void SetCPUDraw(bool cpuFlag, bool) override { emit signalSetCPUDraw(cpuFlag); }
    void SetCameraView() override { SwitchTo(CameraView); }
    void SetFileView() override { SwitchTo(FileView); }
    void SetCompareView() override {}
    void FileViewReturn() override { SwitchTo(m_viewBeforeFile); }
    void UpdateCameraControlUI() override { emit signalUpdateCameraControlUI(); }
    void slotFileViewReturn() override { FileViewReturn(); }
    void slotSetFileView() override { SetFileView(); }
    void slotConvertToCSV() override {}
    void slotModifyDPI() override {}

private:
    void SwitchTo(int view);

    int m_view = CameraView;
    int m_viewBeforeFile = CameraView;
    int m_leftIndex = 0;
    int m_rightIndex = 0;
    int m_bottomIndex = 0;
    int m_cameraIndex = 0;
    bool m_leftShown = true;
    bool m_rightShown = true;
    bool m_bottomShown = true;
};

/// The report and image managers of the host; the camera's is always the active one.
class HostGlobal : public GlobalManager
{
public:
    ReportManager *GetReportManager() const override { return GetCameraReportManager(); }
    ReportManager *GetCameraReportManager() const override { return &m_camera; }
    ImageManager *GetActiveImageManager() const override { return GetMainImageManager(); }
    ImageManager *GetMainImageManager() const override { return &m_main; }
    ImageManager *GetCompareImageManager() const override { return &m_compare; }
    CameraManager *GetCameraManager() const override { return &m_cameraManager; }
    CameraList *GetCameraList() const override { return &m_cameraList; }
    bool IsCameraView() const override { return UIConfigManager::GetInstance()->GetCurrentView() == CameraView; }
    bool IsImageEnabled() const override { return false; }
    bool IsMeasureEnabled() const override { return false; }
    bool IsDrawViewCanMove() const override { return true; }
    void MousePressEvent(QMouseEvent *, const QPointF &) override {}
    void QuitCompare() override {}
    void UpdateReportManager() override {}
    void SetCameraGraphicsScene(QGraphicsScene *) override {}
    void SetImageGraphicsScene(QGraphicsScene *) override {}
    void SetImageGraphicsSceneEx(QGraphicsScene *) override {}
    void slotSetCompareView() override {}
    void slotRename(QObject *, QString) override {}
    void slotCloseAllImage() override {}
    void slotCloseImage(QObject *) override {}
    void slotSetImageChecked(QObject *, bool) override {}
    void slotSetAllImageChecked(bool) override {}
    void slotSaveCompare() override {}
    void slotOpenImage(QString, QObject *) override {}
    void slotSetGraphicsScene(QGraphicsScene *) override {}

private:
    mutable PlainReportManager m_camera;
    mutable PlainImageManager m_main;
    mutable PlainImageManager m_compare;
    mutable PlainCameraManager m_cameraManager;
    mutable PlainCameraList m_cameraList;
};

/// A preview of its own making: a bar that runs through a ramp, 25 times a second.
class HostPreview : public PreviewManager
{
public:
    ~HostPreview() override { StopPreview(); }

    bool StartPreview() override;
    bool StopPreview() override;
    void RestoreStopPreview() override {}
    void FrameSave(bool, bool) override {}
    const RawCameraFrame *GetCurrentRawFrame() const override { return nullptr; }
    void slotManualROI(int, int, int, int, bool) override {}

protected:
    void run() override;
};

/// The camera behind that preview.
class HostCamera : public CameraMainManager
{
public:
    const char *GetCommunicationInterface() const override { return "built in"; }
    int GetCommunicationInterfaceID() const override { return 1; }
    int GetVID() const override { return 0; }
    int GetPID() const override { return 0; }
    int GetRotateDegree() const override { return 0; }
    bool IsAnyBinOpen() const override { return false; }
    bool IsSupportCapa(int) const override { return false; }
    bool IsSupportDisplayFWAndSN() const override { return false; }
    QByteArray GetFirmwareVersion() const override { return {}; }
    QByteArray GetSerialNumber() const override { return {}; }
    int GetBitDepth() const override { return 8; }
    bool HasHardwareSettings() const override { return false; }
    bool IsSupportHorizontalMirror() const override { return false; }
    bool IsSupportVerticalMirror() const override { return false; }
};

/// Everything the module asks for, in the order of their needs; make it before the module.
struct HostServices
{
    HostConfig config;
    PlainUseAreaManager useArea;
    HostGlobal global;
    PlainAdvancedProcessManager advancedProcess;
    PlainFluorescenceSynthesisManager fluorescence;
    HostPreview preview;
    PlainPixelInfoManager pixelInfo;
    PlainIntensityManager intensity;
    PlainHistogramCalculateManager histogram;
    PlainFrameProcessManager frameProcess;
    PlainFrameManager frame;
    PlainFrameSaveManager frameSave;
    PlainFileSaveManager fileSave;
    PlainCameraNameManager cameraName;
    PlainCameraConfigManager cameraConfig;
    PlainCoverConfigManager cover;
    PlainROIManager roi;
    PlainMeasureConfigManager measureConfig;
    PlainAutoCountManager autoCount;
    PlainSpectrumUIManager spectrumUI;
    PlainSpectrumManager spectrum;
    PlainDisplayModeUIManager displayMode;
    PlainAlgSpectrometer algorithm;
    /// The module's bottom tabs take it.
    PlainThumbnailList *thumbnails = new PlainThumbnailList;
};
