// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <mutex>

/// Lets one picture at a time through to the GUI thread. The preview thread waits here until the
/// picture before has been delivered, so that pictures never pile up in the event queue.
class PictureGate
{
public:
    /// Waits until the way is free and takes it; false after Close().
    bool Enter();
    /// The picture has been delivered.
    void Leave();
    /// A picture is on its way.
    bool IsTaken() const;

    /// Wakes and turns away everybody until Open().
    void Close();
    void Open();

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_taken = false;
    bool m_closed = false;
};
