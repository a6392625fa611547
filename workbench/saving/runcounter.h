// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "runfacts.h"

#include <mutex>

/// The ledger of one run: what came, what never came whole, what could not be kept. Any thread.
class RunCounter
{
public:
    void Reset();
    void AddCaptured();
    void AddSaved();
    /// So many frames from `firstId` on; of UnknownFrameId only the number counts.
    void AddLost(LossStage stage, quint64 firstId, quint64 frames = 1);

    FrameCounts Counts() const;
    /// In the order in which they were lost.
    QVector<IdGap> LostIds() const;

private:
    mutable std::mutex m_mutex;
    FrameCounts m_counts;
    QVector<IdGap> m_lostIds;
};
