// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaType>
#include <QString>
#include <QVector>

/// A file of a folder, as its listing tells.
struct FileEntry
{
    QString name;
    qint64 bytes = 0;
    qint64 modifiedMs = 0; ///< since 1970, UTC
    bool isBrokenLink = false; ///< what it points to is not there
    bool isMisspelt = false;   ///< its name is in another encoding: no program finds the file by what is shown of it

    bool operator==(const FileEntry &other) const
    {
        return name == other.name && bytes == other.bytes && modifiedMs == other.modifiedMs
               && isBrokenLink == other.isBrokenLink && isMisspelt == other.isMisspelt;
    }
    bool operator!=(const FileEntry &other) const { return !(*this == other); }
};

using FileEntries = QVector<FileEntry>;
