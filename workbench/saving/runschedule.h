// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "recordingsettings.h"

/// Which frames of a run are kept, and when it has all of them. Times are milliseconds of any steady clock.
class RunSchedule
{
public:
    RunSchedule() = default;
    RunSchedule(const RecordingSettings &settings, qint64 startMs);

    /// A frame has come: whether it is one of the run's.
    bool Wants(qint64 nowMs);
    /// Nothing more is to be kept.
    bool IsOver(qint64 nowMs) const;
    int Kept() const { return m_kept; }

private:
    RecordingSettings m_settings;
    qint64 m_startMs = 0;
    qint64 m_nextDueMs = 0;
    int m_kept = 0;
};
