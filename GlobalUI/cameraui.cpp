// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameraui.h"

#include "cameraconfigmanager.h"
#include "cameramainmanager.h"
#include "cameraspectrumstackedwidget.h"
#include "camerastackedwidget.h"
#include "capturepreviewui.h"
#include "controlpage.h"
#include "displaymodeuimanager.h"
#include "globalclass.h"
#include "globalmanager.h"
#include "tabbarstyle.h"
#include "uiconfigmanager.h"
#include "uiplugin.h"
#include "viewcodes.h"

#include <QSignalBlocker>
#include <QTabWidget>

namespace {

enum CameraPanelId
{
    FirstCameraPanel = 0,
    HardwarePanel = 2,
    AcquisitionPanel = 3
};

} // namespace

CameraUI::CameraUI()
    : m_capturePreviewUI(new CapturePreviewUI(nullptr)) // reparented by the control page
{
    // Asked for from inside our own slots too: run after the current event.
    connect(UIConfigManager::GetInstance(), SIGNAL(signalUpdateCameraControlUI()), this, SLOT(slotUpdateUI()),
            Qt::QueuedConnection);
}

CameraUI::~CameraUI()
{
    if (m_capturePreviewUI && !m_capturePreviewUI->parent())
        delete m_capturePreviewUI;
}

void CameraUI::LoadPluginUI(QWidget *parent) { LoadUIPluginAndInitUI("plugins/camera/ui", parent, true); }

QWidget *CameraUI::GetControlScrollArea()
{
    const QStringList tabNames{ tr("Camera"), tr("Adjustment"), tr("Hardware"), tr("Acquisition") };
    if (m_leftTabWidget) // it loses its panels to the new one, which is no choice of the user's
        disconnect(m_leftTabWidget, SIGNAL(currentChanged(int)), this, SLOT(slotCameraTabWidgetCurrentChanged(int)));
    m_leftTabWidget =
        qobject_cast<QTabWidget *>(GetScrollArea(FirstCameraPanel, AcquisitionPanel, tabNames, "Camera"));
    connect(m_leftTabWidget, SIGNAL(currentChanged(int)), this, SLOT(slotCameraTabWidgetCurrentChanged(int)));
    QWidget *page = MakeControlPage(m_capturePreviewUI, m_leftTabWidget);
    slotUpdateUI();
    return page;
}

QStackedWidget *CameraUI::CreateCenterWidget(QWidget *parent)
{
    if (!m_imageStack) {
        m_imageStack = new CameraStackedWidget(parent);
        m_spectrumStack = new CameraSpectrumStackedWidget(parent);
    }
    m_centerStack = new QStackedWidget(parent);
    m_centerStack->addWidget(m_imageStack);
    m_centerStack->addWidget(m_spectrumStack);
    return m_centerStack;
}

CameraStackedWidget *CameraUI::GetImageStack() const { return m_imageStack; }

void CameraUI::OnDisplayModeChange()
{
    if (!m_centerStack)
        return; // the window is not built yet, or gone
    m_centerStack->setCurrentIndex(DisplayModeUIManager::GetInstance()->GetCurrentDisplayMode() != 0 ? 1 : 0);
    m_spectrumStack->slotDisplayModeChange();
}

void CameraUI::slotCameraTabWidgetCurrentChanged(int index)
{
    UIConfigManager::GetInstance()->SetCameraUIIndex(index);
}

void CameraUI::slotUpdateUI()
{
    const CameraMainManager *camera = CameraMainManager::GetInstance();
    UpdatePlugins(camera != nullptr);
    if (m_capturePreviewUI)
        m_capturePreviewUI->slotUpdateUI();
    if (camera && m_leftTabWidget)
        RebuildTabs(camera->HasHardwareSettings());
    if (m_imageStack)
        m_imageStack->UpdateViewOverlays();
    CameraConfigManager::GetInstance()->UpdateGraphicsRegionItem();
    UpdateBottomTabWidget(GlobalManager::GetInstance()->IsCameraView() ? CameraControlPage
                                                                       : ImageControlPage);
}

void CameraUI::UpdatePlugins(bool cameraPresent)
{
    const QList<LoadedPlugin> plugins = Plugins();
    for (int i = plugins.size() - 1; i >= 0; --i) {
        const LoadedPlugin &loaded = plugins.at(i);
        // A panel that needs more than a camera disables itself in its update.
        if (cameraPresent && loaded.widget)
            loaded.widget->setEnabled(true);
        UpdatePlugin(loaded);
        if (!cameraPresent && loaded.widget)
            loaded.widget->setEnabled(false);
    }
}

void CameraUI::RebuildTabs(bool hasHardwareSettings)
{
    {
        const QSignalBlocker quiet(m_leftTabWidget);
        while (m_leftTabWidget->count() > HardwarePanel)
            m_leftTabWidget->removeTab(m_leftTabWidget->count() - 1);
        if (hasHardwareSettings)
            m_leftTabWidget->addTab(GetWidget(HardwarePanel, tr("Hardware"), "Camera"), tr("Hardware"));
        m_leftTabWidget->addTab(GetWidget(AcquisitionPanel, tr("Acquisition"), "Camera"), tr("Acquisition"));
        m_leftTabWidget->setCurrentIndex(UIConfigManager::GetInstance()->GetCameraUIIndex());
    }
    const int width = GlobalClass::GetActualSize(hasHardwareSettings ? 372 / 4 : 374 / 3);
    m_leftTabWidget->setStyleSheet(
        TabBarStyleSheet(GlobalClass::GetActualSize(25), width, GlobalClass::GetActualSize(2)));
}
