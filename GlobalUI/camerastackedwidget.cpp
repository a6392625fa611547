// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerastackedwidget.h"

#include "acquireprogressui.h"
#include "cameramainmanager.h"
#include "cameramanager.h"
#include "coverconfigmanager.h"
#include "cropframe.h"
#include "drawviewbase.h"
#include "focusinfo.h"
#include "globalmanager.h"
#include "globalnotify.h"
#include "gpudrawframe.h"
#include "imageinfoui.h"
#include "pixelinfomanager.h"
#include "previewmanager.h"
#include "reportmanager.h"
#include "roimanager.h"
#include "spectrummanager.h"
#include "spectrumuimanager.h"
#include "uiconfigmanager.h"
#include "viewcodes.h"
#include "viewtoolbar.h"

CameraStackedWidget::CameraStackedWidget(QWidget *parent)
    : StackedWidgetBase(parent)
{
    m_infoBar = new ImageInfoUI(this, false);
    m_toolBar = new ViewToolBar(this, true);
    CameraStackedWidget::CreateDrawFrame();
    qDebug("CameraStackedWidget");
    m_progressPanel = new AcquireProgressUI(this);

    ConnectPreview();
    ConnectCamera();
    ConnectSpectrum();
    ConnectCropFrame();
    CameraStackedWidget::UpdateViewOverlays();
}

AcquireProgressUI *CameraStackedWidget::GetProgressPanel() const { return m_progressPanel; }

void CameraStackedWidget::ConnectPreview()
{
    DrawViewBase *view = GetMainDrawView();
    PreviewManager *preview = PreviewManager::GetInstance();
    UIConfigManager *config = UIConfigManager::GetInstance();
    connect(preview, SIGNAL(signalPreviewImage(QImage)), view, SLOT(slotPaintPreview(QImage)));
    connect(preview, SIGNAL(signalSetUpdatesEnabled(bool)), view, SLOT(slotSetUpdatesEnabled(bool)));
    connect(config, SIGNAL(signalSetCPUDraw(bool)), m_mainFrame, SLOT(slotSetCPUDraw(bool)));
    // Announces the stored choice, so that the frame takes it.
    config->SetCPUDraw(config->IsCPUDraw(), true);
}

void CameraStackedWidget::ConnectCamera()
{
    GlobalManager *global = GlobalManager::GetInstance();
    DrawViewBase *view = GetMainDrawView();
    global->SetCameraGraphicsScene(view->scene());
    view->SetViewManager(global->GetCameraReportManager());
    connect(m_toolBar, SIGNAL(signalRotateImage(int)), global->GetCameraManager(),
            SLOT(slotSetMirrorRotate(int)));
    connect(view, SIGNAL(signalUpdateMousePosition(QPointF)), PixelInfoManager::GetInstance(),
            SLOT(slotUpdateMousePosition(QPointF)));
    m_mainFrame->ConnectSetBrush(global->GetCameraReportManager());
    connect(global->GetCameraManager(), SIGNAL(signalUpdateRotateDegree(int)), m_infoBar,
            SLOT(slotUpdateRotateDegree(int)));
    connect(PixelInfoManager::GetInstance(), SIGNAL(signalUpdatePixelInfo(QPointF, QString)), m_infoBar,
            SLOT(slotUpdatePixelInfo(QPointF, QString)));
}

void CameraStackedWidget::ConnectSpectrum()
{
    SpectrumManager *spectrum = SpectrumManager::GetInstance();
    SpectrumUIManager *spectrumUI = SpectrumUIManager::GetInstance();
    connect(spectrum, SIGNAL(SignalSpectralineAutoDetectFinish()), this,
            SLOT(SlotSpectralineAutoDetectFinish()));
    connect(spectrumUI, SIGNAL(SignalAssitanceFocusClose()), this, SLOT(SlotAssitanceFocusClose()));
    connect(spectrum, SIGNAL(SignalSpectralineFVB()), this, SLOT(SlotSpectralineFVB()));
    connect(spectrumUI, SIGNAL(SignalMultiTrackOnFlagChanged()), this, SLOT(SlotMultiTrackFlagChanged()));
    connect(spectrumUI, SIGNAL(SignalFVBClose()), this, SLOT(SlotFVBClose()));
    connect(spectrumUI, SIGNAL(SignalFVBModeAll()), this, SLOT(SlotFVBClose()));
}

void CameraStackedWidget::ConnectCropFrame()
{
    DrawViewBase *view = GetMainDrawView();
    CropFrame *cropFrame = view->GetCropFrame();
    CoverConfigManager *cover = CoverConfigManager::GetInstance();
    ROIManager *roi = ROIManager::GetInstance();
    connect(cover, SIGNAL(signalSetCoverFrameVisible(bool)), cropFrame, SLOT(slotSetCoverFrameVisible(bool)));
    connect(cover, SIGNAL(signalFinishFillCover(QRect)), cropFrame, SLOT(slotFinishFillCover(QRect)));
    connect(cropFrame, SIGNAL(signalStopManualCover()), cover, SLOT(slotStopManualCover()));
    connect(cropFrame, SIGNAL(signalManualCoverFinished(QRect)), cover, SLOT(slotManualCoverFinished(QRect)));
    connect(cover, SIGNAL(signalSetOpacity(float)), cropFrame, SLOT(slotSetOpacity(float)));
    connect(roi, SIGNAL(signalSetROIFrameVisible(bool, bool)), cropFrame,
            SLOT(slotSetROIFrameVisible(bool, bool)));
    connect(cropFrame, SIGNAL(signalSetSelectRegion(int, int, int, int, bool)), PreviewManager::GetInstance(),
            SLOT(slotManualROI(int, int, int, int, bool)));
    connect(cropFrame, SIGNAL(signalStopRegionSelected()), roi, SLOT(slotStopManualROI()));
    connect(view, SIGNAL(signalScaleFactorChanged(double)), roi, SLOT(slotScaleFactorChanged(double)));
    connect(view, SIGNAL(signalScaleFactorChanged(double)), cover, SLOT(slotScaleFactorChanged(double)));
}

void CameraStackedWidget::UpdateViewOverlays()
{
    const bool cameraPresent = CameraMainManager::GetInstance() != nullptr;
    if (m_mainFrame)
        m_mainFrame->setEnabled(cameraPresent);
    m_toolBar->setEnabled(cameraPresent);
    StackedWidgetBase::UpdateViewOverlays();
    if (cameraPresent)
        ShowCameraCapabilities();
    PlaceToolBar();
}

void CameraStackedWidget::ShowCameraCapabilities()
{
    const CameraMainManager *camera = CameraMainManager::GetInstance();
    const bool canRotate = camera->IsSupportCapa(CameraMainManager::RotationCapability);
    m_infoBar->slotUpdateRotateDegree(canRotate ? camera->GetRotateDegree() : 0);
    m_toolBar->SetRotateVisible(canRotate);
    m_toolBar->SetHorizontalMirrorVisible(camera->IsSupportHorizontalMirror());
    m_toolBar->SetVerticalMirrorVisible(camera->IsSupportVerticalMirror());
    // A binned region can't be turned.
    m_toolBar->SetRotateEnabled(!(ROIManager::GetInstance()->IsROIChecked() && camera->IsAnyBinOpen()));
    m_toolBar->SetCloseCompareVisible(UIConfigManager::GetInstance()->GetCurrentView() == CameraCompareView);
}

void CameraStackedWidget::slotUpdateImageInfoUI()
{
    const GlobalManager *global = GlobalManager::GetInstance();
    const ReportManager *cameraReport = global->GetCameraReportManager();
    const bool comparing = UIConfigManager::GetInstance()->GetCurrentView() == CameraCompareView;
    if (cameraReport && (cameraReport == global->GetReportManager() || comparing))
        ShowSizeAndScale(*cameraReport);
}

void CameraStackedWidget::resizeEvent(QResizeEvent *event)
{
    StackedWidgetBase::resizeEvent(event);
    if (m_progressPanel->isVisible()) {
        m_progressPanel->setGeometry(0, 0, width(), height());
        m_progressPanel->raise();
    }
}

QGraphicsScene *CameraStackedWidget::GetScene() const
{
    const DrawViewBase *view = GetMainDrawView();
    return view ? view->scene() : nullptr;
}

void CameraStackedWidget::ForgetOverlay(QPointer<FocusInfo> &overlay)
{
    if (!overlay)
        return;
    overlay->Clear();
    overlay = nullptr;
}

void CameraStackedWidget::SlotSpectralineAutoDetectFinish()
{
    if (!GetScene())
        return; // it went with the compare frame
    if (!m_focusOverlay) {
        m_focusOverlay = new FocusInfo(GetScene(), FocusAssistanceInfo);
        ConnectCrossLine();
    }
    if (SpectrumUIManager::GetInstance()->GetFocusAssitanceFlag()) {
        ShowFocusLines();
    } else {
        m_focusOverlay->ClearFocusInfo();
        m_focusOverlay->AddCrossLine(false);
        SpectrumManager::GetInstance()->ClearFocusInfo();
    }
}

void CameraStackedWidget::ConnectCrossLine()
{
    QObject *crossLine = m_focusOverlay->GetCrossLineObject();
    connect(PreviewManager::GetInstance(), SIGNAL(signalImageSizeChanged()), crossLine,
            SLOT(SlotImageSizeChanged()));
    connect(SpectrumUIManager::GetInstance(), SIGNAL(SignalFocusOnChanged(bool)), crossLine,
            SLOT(SlotCrossLineVisiable(bool)));
    connect(SpectrumUIManager::GetInstance(), SIGNAL(SignalFocusCrossLineFlagChanged(bool)), crossLine,
            SLOT(SlotCrossLineEnable(bool)));
}

void CameraStackedWidget::ShowFocusLines()
{
    const SpectrumManager *spectrum = SpectrumManager::GetInstance();
    const QList<float> angles = spectrum->GetAngleList();
    const QList<float> distances = spectrum->GetDistanceList();
    const QList<QPoint> points = spectrum->GetLinePointList();
    const QList<QRect> rectangles = spectrum->GetExtendRectList();
    if (angles.isEmpty()) {
        m_focusOverlay->ClearFocusInfo();
        return;
    }
    const SpectrumUIManager *spectrumUI = SpectrumUIManager::GetInstance();
    m_focusOverlay->SetSpectrumLineManualSelection(spectrumUI->GetSpeSelectionFlag());
    m_focusOverlay->SetShowMode(spectrumUI->GetSpectrumSelectionMode());
    m_focusOverlay->AddFocusInfo(rectangles, points, distances, angles);
}

void CameraStackedWidget::SlotAssitanceFocusClose() { ForgetOverlay(m_focusOverlay); }

void CameraStackedWidget::SlotSpectralineFVB()
{
    SpectrumUIManager *spectrumUI = SpectrumUIManager::GetInstance();
    const QList<QPointF> endPoints = SpectrumManager::GetInstance()->GetEndPointList();
    if (endPoints.isEmpty() || !spectrumUI->GetFVBOnFlag() || spectrumUI->IsFVBModeAll() || !GetScene())
        return;

    if (!m_fvbOverlay) {
        m_fvbOverlay = new FocusInfo(GetScene(), FVBAndMultiTrackInfo);
        if (spectrumUI->GetManualFlag()) {
            m_fvbOverlay->AddFVBInfo(
                { QPointF(0, spectrumUI->GetTop()), QPointF(0, spectrumUI->GetBottom()) }, true);
            ConnectFVBLine();
            GlobalNotifyObserver(NotifyFVBBandChanged, nullptr);
        }
    }
    // The band found lies between the first two end points.
    if (spectrumUI->IsFVBModeAuto() && !spectrumUI->GetManualFlag() && endPoints.size() >= 2) {
        spectrumUI->SetTop(int(qMin(endPoints.at(0).y(), endPoints.at(1).y())));
        spectrumUI->SetBottom(int(qMax(endPoints.at(0).y(), endPoints.at(1).y())));
        m_fvbOverlay->AddFVBInfo(endPoints, false);
        ConnectFVBLine();
        GlobalNotifyObserver(NotifyFVBBandChanged, nullptr);
    }
}

void CameraStackedWidget::ConnectFVBLine()
{
    QObject *line = m_fvbOverlay->GetFVBLineObject();
    SpectrumUIManager *spectrumUI = SpectrumUIManager::GetInstance();
    connect(line, SIGNAL(SignalTopBottomChanged(int, int)), this, SLOT(SlotTopBottomChanged(int, int)));
    connect(spectrumUI, SIGNAL(SignalTopBottomChanged(QPointF, QPointF)), line,
            SLOT(SetFVBArea(QPointF, QPointF)));
    connect(spectrumUI, SIGNAL(SignalFVBManualFlagChanged(bool)), line, SLOT(SlotFVBManualFlagChanged(bool)));
    connect(spectrumUI, SIGNAL(SignalFVBSpeedingFlagChanged(bool)), line,
            SLOT(SlotFVBSpeedingFlagChanged(bool)));
}

void CameraStackedWidget::SlotTopBottomChanged(int top, int bottom)
{
    SpectrumUIManager::GetInstance()->SetTop(top);
    SpectrumUIManager::GetInstance()->SetBottom(bottom);
    GlobalNotifyObserver(NotifyFVBBandChanged, nullptr);
}

void CameraStackedWidget::SlotMultiTrackFlagChanged()
{
    if (!SpectrumUIManager::GetInstance()->GetMultiTrackOnFlag()) {
        ForgetOverlay(m_multiTrackOverlay);
        return;
    }
    if (!GetScene())
        return; // it went with the compare frame
    if (!m_multiTrackOverlay)
        m_multiTrackOverlay = new FocusInfo(GetScene(), FVBAndMultiTrackInfo);
    m_multiTrackOverlay->AddMultiTrackInfo(SpectrumUIManager::GetInstance()->GetMultiTrackList());
}

void CameraStackedWidget::SlotFVBClose()
{
    qDebug("CameraStackedWidget::SlotFVBClose");
    ForgetOverlay(m_fvbOverlay);
}
