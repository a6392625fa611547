// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "coverconfigmanager.h"

class FakeCoverConfigManager : public CoverConfigManager
{
public:
    void ResetCover() override { CallLog::Add("CoverConfigManager::ResetCover", {}); }
    void slotStopManualCover() override { CallLog::Add("CoverConfigManager::slotStopManualCover", {}); }
    void slotManualCoverFinished(QRect rect) override
    {
        CallLog::Add("CoverConfigManager::slotManualCoverFinished", {Text(rect)});
    }
    void slotScaleFactorChanged(double scaleFactor) override
    {
        CallLog::Add("CoverConfigManager::slotScaleFactorChanged", {QString::number(scaleFactor)});
    }
};
