// SPDX-License-Identifier: GPL-3.0-or-later
#include "framegate.h"

#include "capturequeue.h"
#include "runcounter.h"

FrameGate::FrameGate(CaptureQueue *queue, RunCounter *counter)
    : m_queue(queue)
    , m_counter(counter)
{
}

void FrameGate::Reset()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isOpen = false;
    m_lastId = 0;
    m_missed = 0;
    m_changes.clear();
}

void FrameGate::Open(const RecordingSettings &settings, qint64 nowMs)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_schedule = RunSchedule(settings, nowMs);
    m_isOpen = true;
}

void FrameGate::Close(qint64 nowMs)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    DoClose(nowMs);
}

void FrameGate::CloseWhenOver(qint64 nowMs)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_isOpen && m_schedule.IsOver(nowMs))
        DoClose(nowMs);
}

void FrameGate::DoClose(qint64 nowMs)
{
    if (m_isOpen)
        CountMissedIntervals(nowMs);
    m_isOpen = false;
    m_queue->End();
}

void FrameGate::TakeFrame(const CameraFrame &frame, qint64 nowMs)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_lastId = frame.frameId;
    if (!m_isOpen)
        return;
    CountMissedIntervals(nowMs);
    if (m_schedule.Wants(nowMs)) {
        m_missed = 0;
        m_counter->AddCaptured();
        if (!m_queue->Put(frame))
            m_counter->AddLost(LossStage::SaveQueue, frame.frameId);
    }
    if (m_schedule.IsOver(nowMs))
        DoClose(nowMs);
}

/// In a time-lapse the next whole frame takes the place of one that was lost.
void FrameGate::TakeLoss(LossStage stage, quint64 firstId, quint64 frames)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_lastId = qMax(m_lastId, firstId + frames - 1);
    if (!m_isOpen)
        return;
    if (!m_schedule.IsTimeLapse()) {
        m_counter->AddLost(stage, firstId, frames);
        return;
    }
    if (m_missed == 0)
        m_firstMissed = firstId;
    m_missedStage = stage;
    m_missed += frames;
}

/// Intervals of a time-lapse that passed without a frame, where frames were lost on the way.
void FrameGate::CountMissedIntervals(qint64 nowMs)
{
    const quint64 missed = qMin(m_missed, quint64(m_schedule.MissedIntervals(nowMs)));
    if (missed == 0)
        return;
    m_counter->AddLost(m_missedStage, m_firstMissed, missed);
    m_missed -= missed;
    m_schedule.SkipIntervals(int(missed));
}

void FrameGate::AddChange(const SettingsChange &change)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_changes.emplace_back(m_lastId, change);
}

std::vector<SettingsChange> FrameGate::TakeChangesBefore(quint64 frameId)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<SettingsChange> changes;
    for (; !m_changes.empty() && frameId > m_changes.front().first; m_changes.pop_front())
        changes.push_back(m_changes.front().second);
    return changes;
}
