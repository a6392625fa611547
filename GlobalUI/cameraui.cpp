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
#include <QTabBar>
#include <QTabWidget>

namespace {

enum CameraPanelId
{
    FirstCameraPanel = 0,
    AdjustmentPanel = 1,
    HardwarePanel = 2,
    AcquisitionPanel = 3
};

} // namespace

CameraUI::CameraUI()
    : m_capturePreviewUI(new CapturePreviewUI(nullptr)) // reparented by the control page
{
    SetTabIds({ FirstCameraPanel, AdjustmentPanel, HardwarePanel, AcquisitionPanel });
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
    m_leftTabWidget->tabBar()->setAccessibleName(tr("Camera Panels"));
    connect(m_leftTabWidget, SIGNAL(currentChanged(int)), this, SLOT(slotCameraTabWidgetCurrentChanged(int)));
    if (!m_capturePreviewUI)
        m_capturePreviewUI = new CapturePreviewUI(nullptr); // the first one went with the page it stood in
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
    const QPointer<QWidget> focused = m_leftTabWidget->window()->focusWidget();
    {
        const QSignalBlocker quiet(m_leftTabWidget);
        PlaceLastTabs(hasHardwareSettings);
        m_leftTabWidget->setCurrentIndex(UIConfigManager::GetInstance()->GetCameraUIIndex());
    }
    if (focused && focused->isVisible() && !focused->hasFocus())
        focused->setFocus(); // the keyboard is back where it was
    const int width = GlobalClass::GetActualSize(hasHardwareSettings ? 372 / 4 : 374 / 3);
    m_leftTabWidget->setStyleSheet(
        TabBarStyleSheet(GlobalClass::GetActualSize(25), width, GlobalClass::GetActualSize(2)));
}

/// Those behind "Adjustment". Tabs that stand already stay: a panel that is taken out ends what is being typed in it.
void CameraUI::PlaceLastTabs(bool hasHardwareSettings)
{
    QList<QPair<QWidget *, QString>> wanted;
    if (hasHardwareSettings)
        wanted.append({ GetWidget(HardwarePanel, tr("Hardware"), "Camera"), tr("Hardware") });
    wanted.append({ GetWidget(AcquisitionPanel, tr("Acquisition"), "Camera"), tr("Acquisition") });
    bool stands = m_leftTabWidget->count() == HardwarePanel + wanted.size();
    for (int i = 0; i < wanted.size(); ++i)
        stands = stands && m_leftTabWidget->widget(HardwarePanel + i) == wanted.at(i).first;
    if (stands)
        return;
    while (m_leftTabWidget->count() > HardwarePanel)
        m_leftTabWidget->removeTab(m_leftTabWidget->count() - 1);
    for (const auto &tab : qAsConst(wanted))
        m_leftTabWidget->addTab(tab.first, tab.second);
}
