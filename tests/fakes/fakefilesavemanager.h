// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "filesavemanager.h"

class FakeFileSaveManager : public FileSaveManager
{
public:
    TIME_MIN_S_MS configuredTime;
    bool saveToRAM = false;

    int GetTimeInMs(const TIME_MIN_S_MS &time) const override
    {
        return (time.minutes * 60 + time.seconds) * 1000 + time.milliseconds;
    }
    TIME_MIN_S_MS GetConfiguredTime() const override { return configuredTime; }
    bool IsSaveToRAM() const override { return saveToRAM; }
};
