// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMutexLocker>
#include <QString>

/// Holds CFITSIO for one thread while it works on a file. The library can be used from many threads
/// but keeps the messages of all of them in one list; in a session that list is this thread's own.
class FitsSession
{
public:
    FitsSession();

    /// The library's words for `status`, with its messages since the last call.
    QString TakeMessages(int status);

private:
    QMutexLocker m_lock;
};
