// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "runfacts.h"

#include <mutex>

/// The ledger of one run: what came, what was lost before it came, what could not be kept. Any thread.
class RunCounter
{
public:
    void Reset();
    /// A frame came from the camera, one of the run's or not; the gap before it is what never came whole.
    void Saw(const CameraFrame &frame);
    void AddCaptured();
    void AddSaved();
    void AddLost(LossStage stage, quint64 frameId);

    FrameCounts Counts() const;
    QVector<quint64> LostIds() const;

private:
    mutable std::mutex m_mutex;
    FrameCounts m_counts;
    QVector<quint64> m_lostIds;
    quint64 m_lastId = 0;
    bool m_hasSeen = false;
};
