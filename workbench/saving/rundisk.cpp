// SPDX-License-Identifier: GPL-3.0-or-later
#include "rundisk.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(RunDisk)
};

/// What the system says, and what the user can do about it.
bool SetFaultText(FileFault &fault, int reason)
{
    switch (reason) {
    case ENOSPC:
    case EDQUOT:
        return fault.Set(Text::tr("the disk is full"),
                         Text::tr("Free some space or record to another disk; the frames before are kept."));
    case EFBIG:
        return fault.Set(Text::tr("the file has become larger than this disk allows"),
                         Text::tr("Record fewer frames, or to another disk; the frames before are kept."));
    case EEXIST:
        return fault.Set(Text::tr("a file of that name is there already"),
                         Text::tr("Choose another name; recordings never replace a file."));
    case EACCES:
    case EPERM:
    case EROFS:
        return fault.Set(Text::tr("you may not write in that folder"),
                         Text::tr("Choose another folder, or ask for the right to write there."));
    case ENOENT:
    case ENOTDIR:
    case ENAMETOOLONG:
        return fault.Set(Text::tr("that folder does not exist"),
                         Text::tr("Choose a folder that is there."));
    case EIO:
    case ENODEV:
    case ENXIO:
        return fault.Set(
            Text::tr("the disk does not answer"),
            Text::tr("Check that it is still connected; what was written before may be readable."));
    default:
        return fault.Set(qt_error_string(reason), Text::tr("Check the disk, or record to another one."));
    }
}

/// The file system does not know such a call.
bool CantBeRefused(int reason)
{
    return reason == EINVAL || reason == ENOSYS || reason == EPERM || reason == EOPNOTSUPP || reason == EMLINK;
}

} // namespace

bool RunDisk::SetSystemFault(FileFault &fault, int reason)
{
    SetFaultText(fault, reason);
    fault.isDiskFull = reason == ENOSPC || reason == EDQUOT || reason == EFBIG;
    fault.isNameTaken = reason == EEXIST;
    return false;
}

RunDisk::~RunDisk() { Close(); }

bool RunDisk::SetFault(FileFault &fault) const { return SetSystemFault(fault, errno); }

bool RunDisk::Create(const QString &path, FileFault &fault)
{
    Close();
    m_path = path;
    m_fd = ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    return m_fd >= 0 || SetFault(fault);
}

bool RunDisk::OpenExisting(const QString &path, FileFault &fault)
{
    Close();
    m_path = path;
    m_fd = ::open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW);
    return m_fd >= 0 || SetFault(fault);
}

void RunDisk::Close()
{
    if (m_fd >= 0)
        ::close(m_fd);
    m_fd = -1;
}

qint64 RunDisk::Size() const
{
    struct stat status = {};
    return ::fstat(m_fd, &status) == 0 ? qint64(status.st_size) : 0;
}

bool RunDisk::Lock() { return ::flock(m_fd, LOCK_EX | LOCK_NB) == 0; }

bool RunDisk::Write(const void *bytes, qint64 size, FileFault &fault)
{
    const char *next = static_cast<const char *>(bytes);
    while (size > 0) {
        const ssize_t written = ::write(m_fd, next, size_t(size));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return SetFault(fault);
        next += written;
        size -= written;
    }
    return true;
}

bool RunDisk::WriteAt(qint64 offset, const void *bytes, qint64 size, FileFault &fault)
{
    const char *next = static_cast<const char *>(bytes);
    while (size > 0) {
        const ssize_t written = ::pwrite(m_fd, next, size_t(size), off_t(offset));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return SetFault(fault);
        next += written;
        offset += written;
        size -= written;
    }
    return true;
}

bool RunDisk::Read(void *bytes, qint64 size)
{
    char *next = static_cast<char *>(bytes);
    while (size > 0) {
        const ssize_t got = ::read(m_fd, next, size_t(size));
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return false;
        next += got;
        size -= got;
    }
    return true;
}

bool RunDisk::ReadAt(qint64 offset, void *bytes, qint64 size) const
{
    char *next = static_cast<char *>(bytes);
    while (size > 0) {
        const ssize_t got = ::pread(m_fd, next, size_t(size), off_t(offset));
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return false;
        next += got;
        offset += got;
        size -= got;
    }
    return true;
}

bool RunDisk::CutTo(qint64 size, FileFault &fault)
{
    return (::ftruncate(m_fd, off_t(size)) == 0 && ::lseek(m_fd, off_t(size), SEEK_SET) == off_t(size))
           || SetFault(fault);
}

void RunDisk::WriteBehind(qint64 from, qint64 size) const
{
#if defined(__linux__)
    ::sync_file_range(m_fd, off64_t(from), off64_t(size), SYNC_FILE_RANGE_WRITE);
#endif
}

bool RunDisk::Synchronise(FileFault &fault) { return ::fsync(m_fd) == 0 || SetFault(fault); }

std::function<int()> RunDisk::DataSync() const
{
    const std::shared_ptr<int> fd(new int(::dup(m_fd)), [](int *descriptor) {
        ::close(*descriptor);
        delete descriptor;
    });
    return [fd] { return ::fdatasync(*fd) == 0 ? 0 : errno; };
}

bool RunDisk::Rename(const QString &from, const QString &to, FileFault &fault)
{
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    int result = ::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE);
    if (result != 0 && CantBeRefused(errno)) {
        result = ::link(source.constData(), target.constData());
        if (result == 0)
            ::unlink(source.constData());
    }
    if (result != 0 && CantBeRefused(errno)) { // nor link: FAT, and many network folders
        if (QFileInfo::exists(to))
            return SetSystemFault(fault, EEXIST);
        result = ::rename(source.constData(), target.constData());
    }
    return result == 0 || SetSystemFault(fault, errno);
}

void RunDisk::MakeNamesLasting(const QString &path)
{
    const int folder = ::open(QFile::encodeName(QFileInfo(path).absolutePath()).constData(),
                              O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0) {
        ::fsync(folder);
        ::close(folder);
    }
}
