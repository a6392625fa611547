// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cameraframe.h"

#include <condition_variable>
#include <deque>
#include <mutex>

/// Frames on their way from the camera's thread to the one that saves them. Nothing is lost before the memory allowed is
/// used up; the camera's thread never waits. Any thread.
class CaptureQueue
{
public:
    /// `budgetBytes` is what the waiting frames may take; a first frame always finds room.
    void Open(qint64 budgetBytes);
    /// No more frames come; those that wait can still be taken.
    void End();

    /// False when there is no room, or nobody is saving.
    bool Put(const CameraFrame &frame);
    /// Waits that long for a frame; a null one when none came.
    CameraFrame Take(int timeoutMs);
    /// Ended, and everything was taken.
    bool IsFinished() const;
    bool IsOpen() const;

    int Count() const;
    qint64 Bytes() const;
    qint64 BudgetBytes() const;

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<CameraFrame> m_frames;
    qint64 m_bytes = 0;
    qint64 m_budgetBytes = 0;
    bool m_isOpen = false;
};
