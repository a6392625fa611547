// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMutex>

#if defined(__SANITIZE_THREAD__)
#include <sanitizer/tsan_interface.h>
#endif

/// Holds the lock of a payload, if it has one. Qt's own library is not built with the thread sanitizer, which therefore
/// does not see what its mutexes order; here it is told.
class PayloadLocker
{
public:
    explicit PayloadLocker(QMutex *lock)
        : m_lock(lock)
    {
        if (!m_lock)
            return;
        m_lock->lock();
#if defined(__SANITIZE_THREAD__)
        __tsan_acquire(m_lock);
#endif
    }

    ~PayloadLocker()
    {
        if (!m_lock)
            return;
#if defined(__SANITIZE_THREAD__)
        __tsan_release(m_lock);
#endif
        m_lock->unlock();
    }

    Q_DISABLE_COPY(PayloadLocker)

private:
    QMutex *m_lock;
};
