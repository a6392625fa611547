// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "previewmanager.h"

class FakePreviewManager : public PreviewManager
{
public:
    ~FakePreviewManager() override { SetRunning(false); }

    bool startPreviewResult = true;
    bool stopPreviewResult = true;
    const RawCameraFrame *currentRawFrame = nullptr;

    bool StartPreview() override
    {
        CallLog::Add("PreviewManager::StartPreview", {});
        return startPreviewResult;
    }
    bool StopPreview() override
    {
        CallLog::Add("PreviewManager::StopPreview", {});
        return stopPreviewResult;
    }
    void RestoreStopPreview() override { CallLog::Add("PreviewManager::RestoreStopPreview", {}); }
    void FrameSave(bool record, bool single) override
    {
        CallLog::Add("PreviewManager::FrameSave", {Text(record), Text(single)});
    }
    const RawCameraFrame *GetCurrentRawFrame() const override { return currentRawFrame; }
    void slotManualROI(int x, int y, int width, int height, bool apply) override
    {
        CallLog::Add("PreviewManager::slotManualROI", {QString::number(x), QString::number(y), QString::number(width), QString::number(height), Text(apply)});
    }
    void SetRunning(bool running)
    {
        if (running) {
            start();
        } else {
            quit();
            wait();
        }
    }
};
