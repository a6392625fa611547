// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "measuremanager.h"

class FakeMeasureManager : public MeasureManager
{
public:
    bool measurementInProgress = false;

    void mouseMoveEvent(QMouseEvent *) override { CallLog::Add("MeasureManager::mouseMoveEvent", {}); }
    void mouseDoubleClickEvent(QMouseEvent *) override
    {
        CallLog::Add("MeasureManager::mouseDoubleClickEvent", {});
    }
    void SetScaleFactor() override { CallLog::Add("MeasureManager::SetScaleFactor", {}); }
    void InitMeasuring() override { CallLog::Add("MeasureManager::InitMeasuring", {}); }
    void SetDialogParent(QWidget *) override { CallLog::Add("MeasureManager::SetDialogParent", {}); }
    bool IsMeasurementInProgress() const override { return measurementInProgress; }
};
