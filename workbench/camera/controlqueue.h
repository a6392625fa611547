// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <deque>
#include <functional>
#include <memory>
#include <mutex>

/// The calls to one camera, one at a time and in the order in which they were asked for, in a worker thread. Whoever
/// asks never waits for them. What waits keeps the queue alive until it is done; any thread may ask.
class ControlQueue : public std::enable_shared_from_this<ControlQueue>
{
public:
    using Task = std::function<void()>;

    /// A task with a key replaces one of that key that still waits, so that only the newest wish of many is carried
    /// out. Nothing is taken back from before a task without a key: what that one finds is what was wished until then.
    void Add(Task task, const QString &key = QString());
    /// Forgets what waits; a task that runs ends by itself.
    void Clear();

    /// Waits until no queue has anything to do, at most that long.
    static bool WaitForDone(int timeoutMs);

private:
    struct Entry
    {
        Task task;
        QString key;
    };

    void Run();
    bool TakeNext(Task *task);

    std::mutex m_mutex;
    std::deque<Entry> m_waiting;
    bool m_isRunning = false;
};
