// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cameraframe.h"

#include <condition_variable>
#include <mutex>

/// One place between the camera and the display. A newer frame takes the place of one that nobody has fetched, so a
/// slow display sees the newest frame and never holds up the camera. Put() and Take() may be called from any thread.
class NewestFrameSlot
{
public:
    void Put(const CameraFrame &frame);
    /// Waits for a frame; null after timeoutMs or Stop().
    CameraFrame Take(int timeoutMs);

    /// Wakes every Take() and drops the waiting frame; Put() and Take() do nothing until Restart().
    void Stop();
    void Restart();

    /// Frames that were replaced before anybody fetched them, since Restart().
    quint64 SkippedCount() const;

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_arrived;
    CameraFrame m_frame;
    quint64 m_skipped = 0;
    bool m_stopped = false;
};
