// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "displaymodeuimanager.h"

class FakeDisplayModeUIManager : public DisplayModeUIManager
{
public:
    int currentDisplayMode = 0;

    int GetCurrentDisplayMode() const override { return currentDisplayMode; }
    void CalculatePreviewArea() override
    {
        CallLog::Add("DisplayModeUIManager::CalculatePreviewArea", {});
    }
    void SetImageExpansionAreaFlag(bool valid) override
    {
        CallLog::Add("DisplayModeUIManager::SetImageExpansionAreaFlag", {Text(valid)});
    }
    void SetImageExpansionArea(const QString &area) override
    {
        CallLog::Add("DisplayModeUIManager::SetImageExpansionArea", {area});
    }
};
