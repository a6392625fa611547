// SPDX-License-Identifier: GPL-3.0-or-later
#include "framecollector.h"

#include <chrono>

FrameCollector::FrameCollector(size_t capacity)
    : m_capacity(capacity)
{
}

void FrameCollector::OnFrame(const CameraFrame &frame)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_frames.size() < m_capacity)
        m_frames.push_back(frame);
    m_last = frame;
    ++m_count;
    m_arrived.notify_all();
}

void FrameCollector::OnLost(LossStage stage, quint64 firstId, quint64 frames)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_losses << QString("%1 %2 x %3")
                    .arg(stage == LossStage::Camera ? "missing" : "incomplete")
                    .arg(firstId)
                    .arg(frames);
}

QStringList FrameCollector::Losses() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_losses;
}

bool FrameCollector::WaitFor(size_t count, int timeoutMs)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_arrived.wait_for(lock, std::chrono::milliseconds(timeoutMs), [&] { return m_count >= count; });
}

size_t FrameCollector::Count() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_count;
}

std::vector<CameraFrame> FrameCollector::Frames() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_frames;
}

CameraFrame FrameCollector::Last() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_last;
}

void FrameCollector::Clear()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_frames.clear();
    m_last = CameraFrame();
    m_losses.clear();
    m_count = 0;
}
