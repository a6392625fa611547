// SPDX-License-Identifier: GPL-3.0-or-later
#include "controlqueue.h"

#include <QThreadPool>

#include <utility>

namespace {
/// A camera that is gone keeps its thread for seconds; others must not wait for it.
constexpr int MostCameras = 8;

class ControlThreads : public QThreadPool
{
public:
    ControlThreads() { setMaxThreadCount(MostCameras); }
};

Q_GLOBAL_STATIC(ControlThreads, Threads)
} // namespace

void ControlQueue::Add(Task task, const QString &key)
{
    std::deque<Entry> replaced; // freed outside the lock: a task may own much
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (auto entry = m_waiting.end(); !key.isEmpty() && entry != m_waiting.begin();) {
        --entry;
        if (entry->key.isEmpty())
            break;
        if (entry->key == key) {
            replaced.push_back(std::move(*entry));
            entry = m_waiting.erase(entry);
        }
    }
    m_waiting.push_back({ std::move(task), key });
    if (m_isRunning)
        return;
    m_isRunning = true;
    Threads()->start([self = shared_from_this()] { self->Run(); });
}

void ControlQueue::Clear()
{
    std::deque<Entry> dropped;
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_waiting.swap(dropped);
}

void ControlQueue::Run()
{
    Task task;
    while (TakeNext(&task)) {
        task();
        task = nullptr; // what it owns goes before the next one
    }
}

bool ControlQueue::TakeNext(Task *task)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isRunning = !m_waiting.empty();
    if (!m_isRunning)
        return false;
    *task = std::move(m_waiting.front().task);
    m_waiting.pop_front();
    return true;
}

bool ControlQueue::WaitForDone(int timeoutMs) { return Threads()->waitForDone(timeoutMs); }
