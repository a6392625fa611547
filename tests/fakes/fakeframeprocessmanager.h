// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "frameprocessmanager.h"

class FakeFrameProcessManager : public FrameProcessManager
{
public:
    void slotScaleFactorChanged(double scaleFactor) override
    {
        CallLog::Add("FrameProcessManager::slotScaleFactorChanged", {QString::number(scaleFactor)});
    }
};
