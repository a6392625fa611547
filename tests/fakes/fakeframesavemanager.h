// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "framesavemanager.h"

class FakeFrameSaveManager : public FrameSaveManager
{
public:
    ~FakeFrameSaveManager() override { SetRunning(false); }

    bool autoStop = false;
    bool totalFrameChecked = false;
    int progressBarMaxValue = 0;
    bool recordMode = false;

    bool IsAutoStop() const override { return autoStop; }
    bool IsTotalFrameChecked() const override { return totalFrameChecked; }
    int GetProgressBarMaxValue() const override { return progressBarMaxValue; }
    bool IsRecordMode() const override { return recordMode; }
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
