// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <pthread.h>
#include <sched.h>
#include <utility>

/// Does some work in a thread of its own, which is kept off the processor that the caller runs on, and waits for it at
/// the end. Left to itself the system often lets a new thread wait behind the one that began it, for milliseconds,
/// though another processor is idle. Where no thread can be had the work is done at once.
class ThreadElsewhere
{
public:
    explicit ThreadElsewhere(std::function<void()> work)
        : m_work(std::move(work))
    {
        pthread_attr_t attributes;
        ::pthread_attr_init(&attributes);
        Choose(&attributes);
        m_runs = ::pthread_create(&m_thread, &attributes, &Run, &m_work) == 0;
        ::pthread_attr_destroy(&attributes);
        if (!m_runs)
            m_work();
    }

    ~ThreadElsewhere()
    {
        if (m_runs)
            ::pthread_join(m_thread, nullptr);
    }

    ThreadElsewhere(const ThreadElsewhere &) = delete;
    ThreadElsewhere &operator=(const ThreadElsewhere &) = delete;

private:
    /// Before the thread begins: one that has ended already cannot be told from the caller.
    static void Choose(pthread_attr_t *attributes)
    {
        cpu_set_t processors;
        CPU_ZERO(&processors);
        const int here = ::sched_getcpu();
        const bool isKnown =
            here >= 0 && here < CPU_SETSIZE
            && ::pthread_getaffinity_np(::pthread_self(), sizeof processors, &processors) == 0;
        if (!isKnown)
            return;
        CPU_CLR(size_t(here), &processors);
        if (CPU_COUNT(&processors) > 0)
            ::pthread_attr_setaffinity_np(attributes, sizeof processors, &processors);
    }

    static void *Run(void *work)
    {
        (*static_cast<std::function<void()> *>(work))();
        return nullptr;
    }

    std::function<void()> m_work;
    pthread_t m_thread = {};
    bool m_runs = false;
};
