// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "cameraconfigmanager.h"

class FakeCameraConfigManager : public CameraConfigManager
{
public:
    void UpdateGraphicsRegionItem() override
    {
        CallLog::Add("CameraConfigManager::UpdateGraphicsRegionItem", {});
    }
};
