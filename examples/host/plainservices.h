// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "advancedprocessmanager.h"
#include "algspectrometer.h"
#include "autocountmanager.h"
#include "cameraconfigmanager.h"
#include "cameralist.h"
#include "cameramanager.h"
#include "cameranamemanager.h"
#include "comparesaver.h"
#include "coverconfigmanager.h"
#include "displaymodemanager.h"
#include "displaymodeuimanager.h"
#include "filesavemanager.h"
#include "fluorescencesynthesismanager.h"
#include "framemanager.h"
#include "frameprocessmanager.h"
#include "framesavemanager.h"
#include "histogramcalculatemanager.h"
#include "imagecore.h"
#include "imagemanager.h"
#include "intensitymanager.h"
#include "measureconfigmanager.h"
#include "measuremanager.h"
#include "pixelinfomanager.h"
#include "reportmanager.h"
#include "roimanager.h"
#include "spectrummanager.h"
#include "spectrumuimanager.h"
#include "thumbnaillist.h"
#include "useareamanager.h"

// The services that a host needs before it has something to say through them: nothing is open,
// nothing is measured, nothing is saved. A real host replaces one after another by its own.

class PlainMeasureManager : public MeasureManager
{
public:
    void mouseMoveEvent(QMouseEvent *) override {}
    void mouseDoubleClickEvent(QMouseEvent *) override {}
    void SetScaleFactor() override {}
    void InitMeasuring() override {}
    void SetDialogParent(QWidget *) override {}
    bool IsMeasurementInProgress() const override { return false; }
};

class PlainReportManager : public ReportManager
{
public:
    void ClearAll() override {}
    void LineProfileMouseMoveEvent(QMouseEvent *) override {}
    void slotFinishSetBrush() override {}
    MeasureManager *GetMeasureManager() const override { return &m_measure; }
    QSize GetImageSize() const override { return m_imageSize; }
    QString GetFileName() const override { return {}; }

    void SetImageSize(const QSize &size) { m_imageSize = size; }

private:
    mutable PlainMeasureManager m_measure;
    QSize m_imageSize;
};

class PlainImageCore : public ImageCore
{
public:
    int GetDepth() const override { return 1; }
    int GetLeftLevel() const override { return 0; }
    int GetRightLevel() const override { return 255; }
};

class PlainImageManager : public ImageManager
{
public:
    void ClearAll() override {}
    void LineProfileMouseMoveEvent(QMouseEvent *) override {}
    void slotFinishSetBrush() override {}
    MeasureManager *GetMeasureManager() const override { return &m_measure; }
    QSize GetImageSize() const override { return {}; }
    QString GetFileName() const override { return {}; }
    QString GetFileInfo() const override { return {}; }
    QString GetImageSizeString() const override { return {}; }
    QString GetPixelString() const override { return {}; }
    QString GetExpansionArea() const override { return {}; }
    bool IsNonImage() const override { return true; }
    bool IsSenImage() const override { return false; }
    bool Is32BitMat() const override { return false; }
    int GetRotateDegree() const override { return 0; }
    ImageCore *GetImageCore() const override { return &m_core; }
    void SetImage(int) override {}
    void DrawImage() override {}
    void CloseImage() override {}
    void SetProcessType(int) override {}
    void SetAdjustApply(int) override {}
    void ConnectWidthDrawView(QObject *, bool) override {}
    void GetIntensityCurveHistogramData(QPointF, QRectF, int) override {}
    void slotRotateImage(int) override {}
    void slotSaveImageAs() override {}
    void slotImageCrop() override {}
    void slotImageInfo() override {}
    void slotCrop(int, int, int, int, bool) override {}
    void slotNewImageCopy(void *) override {}
    void slotMouseMoveEvent(QMouseEvent *) override {}
    void slotMousePressEvent(QMouseEvent *, QPointF) override {}
    void slotMouseReleaseEvent(QMouseEvent *) override {}
    void slotMouseDoubleClickEvent(QMouseEvent *) override {}

private:
    mutable PlainMeasureManager m_measure;
    mutable PlainImageCore m_core;
};

class PlainUseAreaManager : public UseAreaManager
{
public:
    int GetUseAreaType() const override { return 0; }
    bool IsSpectrumHidden() const override { return false; }
    bool IsAxisVisible() const override { return false; }
    bool IsCurveVisible() const override { return false; }
    bool IsColorCardVisible() const override { return false; }
    bool IsToolBarVisible() const override { return true; }
    bool IsInfoBarVisible() const override { return true; }
};

class PlainDisplayModeManager : public DisplayModeManager
{
};

class PlainSpectrumUIManager : public SpectrumUIManager
{
public:
    int GetDisplayMode() const override { return 0; }
    bool IsDisplayModeGeneral() const override { return true; }
    bool IsDisplayMode2D() const override { return false; }
    bool IsDisplayMode2DPeak() const override { return false; }
    bool IsDisplayMode3D() const override { return false; }
    bool IsDisplayModePhysics() const override { return false; }
    void SetDisplayModeGeneral() override {}
    void UpdateDisplayModeProperty() override {}
    DisplayModeManager *GetDisplayModeManager() const override { return &m_displayMode; }
    int GetFVBOnFlag() const override { return 0; }
    void SetFVBOnFlag(int) override {}
    bool IsFVBModeAll() const override { return false; }
    bool IsFVBModeAuto() const override { return false; }
    bool GetManualFlag() const override { return false; }
    int GetTop() const override { return 0; }
    void SetTop(int) override {}
    int GetBottom() const override { return 0; }
    void SetBottom(int) override {}
    bool GetMultiTrackOnFlag() const override { return false; }
    void SetMultiTrackOnFlag(bool) override {}
    QList<QRectF> GetMultiTrackList() const override { return {}; }
    bool GetSpeSelectionFlag() const override { return false; }
    int GetSpectrumSelectionMode() const override { return 0; }
    bool GetFocusAssitanceFlag() const override { return false; }
    void SetFocusAssitanceFlag(bool) override {}
    bool IsDirectionHorinzontal() const override { return true; }
    void SetDirectionHorizontal() override {}
    void SlotNewArea(double, double, double, double) override {}
    void SlotImageNewArea(double, double, double, double) override {}
    void CalculateImageArea() override {}
    bool Calculate(int, double &) const override { return false; }
    bool IsValidConversation(QString *) const override { return false; }
    QPen GetLinePen() const override { return {}; }
    QColor GetLineColor() const override { return {}; }
    double GetLineWidth() const override { return 1.0; }
    int GetLineStyle() const override { return 0; }
    QPen GetPeakPen() const override { return {}; }
    QColor GetPeakColor() const override { return {}; }
    double GetPeakSize() const override { return 0.0; }
    int GetPeakNumber() const override { return 0; }
    QColor GetBackgroundColor() const override { return {}; }
    double GetBlankRatio() const override { return 0.1; }
    QString GetTitleName() const override { return {}; }
    bool GetZoomAutoFlag() const override { return false; }
    void SetZoomAutoFlag(bool) override {}

private:
    mutable PlainDisplayModeManager m_displayMode;
};

class PlainFrameSaveManager : public FrameSaveManager
{
public:
    bool IsAutoStop() const override { return false; }
    bool IsTotalFrameChecked() const override { return false; }
    int GetProgressBarMaxValue() const override { return 0; }
    bool IsRecordMode() const override { return false; }
};

class PlainCompareSaver : public CompareSaver
{
};

class PlainThumbnailList : public ThumbnailList
{
public:
    void SetCompareSubMenuChecked(bool) override {}
    CompareSaver *GetCompareSaver() const override { return &m_compareSaver; }
    void slotSetSelectButtonVisible(bool) override {}
    void slotAddThumbnail(QImage) override {}
    void slotAddToThumbnailList(QString) override {}

private:
    mutable PlainCompareSaver m_compareSaver;
};

class PlainAdvancedProcessManager : public AdvancedProcessManager
{
public:
    void slotMergeImages(QList<QString>) override {}
};

class PlainAlgSpectrometer : public AlgSpectrometer
{
public:
    void Findcurvepeak(unsigned int *, int, int, std::vector<int> &, int, float, int) override {}
};

class PlainAutoCountManager : public AutoCountManager
{
public:
    bool IsCounting() const override { return false; }
};

class PlainCameraConfigManager : public CameraConfigManager
{
public:
    void UpdateGraphicsRegionItem() override {}
};

class PlainCameraNameManager : public CameraNameManager
{
public:
    QString GetCameraName() const override { return {}; }
};

class PlainCoverConfigManager : public CoverConfigManager
{
public:
    void ResetCover() override {}
    void slotStopManualCover() override {}
    void slotManualCoverFinished(QRect) override {}
    void slotScaleFactorChanged(double) override {}
};

class PlainDisplayModeUIManager : public DisplayModeUIManager
{
public:
    int GetCurrentDisplayMode() const override { return 0; }
    void CalculatePreviewArea() override {}
    void SetImageExpansionAreaFlag(bool) override {}
    void SetImageExpansionArea(const QString &) override {}
};

class PlainFileSaveManager : public FileSaveManager
{
public:
    int GetTimeInMs(const TIME_MIN_S_MS &) const override { return 0; }
    TIME_MIN_S_MS GetConfiguredTime() const override { return {}; }
    bool IsSaveToRAM() const override { return false; }
};

class PlainFluorescenceSynthesisManager : public FluorescenceSynthesisManager
{
};

class PlainFrameProcessManager : public FrameProcessManager
{
public:
    void slotScaleFactorChanged(double) override {}
};

class PlainHistogramCalculateManager : public HistogramCalculateManager
{
public:
    void SetHistogramStatisticsState(bool) override {}
};

class PlainIntensityManager : public IntensityManager
{
public:
    void SetAnchorPoint(int, int, QRectF) override {}
};

class PlainMeasureConfigManager : public MeasureConfigManager
{
};

class PlainPixelInfoManager : public PixelInfoManager
{
public:
    void slotUpdateMousePosition(QPointF) override {}
};

class PlainROIManager : public ROIManager
{
public:
    bool IsROIChecked() const override { return false; }
    void SetManualROIChecked(bool) override {}
    void slotStopManualROI() override {}
    void slotScaleFactorChanged(double) override {}
};

class PlainSpectrumManager : public SpectrumManager
{
public:
    QList<QPointF> GetEndPointList() const override { return {}; }
    QList<float> GetAngleList() const override { return {}; }
    QList<float> GetDistanceList() const override { return {}; }
    QList<QPoint> GetLinePointList() const override { return {}; }
    QList<QRect> GetExtendRectList() const override { return {}; }
    void ClearFocusInfo() override {}
};

class PlainCameraManager : public CameraManager
{
public:
    void slotSetMirrorRotate(int) override {}
};

class PlainCameraList : public CameraList
{
};

class PlainFrameManager : public FrameManager
{
public:
    quint16 GetFrameWidth() const override { return 0; }
    quint16 GetFrameHeight() const override { return 0; }
};
