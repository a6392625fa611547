// SPDX-License-Identifier: GPL-3.0-or-later
#include "imagestackedwidget.h"

#include "cropframe.h"
#include "drawframebase.h"
#include "drawviewbase.h"
#include "frameprocessmanager.h"
#include "globalmanager.h"
#include "gpudrawframe.h"
#include "imageinfoui.h"
#include "imagemanager.h"
#include "uiconfigmanager.h"
#include "viewcodes.h"
#include "viewtoolbar.h"

namespace {

ImageManager *ActiveImage() { return GlobalManager::GetInstance()->GetActiveImageManager(); }

bool IsImageCompareView() { return UIConfigManager::GetInstance()->GetCurrentView() == ImageCompareView; }

} // namespace

ImageStackedWidget::ImageStackedWidget(QWidget *parent)
    : StackedWidgetBase(parent)
{
    m_infoBar = new ImageInfoUI(this, true);
    m_toolBar = new ViewToolBar(this, false);
    ImageStackedWidget::CreateDrawFrame();

    BindMainFrame();
    ConnectCommands();
    CreateSecondFrame(parent);
    ImageStackedWidget::UpdateViewOverlays();
}

void ImageStackedWidget::BindMainFrame()
{
    GlobalManager *global = GlobalManager::GetInstance();
    DrawViewBase *view = GetMainDrawView();
    global->SetImageGraphicsScene(view->scene());
    view->SetViewManager(global->GetMainImageManager());
    m_mainFrame->ConnectSetBrush(global->GetMainImageManager());
    ActiveImage()->ConnectWidthDrawView(view, false);
}

void ImageStackedWidget::ConnectCommands()
{
    DrawViewBase *view = GetMainDrawView();
    FrameProcessManager *frameProcess = FrameProcessManager::GetInstance();
    ImageManager *image = ActiveImage();
    connect(frameProcess, SIGNAL(signalDraw(QImage)), view, SLOT(slotPaintPreview(QImage)));
    connect(view, SIGNAL(signalScaleFactorChanged(double)), frameProcess,
            SLOT(slotScaleFactorChanged(double)));
    connect(image, SIGNAL(signalSetCropState(int, bool)), view->GetCropFrame(),
            SLOT(slotSetCropState(int, bool)));
    connect(view->GetCropFrame(), SIGNAL(signalSetSelectRegion(int, int, int, int, bool)), image,
            SLOT(slotCrop(int, int, int, int, bool)));
    connect(m_toolBar, SIGNAL(signalRotateImage(int)), this, SLOT(slotRotateImage(int)));
    connect(m_toolBar, SIGNAL(signalSaveAs()), this, SLOT(slotSaveImageAs()));
    connect(m_toolBar, SIGNAL(signalCrop()), this, SLOT(slotImageCrop()));
    connect(m_toolBar, SIGNAL(signalImageInfo()), this, SLOT(slotImageInfo()));
    connect(image, SIGNAL(signalUpdateFileName(QString)), m_infoBar, SLOT(slotUpdateFileName(QString)));
}

void ImageStackedWidget::CreateSecondFrame(QWidget *parent)
{
    GlobalManager *global = GlobalManager::GetInstance();
    m_secondFrame = new GPUDrawFrame(parent);
    m_secondFrame->hide();

    DrawViewBase *view = GetSecondDrawView();
    global->SetImageGraphicsSceneEx(view->scene());
    view->SetViewManager(global->GetCompareImageManager());
    m_secondFrame->ConnectSetBrush(global->GetCompareImageManager());
    global->GetCompareImageManager()->ConnectWidthDrawView(view, false);
    connect(view, SIGNAL(signalGraphicsViewPressed(QGraphicsScene *)), global,
            SLOT(slotSetGraphicsScene(QGraphicsScene *)));
    connect(this, SIGNAL(signalScaleView(ReportManager *, int)), view,
            SLOT(slotScaleView(ReportManager *, int)));
    connect(this, SIGNAL(signalSetScaleFactor(ReportManager *, double)), view,
            SLOT(slotSetScaleFactor(ReportManager *, double)));
}

GPUDrawFrame *ImageStackedWidget::GetSecondFrame() const { return m_secondFrame; }

DrawViewBase *ImageStackedWidget::GetSecondDrawView() const
{
    return m_secondFrame ? m_secondFrame->GetDrawFrame()->GetDrawView() : nullptr;
}

void ImageStackedWidget::UpdateViewOverlays()
{
    StackedWidgetBase::UpdateViewOverlays();
    m_toolBar->SetCloseCompareVisible(IsImageCompareView());
    m_toolBar->slotSetImageInfoButtonVisible(ActiveImage()->IsSenImage());
    slotUpdateImageInfoUI();
    PlaceToolBar();
}

void ImageStackedWidget::slotUpdateImageInfoUI()
{
    const GlobalManager *global = GlobalManager::GetInstance();
    const ReportManager *report = global->GetReportManager();
    if (!report || report == global->GetCameraReportManager())
        return;
    const ImageManager *image = ActiveImage();
    if (image->IsNonImage()) {
        m_infoBar->slotResetImageInfo();
        return;
    }
    m_infoBar->slotUpdateImageSize(image->GetImageSizeString());
    m_infoBar->slotUpdatePixelInfo(report->GetMousePosition(), image->GetPixelString());
    m_infoBar->slotUpdateRotateDegree(image->GetRotateDegree());
    ShowSizeAndScale(*report);
    m_infoBar->slotUpdateFileName(report->GetFileName());
}

void ImageStackedWidget::slotRotateImage(int type) { ActiveImage()->slotRotateImage(type); }

void ImageStackedWidget::slotSaveImageAs() { ActiveImage()->slotSaveImageAs(); }

void ImageStackedWidget::slotImageCrop()
{
    if (!IsImageCompareView())
        ActiveImage()->slotImageCrop();
}

void ImageStackedWidget::slotImageInfo() { ActiveImage()->slotImageInfo(); }
