// SPDX-License-Identifier: GPL-3.0-or-later
#include "runcounter.h"

#include "framesink.h"

namespace {
/// More are counted, and only the newest of them is listed.
constexpr int ListedGaps = 1000;
} // namespace

void RunCounter::Reset()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_counts = FrameCounts();
    m_lostIds.clear();
}

void RunCounter::AddCaptured()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    ++m_counts.captured;
}

void RunCounter::AddSaved()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    ++m_counts.saved;
}

void RunCounter::AddLost(LossStage stage, quint64 firstId, quint64 frames)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_counts.lostAt[size_t(stage)] += frames;
    if (firstId == UnknownFrameId)
        return;
    if (!m_lostIds.isEmpty() && m_lostIds.last().first + m_lostIds.last().count == firstId) {
        m_lostIds.last().count += frames;
        return;
    }
    if (m_lostIds.size() == ListedGaps)
        m_lostIds.removeLast();
    m_lostIds.append({ firstId, frames });
}

FrameCounts RunCounter::Counts() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_counts;
}

QVector<IdGap> RunCounter::LostIds() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_lostIds;
}
