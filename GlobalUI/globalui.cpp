// SPDX-License-Identifier: GPL-3.0-or-later
#include "globalui.h"

#include "autocountmanager.h"
#include "camerainfo.h"
#include "cameramainmanager.h"
#include "camerastackedwidget.h"
#include "cameraui.h"
#include "centerstackedwidget.h"
#include "centerwiring.h"
#include "comparebinding.h"
#include "compareframe.h"
#include "drawviewbase.h"
#include "filesystemview.h"
#include "filethumbnail.h"
#include "globalclass.h"
#include "globalmanager.h"
#include "histogramcalculatemanager.h"
#include "imagemanager.h"
#include "imagestackedwidget.h"
#include "imageui.h"
#include "measuremanager.h"
#include "measureui.h"
#include "previewmanager.h"
#include "spectrumuimanager.h"
#include "tabbarstyle.h"
#include "taborder.h"
#include "thumbnaillist.h"
#include "uiconfigmanager.h"
#include "useareamanager.h"
#include "viewcodes.h"
#include "widgetswitchui.h"

#include <QTabBar>
#include <QTabWidget>

namespace {

constexpr int TabsWithSpectrum = 4;
constexpr int TabsWithoutSpectrum = 3;

/// The page's text is translated by the camera side, whose panel it is.
bool IsHistogramTitle(const QString &tabText)
{
    return tabText == GlobalUI::tr("Histogram(Live)") || tabText == CameraUI::tr("Histogram(Live)");
}

/// Cleared first: what goes may still announce something that we hear.
template <class Object>
void ClearAndDelete(Object &object)
{
    const Object leaving = object;
    object = nullptr;
    delete leaving;
}

} // namespace

GlobalUI *GlobalUI::instance = nullptr;

GlobalUI *GlobalUI::GetInstance()
{
    if (!instance)
        instance = new GlobalUI;
    return instance;
}

GlobalUI::GlobalUI()
{
    m_fileSystemView = new FileSystemView(nullptr); // reparented by the left stack
    connect(m_fileSystemView, SIGNAL(sglSwitchToPreviousView()), UIConfigManager::GetInstance(),
            SLOT(slotFileViewReturn()));
    m_cameraUI = new CameraUI;
    m_imageUI = new ImageUI;
    m_measureUI = new MeasureUI;
    m_compareFrame = new CompareFrame(nullptr); // reparented by the stack that shows it
    m_compareFrame->ConnectFramePressed(GlobalManager::GetInstance());
    GlobalAttachObserver(this);
    connect(GlobalManager::GetInstance(), SIGNAL(signalUpdateImageCompareFrame()), this,
            SLOT(slotUpdateImageCompareFrame()));
    connect(SpectrumUIManager::GetInstance(), SIGNAL(signalDisplayModeChange()), this,
            SLOT(slotDisplayModeChange()));
}

GlobalUI::~GlobalUI()
{
    QObject::disconnect(this, nullptr, nullptr, nullptr);
    // What the host's window has destroyed already is null by now.
    ClearAndDelete(m_fileSystemView);
    ClearAndDelete(m_cameraUI);
    ClearAndDelete(m_imageUI);
    ClearAndDelete(m_measureUI);
    ClearAndDelete(m_compareFrame);
    ClearAndDelete(m_fileThumbnail);
    ClearAndDelete(m_reserved1);
    ClearAndDelete(m_reserved2);
    ClearAndDelete(m_reserved3);
    instance = nullptr;
}

void GlobalUI::InitMainUI(QWidget *parent)
{
    m_centerStackedWidget = new CenterStackedWidget(parent);
    MeasureManager::SetParentWidget(parent);
    m_centerStackedWidget->addWidget(m_cameraUI->CreateCenterWidget(parent));
    m_centerStackedWidget->addWidget(m_imageUI->CreateCenterWidget(parent));
    GetCenterStackedWidget(parent);

    m_leftStackedWidget = new QStackedWidget(parent);
    m_rightTabWidget = new QTabWidget(parent);
    m_bottomTabWidget = new QTabWidget(parent);
    m_rightTabWidget->tabBar()->setAccessibleName(tr("Right Panels"));
    m_bottomTabWidget->tabBar()->setAccessibleName(tr("Bottom Panels"));
    // The panels' widgets exist only from here on.
    LoadPluginUI(parent);
    GetLeftStackedWidget(parent);
    GetRightTabWidget(parent);
    GetBottomTabWidget(parent);
    ChainTabOrder({ m_leftStackedWidget, m_rightTabWidget, m_bottomTabWidget });
}

void GlobalUI::LoadPluginUI(QWidget *parent)
{
    qDebug("LoadUIPluginAndInit");
    m_cameraUI->LoadPluginUI(parent);
    m_imageUI->LoadPluginUI(parent);
    m_measureUI->LoadPluginUI(parent);
    qDebug("LoadUIPluginAndInit end");
}

QStackedWidget *GlobalUI::GetCenterStackedWidget(QWidget *)
{
    if (!m_centerStackedWidget)
        return nullptr;
    m_fileThumbnail = new FileThumbnail(nullptr); // reparented by the centre stack
    m_centerStackedWidget->addWidget(m_fileThumbnail);
    m_fileThumbnail->ConnectWithThumbnailList(ThumbnailList::GetInstance());

    const GlobalManager *global = GlobalManager::GetInstance();
    CameraStackedWidget *cameraStack = m_cameraUI->GetImageStack();
    ImageStackedWidget *imageStack = m_imageUI->GetImageStack();
    ConnectThumbnails(m_fileThumbnail, m_fileSystemView);
    ConnectImageCommands(cameraStack, imageStack);
    ConnectImageViewMouseEvent(imageStack->GetMainDrawView(), global->GetMainImageManager());
    ConnectImageViewMouseEvent(imageStack->GetSecondDrawView(), global->GetCompareImageManager());
    ConnectImageViewMouseEvent(cameraStack->GetMainDrawView(), this);
    ConnectImageCopies();
    connect(UseAreaManager::GetInstance(), SIGNAL(signalUpdateUseArea()), this, SLOT(slotUpdateUseArea()));
    return m_centerStackedWidget;
}

void GlobalUI::ConnectImageViewMouseEvent(QObject *view, QObject *receiver)
{
    connect(view, SIGNAL(signalMouseMoveEvent(QMouseEvent *)), receiver,
            SLOT(slotMouseMoveEvent(QMouseEvent *)));
    connect(view, SIGNAL(signalMousePressEvent(QMouseEvent *, QPointF)), receiver,
            SLOT(slotMousePressEvent(QMouseEvent *, QPointF)));
    connect(view, SIGNAL(signalMouseReleaseEvent(QMouseEvent *)), receiver,
            SLOT(slotMouseReleaseEvent(QMouseEvent *)));
    connect(view, SIGNAL(signalMouseDoubleClickEvent(QMouseEvent *)), receiver,
            SLOT(slotMouseDoubleClickEvent(QMouseEvent *)));
}

QStackedWidget *GlobalUI::GetCenterStackedWidget() { return m_centerStackedWidget; }

QStackedWidget *GlobalUI::GetLeftStackedWidget(QWidget *)
{
    if (!m_leftStackedWidget)
        return nullptr;
    m_leftStackedWidget->addWidget(m_cameraUI->GetControlScrollArea());
    m_leftStackedWidget->addWidget(m_imageUI->GetControlScrollArea());
    m_leftStackedWidget->addWidget(m_fileSystemView);
    return m_leftStackedWidget;
}

QStackedWidget *GlobalUI::GetLeftStackedWidget() { return m_leftStackedWidget; }

QTabWidget *GlobalUI::GetRightTabWidget(QWidget *)
{
    if (!m_rightTabWidget)
        return nullptr;
    m_rightTabWidget->addTab(GetSpectrumWidget(), tr("Spectrum"));
    m_rightTabWidget->addTab(GetDataAnalysisWidget(), tr("Analysis"));
    m_rightTabWidget->addTab(GetToolPropertyWidget(), tr("Tool Properties"));
    m_rightTabWidget->addTab(GetReportWidget(), tr("Report"));
    int tabCount = TabsWithSpectrum;
    if (!UseAreaManager::GetInstance()->IsSpectrumPagePresent()) {
        m_rightTabWidget->removeTab(0);
        tabCount = TabsWithoutSpectrum;
    }
    m_rightTabWidget->setCurrentIndex(UIConfigManager::GetInstance()->GetRightUIIndex());
    StyleRightTabs(tabCount);
    connect(m_rightTabWidget, SIGNAL(currentChanged(int)), this, SLOT(slotRightTabWidgetCurrentChanged(int)));
    return m_rightTabWidget;
}

QTabWidget *GlobalUI::GetRightTabWidget() { return m_rightTabWidget; }

void GlobalUI::StyleRightTabs(int tabCount)
{
    const int border = GlobalClass::GetActualSize(2);
    const int width = GlobalClass::GetActualSize((190 - tabCount) * 2 / tabCount);
    const int height = GlobalClass::GetActualSize(25);
    m_rightTabWidget->setStyleSheet(TabBarStyleSheet(height, width, border));
}

QTabWidget *GlobalUI::GetBottomTabWidget(QWidget *parent)
{
    if (!m_bottomTabWidget)
        return nullptr;
    m_bottomTabWidget->setObjectName("BottomTabWidget");
    m_bottomTabWidget->setStyleSheet("QTabBar::tab:selected{color:black;}");
    auto *filePreview = new WidgetSwitchUI(parent);
    connect(UIConfigManager::GetInstance(), SIGNAL(signalSwitchView()), this, SLOT(slotSwitchView()));
    m_bottomTabWidget->addTab(filePreview, tr("File Preview"));
    SetCameraBottomControlUIPanel(m_bottomTabWidget);
    SetImageBottomControlUIPanel(m_bottomTabWidget);
    SetMeasureBottomControlUIPanel(m_bottomTabWidget);
    m_bottomTabWidget->setCurrentIndex(UIConfigManager::GetInstance()->GetBottomUIIndex());
    connect(m_bottomTabWidget, SIGNAL(currentChanged(int)), this,
            SLOT(slotBottomTabWidgetCurrentChanged(int)));
    return m_bottomTabWidget;
}

QTabWidget *GlobalUI::GetBottomTabWidget() { return m_bottomTabWidget; }

QWidget *GlobalUI::GetCameraInfoUI() { return GlobalClass::GetPropertyUI(CameraInfo()); }

QWidget *GlobalUI::GetCameraControlUIScrollArea() { return m_cameraUI->GetControlScrollArea(); }

QWidget *GlobalUI::GetImageControlUIScrollArea() { return m_imageUI->GetControlScrollArea(); }

QWidget *GlobalUI::GetSpectrumWidget()
{
    return m_measureUI->GetWidget(MeasureUI::SpectrumPanel, MeasureUI::tr("Spectrum"), "");
}

QWidget *GlobalUI::GetDataAnalysisWidget()
{
    return m_measureUI->GetWidget(MeasureUI::AnalysisPanel, MeasureUI::tr("Analysis"), "Measure");
}

QWidget *GlobalUI::GetToolPropertyWidget()
{
    return m_measureUI->GetWidget(MeasureUI::ToolPropertiesPanel, MeasureUI::tr("Tool Properties"),
                                  "Measure");
}

QWidget *GlobalUI::GetReportWidget()
{
    return m_measureUI->GetWidget(MeasureUI::ReportPanel, MeasureUI::tr("Report"), "Report");
}

void GlobalUI::SetCameraBottomControlUIPanel(QTabWidget *tabWidget)
{
    m_cameraUI->SetBottomControlUIPanel(tabWidget);
}

void GlobalUI::SetImageBottomControlUIPanel(QTabWidget *tabWidget)
{
    m_imageUI->SetBottomControlUIPanel(tabWidget);
}

void GlobalUI::SetMeasureBottomControlUIPanel(QTabWidget *tabWidget)
{
    m_measureUI->SetBottomControlUIPanel(tabWidget);
}

void GlobalUI::UpdateUI()
{
    m_cameraUI->slotUpdateUI();
    m_measureUI->ActivateControlUI();
}

void GlobalUI::ActivateMeasureControlUI() { m_measureUI->ActivateControlUI(); }

void GlobalUI::UpdateObserver(int id, void *)
{
    if (id == NotifyRefreshOverlays)
        UpdateOverlays();
}

void GlobalUI::UpdateOverlays()
{
    if (!IsBuilt())
        return;
    m_cameraUI->GetImageStack()->UpdateViewOverlays();
    m_imageUI->GetImageStack()->UpdateViewOverlays();
}

bool GlobalUI::IsBuilt() const
{
    return m_centerStackedWidget && m_leftStackedWidget && m_cameraUI && m_cameraUI->GetImageStack()
           && m_imageUI && m_imageUI->GetImageStack();
}

void GlobalUI::slotRightTabWidgetCurrentChanged(int index)
{
    UIConfigManager::GetInstance()->SetRightUIIndex(index);
}

void GlobalUI::slotBottomTabWidgetCurrentChanged(int index)
{
    const bool histogramShown = IsHistogramTitle(m_bottomTabWidget->tabText(index));
    HistogramCalculateManager::GetInstance()->SetHistogramStatisticsState(histogramShown);
    UIConfigManager::GetInstance()->SetBottomUIIndex(index);
}

void GlobalUI::slotUpdateUseArea()
{
    if (!m_rightTabWidget || !m_measureUI)
        return; // went with the host's window, or we are going
    const bool spectrumPresent = UseAreaManager::GetInstance()->IsSpectrumPagePresent();
    if (spectrumPresent && m_rightTabWidget->count() == TabsWithoutSpectrum)
        m_rightTabWidget->insertTab(0, GetSpectrumWidget(), tr("Spectrum"));
    else if (!spectrumPresent && m_rightTabWidget->count() == TabsWithSpectrum)
        m_rightTabWidget->removeTab(0);
    StyleRightTabs(spectrumPresent ? TabsWithSpectrum : TabsWithoutSpectrum);
}

void GlobalUI::slotSwitchView()
{
    if (!IsBuilt())
        return; // went with the host's window
    const UIConfigManager *config = UIConfigManager::GetInstance();
    m_leftStackedWidget->setCurrentIndex(config->GetLeftStackedWidgetIndex());
    m_centerStackedWidget->setCurrentIndex(config->GetCenterStackedWidgetIndex());
    UIManagerBase::UpdateBottomTabWidget(config->GetLeftStackedWidgetIndex());
    UpdateFolderWatch(config->GetCurrentView() == FileView);
    qDebug("camera  %d", m_cameraUI->GetImageStack()->count());
    CompareBinding(m_compareFrame, m_cameraUI->GetImageStack(), m_imageUI->GetImageStack())
        .SwitchTo(config->GetCurrentView());
    if (config->GetCurrentView() == CameraView && AutoCountManager::GetInstance()->IsCounting())
        GlobalManager::GetInstance()->GetMainImageManager()->SetProcessType(0);
    GlobalManager::GetInstance()->UpdateReportManager();
    UpdatePreview(config->GetCurrentView());
    m_centerStackedWidget->RaiseFloatingButtons();
    UpdateOverlays();
    const int view = config->GetCurrentView();
    ThumbnailList::GetInstance()->SetCompareSubMenuChecked(view == CameraCompareView
                                                           || view == ImageCompareView);
}

void GlobalUI::UpdateFolderWatch(bool fileView)
{
    if (fileView) {
        m_fileSystemView->StartFolderChecked();
        m_fileThumbnail->StartFolderChecked();
    } else {
        m_fileSystemView->StopFolderChecked();
        m_fileThumbnail->StopFolderChecked();
    }
}

void GlobalUI::UpdatePreview(int view)
{
    if (!CameraMainManager::GetInstance())
        return;
    if (view == CameraView || view == CameraCompareView)
        PreviewManager::GetInstance()->StartPreview();
    else
        PreviewManager::GetInstance()->StopPreview();
    SpectrumUIManager::GetInstance()->UpdateDisplayModeProperty();
}

void GlobalUI::slotUpdateImageCompareFrame()
{
    if (UIConfigManager::GetInstance()->GetCurrentView() != ImageCompareView || !m_compareFrame)
        return;
    const GlobalManager *global = GlobalManager::GetInstance();
    m_compareFrame->SetLeftChecked(global->GetActiveImageManager() == global->GetMainImageManager());
}

void GlobalUI::slotDisplayModeChange()
{
    if (!IsBuilt())
        return;
    m_cameraUI->OnDisplayModeChange();
    m_imageUI->OnDisplayModeChange();
}

void GlobalUI::slotMouseMoveEvent(QMouseEvent *event)
{
    ReportManager *report = GlobalManager::GetInstance()->GetCameraReportManager();
    report->LineProfileMouseMoveEvent(event);
    report->GetMeasureManager()->mouseMoveEvent(event);
}

void GlobalUI::slotMousePressEvent(QMouseEvent *event, QPointF point)
{
    GlobalManager::GetInstance()->MousePressEvent(event, point);
}

// A release on the live view means nothing to anybody.
void GlobalUI::slotMouseReleaseEvent(QMouseEvent *) {}

void GlobalUI::slotMouseDoubleClickEvent(QMouseEvent *event)
{
    GlobalManager::GetInstance()->GetCameraReportManager()->GetMeasureManager()->mouseDoubleClickEvent(event);
}
