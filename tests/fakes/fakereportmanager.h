// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "reportmanager.h"

class FakeReportManager : public ReportManager
{
public:
    MeasureManager *measureManager = nullptr;
    QSize imageSize;
    QString fileName;

    void ClearAll() override { CallLog::Add("ReportManager::ClearAll", {}); }
    void LineProfileMouseMoveEvent(QMouseEvent *) override
    {
        CallLog::Add("ReportManager::LineProfileMouseMoveEvent", {});
    }
    MeasureManager *GetMeasureManager() const override { return measureManager; }
    void slotFinishSetBrush() override { CallLog::Add("ReportManager::slotFinishSetBrush", {}); }
    QSize GetImageSize() const override { return imageSize; }
    QString GetFileName() const override { return fileName; }
};
