// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "intensitymanager.h"

class FakeIntensityManager : public IntensityManager
{
public:
    void SetAnchorPoint(int x, int y, QRectF normalisedRect) override
    {
        CallLog::Add("IntensityManager::SetAnchorPoint", {QString::number(x), QString::number(y), Text(normalisedRect)});
    }
};
