// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "histogramcalculatemanager.h"

class FakeHistogramCalculateManager : public HistogramCalculateManager
{
public:
    void SetHistogramStatisticsState(bool enabled) override
    {
        CallLog::Add("HistogramCalculateManager::SetHistogramStatisticsState", {Text(enabled)});
    }
};
