// SPDX-License-Identifier: GPL-3.0-or-later
#include "runcounter.h"

namespace {
/// More are counted and not listed.
constexpr int ListedIds = 1000;
} // namespace

void RunCounter::Reset()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_counts = FrameCounts();
    m_lostIds.clear();
    m_hasSeen = false;
}

void RunCounter::Saw(const CameraFrame &frame)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_hasSeen && frame.frameId > m_lastId + 1) {
        const quint64 missing = frame.frameId - m_lastId - 1;
        const quint64 incomplete = qMin(missing, frame.incompleteBefore);
        m_counts.lostAt[size_t(LossStage::Transfer)] += incomplete;
        m_counts.lostAt[size_t(LossStage::Camera)] += missing - incomplete;
    }
    m_lastId = frame.frameId;
    m_hasSeen = true;
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

void RunCounter::AddLost(LossStage stage, quint64 frameId)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    ++m_counts.lostAt[size_t(stage)];
    if (m_lostIds.size() < ListedIds)
        m_lostIds.append(frameId);
}

FrameCounts RunCounter::Counts() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_counts;
}

QVector<quint64> RunCounter::LostIds() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_lostIds;
}
