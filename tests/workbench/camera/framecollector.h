// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cameraframe.h"
#include "framesink.h"

#include <QStringList>

#include <condition_variable>
#include <mutex>
#include <vector>

/// Keeps the frames that a session delivers, up to `capacity` of them, and counts the rest.
class FrameCollector : public FrameSink
{
public:
    explicit FrameCollector(size_t capacity = 100);

    void OnFrame(const CameraFrame &frame) override;
    void OnLost(LossStage stage, quint64 firstId, quint64 frames) override;

    /// Waits until `count` frames have come in all; false after timeoutMs.
    bool WaitFor(size_t count, int timeoutMs = 5000);
    /// Waits for frames that come after this call.
    bool WaitForMore(size_t count, int timeoutMs = 5000) { return WaitFor(Count() + count, timeoutMs); }
    size_t Count() const;
    std::vector<CameraFrame> Frames() const;
    CameraFrame Last() const;
    /// "missing 12 x 2": the stage, the first id, and how many.
    QStringList Losses() const;
    void Clear();

private:
    const size_t m_capacity;
    mutable std::mutex m_mutex;
    std::condition_variable m_arrived;
    std::vector<CameraFrame> m_frames;
    CameraFrame m_last;
    QStringList m_losses;
    size_t m_count = 0;
};
