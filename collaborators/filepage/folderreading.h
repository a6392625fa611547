// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fileentry.h"

#include <QStringList>

#include <functional>

/// What was found in a folder.
struct FolderFiles
{
    FileEntries entries; ///< in no order
    /// Why the folder cannot be listed, and what to do; empty when it was.
    QString fault;
};

/// What lies below a folder.
struct FolderBranches
{
    QStringList names; ///< of the folders in it, in the order of people
    QString fault;     ///< why it cannot be listed
};

/// Reading folders without looking into any file. For a worker: a slow disk holds up whoever calls.
namespace FolderReading {

/// The files whose names end in one of `suffixes` (lower case, without a dot) and are not hidden.
/// `isGivenUp` is asked now and then; when it says yes the result is not whole.
FolderFiles Files(const QString &folder, const QStringList &suffixes, const std::function<bool()> &isGivenUp);
/// The folders, links to folders among them. Hidden ones are left out, but for `always`.
FolderBranches Folders(const QString &folder, const QString &always);

} // namespace FolderReading
