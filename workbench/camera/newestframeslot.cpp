// SPDX-License-Identifier: GPL-3.0-or-later
#include "newestframeslot.h"

#include <chrono>
#include <utility>

void NewestFrameSlot::Put(const CameraFrame &frame)
{
    CameraFrame replaced; // its memory is given back outside the lock
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_stopped)
            return;
        replaced = std::exchange(m_frame, frame);
        if (!replaced.IsNull())
            ++m_skipped;
    }
    m_arrived.notify_one();
}

CameraFrame NewestFrameSlot::Take(int timeoutMs)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_arrived.wait_for(lock, std::chrono::milliseconds(timeoutMs),
                       [this] { return m_stopped || !m_frame.IsNull(); });
    return std::exchange(m_frame, CameraFrame());
}

void NewestFrameSlot::Stop()
{
    CameraFrame dropped;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_stopped = true;
        dropped = std::exchange(m_frame, CameraFrame());
    }
    m_arrived.notify_all();
}

void NewestFrameSlot::Restart()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_stopped = false;
    m_skipped = 0;
}

quint64 NewestFrameSlot::SkippedCount() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_skipped;
}
