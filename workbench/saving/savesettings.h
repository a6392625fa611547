// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filesavemanager.h"
#include "recordingsettings.h"

class QSettings;

/// How captured frames are to be saved, kept from one start to the next. A run that has begun keeps what it began with.
/// GUI thread.
class SaveSettings : public FileSaveManager
{
    Q_OBJECT

public:
    /// Borrowed; outlives this object.
    explicit SaveSettings(QSettings *settings, QObject *parent = nullptr);

    const RecordingSettings &Get() const { return m_recording; }
    void Set(const RecordingSettings &recording);

    int GetTimeInMs(const TIME_MIN_S_MS &time) const override;
    TIME_MIN_S_MS GetConfiguredTime() const override;
    bool IsSaveToRAM() const override;

    /// A run with settings of its own begins, or ends: what the module asks for is the run's.
    void SetRun(const RecordingSettings *run);

signals:
    void signalChanged();

private:
    const RecordingSettings &Current() const { return m_hasRun ? m_run : m_recording; }

    QSettings *m_settings;
    RecordingSettings m_recording;
    RecordingSettings m_run;
    bool m_hasRun = false;
};
