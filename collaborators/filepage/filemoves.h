// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// A file that went from one place to another.
struct FileMove
{
    QString from;
    QString to;
};

/// Renaming files and putting them into the trash, never over another file. For a worker. What fails is said
/// in `fault`: what, why, and what to do.
namespace FileMoves {

/// Why this cannot be the name of a file, and what to do; empty when it can.
QString NameFault(const QString &name);
bool Rename(const FileMove &move, QString &fault);
/// On return `move.to` is where the file lies in the trash.
bool Trash(FileMove &move, QString &fault);
/// Out of the trash again, to where it was.
bool Restore(const FileMove &move, QString &fault);

} // namespace FileMoves
