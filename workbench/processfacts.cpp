// SPDX-License-Identifier: GPL-3.0-or-later
#include "processfacts.h"

#include <QByteArray>
#include <QFile>
#include <QList>

#include <ctime>
#include <unistd.h>

namespace {
constexpr qint64 MsPerSecond = 1000;
constexpr qint64 NsPerMs = 1000000;
constexpr int KBPerMB = 1024;
/// Of /proc/self/stat, counted behind the program's name in brackets: when the process started.
constexpr int StartTimeField = 19;

QByteArray ReadAll(const char *fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
}

qint64 ProcessFacts::AgeMs()
{
    const QByteArray stat = ReadAll("/proc/self/stat");
    const QList<QByteArray> fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
    const qint64 startTicks = fields.value(StartTimeField).toLongLong();
    timespec now = {};
    clock_gettime(CLOCK_BOOTTIME, &now);
    return now.tv_sec * MsPerSecond + now.tv_nsec / NsPerMs - startTicks * MsPerSecond / sysconf(_SC_CLK_TCK);
}

int ProcessFacts::PeakMemoryMB()
{
    const QByteArray status = ReadAll("/proc/self/status");
    const QByteArray key = "VmHWM:";
    const int start = status.indexOf(key);
    if (start < 0)
        return 0;
    const QByteArray line = status.mid(start + key.size(), status.indexOf('\n', start) - start - key.size());
    return line.trimmed().split(' ').first().toInt() / KBPerMB;
}
