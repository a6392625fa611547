// SPDX-License-Identifier: GPL-3.0-or-later
#include "fitssession.h"

#include <QMutex>
#include <QStringList>

#include <fitsio.h>

namespace {

constexpr int keptMessages = 3;

QMutex *LibraryMutex()
{
    static QMutex mutex;
    return &mutex;
}

} // namespace

FitsSession::FitsSession()
    : m_lock(LibraryMutex())
{
    fits_clear_errmsg();
}

QString FitsSession::TakeMessages(int status)
{
    char text[FLEN_ERRMSG] = "";
    QStringList messages;
    if (status > 0) {
        fits_get_errstatus(status, text);
        messages << QString::fromLatin1(text);
    }
    while (fits_read_errmsg(text) != 0) {
        if (messages.size() <= keptMessages)
            messages << QString::fromLocal8Bit(text).simplified();
    }
    return messages.join("; ");
}
