// SPDX-License-Identifier: GPL-3.0-or-later
#include "wholefile.h"

#include "replacingfile.h"

#include <QFile>

namespace {

bool Write(const QString &path, const QByteArray &content, FileFault &fault)
{
    ReplacingFile whole(path);
    if (!whole.Create(fault))
        return false;
    QFile file(whole.TemporaryPath());
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush();
    if (!isWritten)
        return fault.Set(file.errorString(), DiskAdvice());
    file.close();
    return whole.Commit(fault);
}

} // namespace

QString WriteWholeFile(const QString &path, const QByteArray &content)
{
    FileFault fault;
    return Write(path, content, fault) ? QString() : WriteFaultText(path, fault);
}
