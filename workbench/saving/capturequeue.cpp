// SPDX-License-Identifier: GPL-3.0-or-later
#include "capturequeue.h"

#include <chrono>

void CaptureQueue::Open(qint64 budgetBytes)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_frames.clear();
    m_bytes = 0;
    m_budgetBytes = budgetBytes;
    m_isOpen = true;
}

void CaptureQueue::End()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isOpen = false;
    m_changed.notify_all();
}

bool CaptureQueue::Put(const CameraFrame &frame)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_isOpen || (!m_frames.empty() && m_bytes + frame.ByteCount() > m_budgetBytes))
        return false;
    m_bytes += frame.ByteCount();
    m_frames.push_back(frame);
    m_changed.notify_one();
    return true;
}

CameraFrame CaptureQueue::Take(int timeoutMs)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait_for(lock, std::chrono::milliseconds(timeoutMs),
                       [this] { return !m_frames.empty() || !m_isOpen; });
    if (m_frames.empty())
        return CameraFrame();
    CameraFrame frame = std::move(m_frames.front());
    m_frames.pop_front();
    m_bytes -= frame.ByteCount();
    return frame;
}

bool CaptureQueue::IsFinished() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return !m_isOpen && m_frames.empty();
}

bool CaptureQueue::IsOpen() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_isOpen;
}

int CaptureQueue::Count() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return int(m_frames.size());
}

qint64 CaptureQueue::Bytes() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_bytes;
}

qint64 CaptureQueue::BudgetBytes() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_budgetBytes;
}
