// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "advancedprocessmanager.h"

class FakeAdvancedProcessManager : public AdvancedProcessManager
{
public:
    void slotMergeImages(QList<QString>) override
    {
        CallLog::Add("AdvancedProcessManager::slotMergeImages", {});
    }
};
