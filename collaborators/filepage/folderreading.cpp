// SPDX-License-Identifier: GPL-3.0-or-later
#include "folderreading.h"

#include "filenametext.h"
#include "namecollator.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

/// Entries between two looks whether the result is still wanted.
constexpr int EntriesPerLook = 512;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(FolderReading)
};

QString FaultText(const QString &folder, int reason)
{
    const QString name = FileNameText(QDir::toNativeSeparators(folder));
    switch (reason) {
    case ENOENT:
        return Text::tr("The folder \u201c%1\u201d is not there. It may have been moved, renamed or deleted, or its disk "
                         "is not connected. Choose another folder.").arg(name);
    case EACCES:
    case EPERM:
        return Text::tr("You have no right to look into the folder \u201c%1\u201d. Ask its owner for it, or choose "
                         "another folder.").arg(name);
    case ENOTDIR:
        return Text::tr("\u201c%1\u201d is a file, not a folder. Choose the folder that it lies in.").arg(name);
    case ENAMETOOLONG:
    case ELOOP:
        return Text::tr("The folder \u201c%1\u201d cannot be reached: its name is too long, or its links lead in a "
                         "circle. Choose another folder.").arg(name);
    default:
        return Text::tr("The folder \u201c%1\u201d cannot be read: %2. Look whether its disk or network is connected.")
            .arg(name, qt_error_string(reason));
    }
}

class OpenFolder
{
public:
    explicit OpenFolder(const QString &folder) : m_stream(::opendir(QFile::encodeName(folder).constData())) {}
    ~OpenFolder()
    {
        if (m_stream)
            ::closedir(m_stream);
    }
    OpenFolder(const OpenFolder &) = delete;
    OpenFolder &operator=(const OpenFolder &) = delete;

    bool IsOpen() const { return m_stream; }
    /// Null at the end, and then errno is 0, or on a failure.
    const dirent *Next()
    {
        errno = 0;
        return ::readdir(m_stream);
    }
    int Look(const dirent *entry, struct stat &status) const
    {
        return ::fstatat(::dirfd(m_stream), entry->d_name, &status, 0) == 0 ? 0 : errno;
    }

private:
    DIR *m_stream;
};

bool EndsInOneOf(const QString &name, const QStringList &suffixes)
{
    const int dot = name.lastIndexOf('.');
    return dot > 0 && suffixes.contains(name.mid(dot + 1).toLower());
}

FileEntry EntryOf(const QString &name, const struct stat &status)
{
    FileEntry entry;
    entry.name = name;
    entry.bytes = status.st_size;
    entry.modifiedMs = qint64(status.st_mtim.tv_sec) * 1000 + status.st_mtim.tv_nsec / 1000000;
    return entry;
}

bool IsFolder(const OpenFolder &folder, const dirent *entry)
{
    if (entry->d_type != DT_LNK && entry->d_type != DT_UNKNOWN)
        return entry->d_type == DT_DIR;
    struct stat status = {};
    return folder.Look(entry, status) == 0 && S_ISDIR(status.st_mode);
}

} // namespace

FolderFiles FolderReading::Files(const QString &path, const QStringList &suffixes,
                                 const std::function<bool()> &isGivenUp)
{
    FolderFiles files;
    OpenFolder folder(path);
    if (!folder.IsOpen()) {
        files.fault = FaultText(path, errno);
        return files;
    }
    int looks = 0;
    while (const dirent *entry = folder.Next()) {
        if (++looks % EntriesPerLook == 0 && isGivenUp())
            return files;
        if (entry->d_name[0] == '.' || entry->d_type == DT_DIR)
            continue;
        const QString name = QFile::decodeName(entry->d_name);
        if (!EndsInOneOf(name, suffixes))
            continue;
        struct stat status = {};
        const int reason = folder.Look(entry, status);
        if (reason == EACCES && entry->d_type != DT_LNK) {
            // The names may be read, the files may not be reached: true of all of them.
            files.fault = FaultText(path, reason);
            return files;
        }
        if (reason != 0 && entry->d_type == DT_LNK) {
            files.entries.append({name, 0, 0, true});
        } else if (reason == 0 && S_ISREG(status.st_mode)) {
            files.entries.append(EntryOf(name, status));
            files.entries.last().isMisspelt = QFile::encodeName(name) != entry->d_name;
        }
    }
    if (errno != 0)
        files.fault = FaultText(path, errno);
    return files;
}

FolderBranches FolderReading::Folders(const QString &path, const QString &always)
{
    FolderBranches branches;
    OpenFolder folder(path);
    if (!folder.IsOpen()) {
        branches.fault = FaultText(path, errno);
        return branches;
    }
    while (const dirent *entry = folder.Next()) {
        const QString name = QFile::decodeName(entry->d_name);
        const bool isSeen = entry->d_name[0] != '.' || (name == always && name != "." && name != "..");
        if (isSeen && IsFolder(folder, entry))
            branches.names.append(name);
    }
    const QCollator collator = NameCollator();
    std::sort(branches.names.begin(), branches.names.end(), [&](const QString &one, const QString &other) {
        const int order = collator.compare(one, other);
        return order != 0 ? order < 0 : one < other;
    });
    return branches;
}
