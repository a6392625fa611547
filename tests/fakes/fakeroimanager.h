// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "roimanager.h"

class FakeROIManager : public ROIManager
{
public:
    bool roiChecked = false;

    bool IsROIChecked() const override { return roiChecked; }
    void SetManualROIChecked(bool checked) override
    {
        CallLog::Add("ROIManager::SetManualROIChecked", {Text(checked)});
    }
    void slotStopManualROI() override { CallLog::Add("ROIManager::slotStopManualROI", {}); }
    void slotScaleFactorChanged(double scaleFactor) override
    {
        CallLog::Add("ROIManager::slotScaleFactorChanged", {QString::number(scaleFactor)});
    }
};
