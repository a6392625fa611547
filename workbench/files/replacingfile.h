// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filefault.h"

/// Writing a file without ever harming the one that has its name: the new bytes go to a temporary file
/// in the same folder, which takes the name when it is whole. Without Commit() nothing remains.
class ReplacingFile
{
public:
    /// A target that is a link stays one: the file it names is replaced.
    explicit ReplacingFile(const QString &target);
    ~ReplacingFile();
    ReplacingFile(const ReplacingFile &) = delete;
    ReplacingFile &operator=(const ReplacingFile &) = delete;

    /// Makes the empty temporary file; its path is free for others to write to until Commit().
    bool Create(FileFault &fault);
    const QString &TemporaryPath() const { return m_temporary; }
    /// The temporary file, which everybody has closed by now, is brought to the disk and renamed. It
    /// gets the rights of the file that it replaces.
    bool Commit(FileFault &fault);

private:
    QString m_target;
    QString m_temporary; ///< empty before Create() and after Commit()
};
