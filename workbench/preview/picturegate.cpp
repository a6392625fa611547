// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturegate.h"

bool PictureGate::Enter()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait(lock, [this] { return m_closed || !m_taken; });
    if (m_closed)
        return false;
    m_taken = true;
    return true;
}

void PictureGate::Leave()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_taken = false;
    }
    m_changed.notify_all();
}

bool PictureGate::IsTaken() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_taken;
}

void PictureGate::Close()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_closed = true;
    }
    m_changed.notify_all();
}

void PictureGate::Open()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_closed = false;
}
