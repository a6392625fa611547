// SPDX-License-Identifier: GPL-3.0-or-later
#include "replacingfile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ReplacingFile)
};

bool SetSystemFault(FileFault &fault, int reason)
{
    return fault.Set(qt_error_string(reason), DiskAdvice());
}

/// Rights of the file that is there, or what any new file gets.
mode_t RightsFor(const QString &target)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(target).constData(), &status) == 0)
        return status.st_mode & 07777;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

bool Synchronise(const QByteArray &path)
{
    const int fd = ::open(path.constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    const bool done = ::fsync(fd) == 0;
    ::close(fd);
    return done;
}

} // namespace

ReplacingFile::ReplacingFile(const QString &target)
    : m_target(target)
{
    const QString linked = QFileInfo(target).canonicalFilePath(); // empty while there is no such file
    if (!linked.isEmpty())
        m_target = linked;
}

ReplacingFile::~ReplacingFile()
{
    if (!m_temporary.isEmpty())
        QFile::remove(m_temporary);
}

bool ReplacingFile::Create(FileFault &fault)
{
    const QFileInfo target(m_target);
    if (target.isDir())
        return fault.Set(Text::tr("a folder has that name"), Text::tr("Choose another name."));
    if (target.exists() && !target.isWritable())
        return fault.Set(Text::tr("the file of that name is write-protected"), Text::tr("Choose another name, or lift the protection."));
    QByteArray path = QFile::encodeName(target.absolutePath() + "/." + target.fileName() + ".XXXXXX");
    const int fd = ::mkostemp(path.data(), O_CLOEXEC);
    if (fd < 0)
        return SetSystemFault(fault, errno);
    ::close(fd);
    m_temporary = QFile::decodeName(path);
    return true;
}

bool ReplacingFile::Commit(FileFault &fault)
{
    const QByteArray temporary = QFile::encodeName(m_temporary);
    if (::chmod(temporary.constData(), RightsFor(m_target)) != 0 || !Synchronise(temporary)
        || ::rename(temporary.constData(), QFile::encodeName(m_target).constData()) != 0)
        return SetSystemFault(fault, errno);
    m_temporary.clear();
    Synchronise(QFile::encodeName(QFileInfo(m_target).absolutePath())); // the new name too; the file is whole either way
    return true;
}
