// SPDX-License-Identifier: GPL-3.0-or-later
#include "runschedule.h"

namespace {
constexpr qint64 MsPerSecond = 1000;
}

RunSchedule::RunSchedule(const RecordingSettings &settings, qint64 startMs)
    : m_settings(settings)
    , m_startMs(startMs)
    , m_nextDueMs(startMs)
{
}

bool RunSchedule::Wants(qint64 nowMs)
{
    if (IsOver(nowMs) || nowMs < m_nextDueMs)
        return false;
    ++m_kept;
    if (m_settings.intervalMs
        > 0) // the next of the whole intervals since the start, so that none adds up a delay
        m_nextDueMs = m_startMs + ((nowMs - m_startMs) / m_settings.intervalMs + 1) * m_settings.intervalMs;
    return true;
}

qint64 RunSchedule::MissedIntervals(qint64 nowMs) const
{
    return IsTimeLapse() && nowMs > m_nextDueMs ? (nowMs - m_nextDueMs) / m_settings.intervalMs : 0;
}

bool RunSchedule::IsOver(qint64 nowMs) const
{
    if (m_settings.EndsByFrames())
        return m_kept >= m_settings.FrameLimit();
    return m_settings.mode == RecordingSettings::Mode::Duration
           && nowMs - m_startMs >= m_settings.seconds * MsPerSecond;
}
