// SPDX-License-Identifier: GPL-3.0-or-later
#include "savesettings.h"

namespace {
constexpr int MsPerSecond = 1000;
constexpr int SecondsPerMinute = 60;
} // namespace

SaveSettings::SaveSettings(QSettings *settings, QObject *parent)
    : FileSaveManager(parent)
    , m_settings(settings)
    , m_recording(RecordingSettings::Read(settings))
{
}

void SaveSettings::Set(const RecordingSettings &recording)
{
    m_recording = recording.Valid();
    m_recording.Write(m_settings);
    emit signalChanged();
}

int SaveSettings::GetTimeInMs(const TIME_MIN_S_MS &time) const
{
    return (time.minutes * SecondsPerMinute + time.seconds) * MsPerSecond + time.milliseconds;
}

TIME_MIN_S_MS SaveSettings::GetConfiguredTime() const { return Current().delay; }

bool SaveSettings::IsSaveToRAM() const { return Current().toRam; }

void SaveSettings::SetRun(const RecordingSettings *run)
{
    m_hasRun = run != nullptr;
    if (run)
        m_run = *run;
}
