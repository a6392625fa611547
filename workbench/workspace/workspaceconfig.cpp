// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspaceconfig.h"

#include "cameramainmanager.h"

#include "viewrules.h"

#include <QSettings>

WorkspaceConfig::WorkspaceConfig(QSettings *settings, QObject *parent)
    : UIConfigManager(parent)
    , m_settings(settings)
{
    Load();
}

int WorkspaceConfig::GetCurrentView() const
{
    return m_view;
}

ViewCode WorkspaceConfig::WorkedView() const
{
    return m_view == FileView ? m_viewBeforeFiles : m_view;
}

int WorkspaceConfig::GetLeftStackedWidgetIndex() const
{
    return ViewRules::PageOf(m_view);
}

int WorkspaceConfig::GetCenterStackedWidgetIndex() const
{
    return ViewRules::PageOf(m_view);
}

int WorkspaceConfig::GetLeftUIIndex() const
{
    return m_layout.leftIndex;
}

int WorkspaceConfig::GetRightUIIndex() const
{
    return m_layout.rightIndex;
}

int WorkspaceConfig::GetBottomUIIndex() const
{
    return m_layout.bottomIndex;
}

int WorkspaceConfig::GetCameraUIIndex() const
{
    return m_layout.cameraIndex;
}

void WorkspaceConfig::SetLeftUIIndex(int index)
{
    m_layout.leftIndex = index;
    Store();
}

void WorkspaceConfig::SetRightUIIndex(int index)
{
    m_layout.rightIndex = index;
    Store();
}

void WorkspaceConfig::SetBottomUIIndex(int index)
{
    m_layout.bottomIndex = index;
    Store();
}

void WorkspaceConfig::SetCameraUIIndex(int index)
{
    m_layout.cameraIndex = index;
    Store();
}

bool WorkspaceConfig::IsLeftToggleVisible() const
{
    return true;
}

bool WorkspaceConfig::IsRightButtonsAvailable() const
{
    // Nothing can be analysed in the file browser.
    return m_view != FileView;
}

bool WorkspaceConfig::IsBottomToggleVisible() const
{
    return true;
}

bool WorkspaceConfig::IsLeftUIChecked() const
{
    return m_layout.leftShown;
}

bool WorkspaceConfig::IsRightUIChecked() const
{
    return m_layout.rightShown;
}

bool WorkspaceConfig::IsBottomUIChecked() const
{
    return m_layout.bottomShown;
}

void WorkspaceConfig::SetLeftUIChecked(bool shown)
{
    m_layout.leftShown = shown;
    Store();
}

void WorkspaceConfig::SetRightUIChecked(bool shown)
{
    m_layout.rightShown = shown;
    Store();
}

void WorkspaceConfig::SetBottomUIChecked(bool shown)
{
    m_layout.bottomShown = shown;
    Store();
}

bool WorkspaceConfig::IsCPUDraw() const
{
    return m_layout.cpuDraw;
}

void WorkspaceConfig::SetCPUDraw(bool cpuFlag, bool force)
{
    if (m_layout.cpuDraw == cpuFlag && !force)
        return;
    m_layout.cpuDraw = cpuFlag;
    Store();
    emit signalSetCPUDraw(cpuFlag);
}

void WorkspaceConfig::SetCameraView()
{
    SwitchTo(CameraView);
}

void WorkspaceConfig::SetImageView()
{
    SwitchTo(ImageView);
}

void WorkspaceConfig::SetFileView()
{
    if (m_view != FileView)
        m_viewBeforeFiles = m_view;
    SwitchTo(FileView);
}

void WorkspaceConfig::SetCompareView()
{
    SwitchTo(ViewRules::AfterCompareCommand(WorkedView()));
}

void WorkspaceConfig::FileViewReturn()
{
    if (m_view == FileView)
        SwitchTo(m_viewBeforeFiles);
}

void WorkspaceConfig::SwitchTo(ViewCode view)
{
    m_view = view;
    emit signalSwitchView();
    emit signalSetMergeButtonVisible(view == FileView);
    UpdateAllControlUI();
}

void WorkspaceConfig::UpdateCameraControlUI()
{
    emit signalUpdateCameraControlUI();
}

void WorkspaceConfig::ShowCameraPanel(CameraPanel panel)
{
    const CameraMainManager *camera = CameraMainManager::GetInstance();
    const bool isOneMissing = panel == CameraPanel::Acquisition && camera && !camera->HasHardwareSettings();
    SetCameraView();
    SetLeftUIChecked(true);
    SetCameraUIIndex(int(panel) - (isOneMissing ? 1 : 0));
    UpdateCameraControlUI();
}

void WorkspaceConfig::UpdateAllControlUI()
{
    UpdateCameraControlUI();
    emit signalUpdateImageControlUI();
    emit signalUpdateMeasureControlUI();
}

void WorkspaceConfig::RestoreDefaults()
{
    m_layout = Layout();
    Store();
    emit signalSetCPUDraw(m_layout.cpuDraw);
    UpdateAllControlUI();
}

void WorkspaceConfig::slotFileViewReturn()
{
    FileViewReturn();
}

void WorkspaceConfig::slotSetFileView()
{
    SetFileView();
}

void WorkspaceConfig::slotConvertToCSV()
{
    emit signalConvertToCSVWanted();
}

void WorkspaceConfig::slotModifyDPI()
{
    emit signalModifyDPIWanted();
}

void WorkspaceConfig::Load()
{
    const Layout defaults;
    m_layout.leftIndex = m_settings->value("tabs/image", defaults.leftIndex).toInt();
    m_layout.rightIndex = m_settings->value("tabs/right", defaults.rightIndex).toInt();
    m_layout.bottomIndex = m_settings->value("tabs/bottom", defaults.bottomIndex).toInt();
    m_layout.cameraIndex = m_settings->value("tabs/camera", defaults.cameraIndex).toInt();
    m_layout.leftShown = m_settings->value("panels/left", defaults.leftShown).toBool();
    m_layout.rightShown = m_settings->value("panels/right", defaults.rightShown).toBool();
    m_layout.bottomShown = m_settings->value("panels/bottom", defaults.bottomShown).toBool();
    m_layout.cpuDraw = m_settings->value("drawing/cpu", defaults.cpuDraw).toBool();
}

void WorkspaceConfig::Store() const
{
    m_settings->setValue("tabs/image", m_layout.leftIndex);
    m_settings->setValue("tabs/right", m_layout.rightIndex);
    m_settings->setValue("tabs/bottom", m_layout.bottomIndex);
    m_settings->setValue("tabs/camera", m_layout.cameraIndex);
    m_settings->setValue("panels/left", m_layout.leftShown);
    m_settings->setValue("panels/right", m_layout.rightShown);
    m_settings->setValue("panels/bottom", m_layout.bottomShown);
    m_settings->setValue("drawing/cpu", m_layout.cpuDraw);
}
