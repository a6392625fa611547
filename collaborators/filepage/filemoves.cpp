// SPDX-License-Identifier: GPL-3.0-or-later
#include "filemoves.h"

#include "filenametext.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(FileMoves)
};

QString ReasonText(int reason)
{
    switch (reason) {
    case EEXIST:
        return Text::tr("there is a file of that name already. Choose another name");
    case ENOENT:
        return Text::tr("it is not there any more");
    case EACCES:
    case EPERM:
        return Text::tr("you have no right to change this folder. Ask its owner for it");
    case EROFS:
        return Text::tr("its disk is write-protected");
    case ENAMETOOLONG:
        return Text::tr("the name is too long. Choose a shorter one");
    default:
        return qt_error_string(reason);
    }
}

/// 0, or why not. Another file of that name stays as it is.
int MoveFile(const FileMove &move)
{
    const QByteArray from = QFile::encodeName(move.from);
    const QByteArray to = QFile::encodeName(move.to);
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    // This disk cannot look and move in one step.
    struct stat status = {};
    if (::lstat(to.constData(), &status) == 0)
        return EEXIST;
    return std::rename(from.constData(), to.constData()) == 0 ? 0 : errno;
}

/// What the trash knows of a file in it.
QString TrashNote(const QString &trashedPath)
{
    const QFileInfo file(trashedPath);
    return QFileInfo(file.path()).path() + "/info/" + file.fileName() + ".trashinfo";
}

} // namespace

QString FileMoves::NameFault(const QString &name)
{
    if (name.trimmed().isEmpty())
        return Text::tr("A file needs a name. Type one.");
    if (name == "." || name == "..")
        return Text::tr("\u201c%1\u201d is the name of a folder. Choose another name.").arg(name);
    if (name.contains('/'))
        return Text::tr("A name cannot contain a slash. Choose another name.");
    return QString();
}

bool FileMoves::Rename(const FileMove &move, QString &fault)
{
    const int reason = MoveFile(move);
    if (reason != 0)
        fault = Text::tr("\u201c%1\u201d was not renamed to \u201c%2\u201d: %3.")
                    .arg(FileNameTextOf(move.from), FileNameTextOf(move.to), ReasonText(reason));
    return reason == 0;
}

bool FileMoves::Trash(FileMove &move, QString &fault)
{
    if (!QFileInfo(move.from).isSymLink() && !QFileInfo::exists(move.from)) {
        fault = Text::tr("\u201c%1\u201d was not moved to the trash: %2.").arg(FileNameTextOf(move.from), ReasonText(ENOENT));
        return false;
    }
    // The trash of a new user has no folder to lie in yet.
    QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    if (QFile::moveToTrash(move.from, &move.to))
        return true;
    fault = Text::tr("\u201c%1\u201d was not moved to the trash: the disk has none, or you have no right to change "
                      "this folder. Copy it elsewhere, or delete it with a file manager.").arg(FileNameTextOf(move.from));
    return false;
}

bool FileMoves::Restore(const FileMove &move, QString &fault)
{
    const int reason = MoveFile({move.to, move.from});
    if (reason != 0) {
        fault = Text::tr("\u201c%1\u201d was not taken out of the trash: %2.").arg(FileNameTextOf(move.from), ReasonText(reason));
        return false;
    }
    QFile::remove(TrashNote(move.to));
    return true;
}
