// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frameledger.h"
#include "runfacts.h"
#include "runschedule.h"

#include <deque>
#include <mutex>
#include <utility>
#include <vector>

class CaptureQueue;
class RunCounter;

/// Lets the frames of a run into its queue while it is open, and counts them and what was lost before. Frames come in
/// the camera's thread and never wait; any thread for the rest. Times are milliseconds of one steady clock.
class FrameGate
{
public:
    /// Both are borrowed and outlive this object.
    FrameGate(CaptureQueue *queue, RunCounter *counter);

    void Reset();
    void Open(const RecordingSettings &settings, qint64 nowMs);
    /// No more frames come into the queue; twice does no harm.
    void Close(qint64 nowMs);
    /// Closes when the run has all its frames or its time: without frames nobody else notices.
    void CloseWhenOver(qint64 nowMs);

    void TakeFrame(const CameraFrame &frame, qint64 nowMs);
    void TakeLoss(LossStage stage, quint64 firstId, quint64 frames);

    /// What was set anew, for the frames that come from now on.
    void AddChange(const SettingsChange &change);
    /// Those that were made before that frame came, each once.
    std::vector<SettingsChange> TakeChangesBefore(quint64 frameId);

private:
    void CountMissedIntervals(qint64 nowMs);
    void DoClose(qint64 nowMs);

    CaptureQueue *m_queue;
    RunCounter *m_counter;
    std::mutex m_mutex;
    bool m_isOpen = false;
    RunSchedule m_schedule;
    quint64 m_lastId = 0; ///< of the frames that were seen
    std::deque<std::pair<quint64, SettingsChange>> m_changes; ///< with the last id before each

    // Of a time-lapse, since the last frame that was kept: what did not come whole.
    LossStage m_missedStage = LossStage::Camera;
    quint64 m_firstMissed = 0;
    quint64 m_missed = 0;
};
