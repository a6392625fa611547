// SPDX-License-Identifier: GPL-3.0-or-later
#include "savesettings.h"

namespace {
constexpr int MsPerSecond = 1000;
constexpr int SecondsPerMinute = 60;
}

SaveSettings::SaveSettings(QObject *parent)
    : FileSaveManager(parent)
{
}

int SaveSettings::GetTimeInMs(const TIME_MIN_S_MS &time) const
{
    return (time.minutes * SecondsPerMinute + time.seconds) * MsPerSecond + time.milliseconds;
}

TIME_MIN_S_MS SaveSettings::GetConfiguredTime() const
{
    return TIME_MIN_S_MS();
}

bool SaveSettings::IsSaveToRAM() const
{
    return false;
}
