// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "uiconfigmanager.h"

class FakeUIConfigManager : public UIConfigManager
{
public:
    int currentView = 0;
    int leftStackedWidgetIndex = 0;
    int centerStackedWidgetIndex = 0;
    int leftUIIndex = 0;
    int rightUIIndex = 0;
    int bottomUIIndex = 0;
    int cameraUIIndex = 0;
    bool leftToggleVisible = true;
    bool rightButtonsAvailable = true;
    bool bottomToggleVisible = true;
    bool leftUIChecked = true;
    bool rightUIChecked = true;
    bool bottomUIChecked = true;
    bool cpuDraw = true;

    int GetCurrentView() const override { return currentView; }
    int GetLeftStackedWidgetIndex() const override { return leftStackedWidgetIndex; }
    int GetCenterStackedWidgetIndex() const override { return centerStackedWidgetIndex; }
    int GetLeftUIIndex() const override { return leftUIIndex; }
    int GetRightUIIndex() const override { return rightUIIndex; }
    int GetBottomUIIndex() const override { return bottomUIIndex; }
    int GetCameraUIIndex() const override { return cameraUIIndex; }
    void SetLeftUIIndex(int index) override
    {
        leftUIIndex = index;
        CallLog::Add("UIConfigManager::SetLeftUIIndex", {QString::number(index)});
    }
    void SetRightUIIndex(int index) override
    {
        rightUIIndex = index;
        CallLog::Add("UIConfigManager::SetRightUIIndex", {QString::number(index)});
    }
    void SetBottomUIIndex(int index) override
    {
        bottomUIIndex = index;
        CallLog::Add("UIConfigManager::SetBottomUIIndex", {QString::number(index)});
    }
    void SetCameraUIIndex(int index) override
    {
        cameraUIIndex = index;
        CallLog::Add("UIConfigManager::SetCameraUIIndex", {QString::number(index)});
    }
    bool IsLeftToggleVisible() const override { return leftToggleVisible; }
    bool IsRightButtonsAvailable() const override { return rightButtonsAvailable; }
    bool IsBottomToggleVisible() const override { return bottomToggleVisible; }
    bool IsLeftUIChecked() const override { return leftUIChecked; }
    bool IsRightUIChecked() const override { return rightUIChecked; }
    bool IsBottomUIChecked() const override { return bottomUIChecked; }
    void SetLeftUIChecked(bool shown) override
    {
        leftUIChecked = shown;
        CallLog::Add("UIConfigManager::SetLeftUIChecked", {Text(shown)});
    }
    void SetRightUIChecked(bool shown) override
    {
        rightUIChecked = shown;
        CallLog::Add("UIConfigManager::SetRightUIChecked", {Text(shown)});
    }
    void SetBottomUIChecked(bool shown) override
    {
        bottomUIChecked = shown;
        CallLog::Add("UIConfigManager::SetBottomUIChecked", {Text(shown)});
    }
    bool IsCPUDraw() const override { return cpuDraw; }
    void SetCPUDraw(bool cpuFlag, bool force) override
    {
        CallLog::Add("UIConfigManager::SetCPUDraw", {Text(cpuFlag), Text(force)});
    }
    void SetCameraView() override { CallLog::Add("UIConfigManager::SetCameraView", {}); }
    void SetFileView() override { CallLog::Add("UIConfigManager::SetFileView", {}); }
    void SetCompareView() override { CallLog::Add("UIConfigManager::SetCompareView", {}); }
    void FileViewReturn() override { CallLog::Add("UIConfigManager::FileViewReturn", {}); }
    void UpdateCameraControlUI() override { CallLog::Add("UIConfigManager::UpdateCameraControlUI", {}); }
    void slotFileViewReturn() override { CallLog::Add("UIConfigManager::slotFileViewReturn", {}); }
    void slotSetFileView() override { CallLog::Add("UIConfigManager::slotSetFileView", {}); }
    void slotConvertToCSV() override { CallLog::Add("UIConfigManager::slotConvertToCSV", {}); }
    void slotModifyDPI() override { CallLog::Add("UIConfigManager::slotModifyDPI", {}); }
};
