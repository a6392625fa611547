// SPDX-License-Identifier: GPL-3.0-or-later
#include "availablememory.h"

#include <QFile>

qint64 AvailableMemory()
{
    constexpr qint64 bytesPerKB = 1024; // in /proc/meminfo
    QFile file("/proc/meminfo");
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith("MemAvailable:"))
            return line.mid(13).trimmed().split(' ').first().toLongLong() * bytesPerKB;
    }
    return -1;
}
