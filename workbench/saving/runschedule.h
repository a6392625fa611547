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
    bool IsTimeLapse() const { return m_settings.intervalMs > 0; }
    /// Of a time-lapse: intervals that have passed since a frame was due.
    qint64 MissedIntervals(qint64 nowMs) const;
    void SkipIntervals(int intervals) { m_nextDueMs += qint64(intervals) * m_settings.intervalMs; }

private:
    RecordingSettings m_settings;
    qint64 m_startMs = 0;
    qint64 m_nextDueMs = 0;
    int m_kept = 0;
};
