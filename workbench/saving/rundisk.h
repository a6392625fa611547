// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filefault.h"

#include <QString>
#include <QtGlobal>

#include <functional>

/// A file of a recording on the disk: what the writers need beneath libraries, with words for what goes wrong. Never
/// opens or replaces a file that is there. One thread at a time.
class RunDisk
{
public:
    RunDisk() = default;
    ~RunDisk();
    RunDisk(const RunDisk &) = delete;
    RunDisk &operator=(const RunDisk &) = delete;

    /// Fails when the name is taken.
    bool Create(const QString &path, FileFault &fault);
    bool OpenExisting(const QString &path, FileFault &fault);
    void Close();
    bool IsOpen() const { return m_fd >= 0; }
    int Descriptor() const { return m_fd; }
    const QString &Path() const { return m_path; }
    qint64 Size() const;

    /// Marks the file as this process's; false when another process has it.
    bool Lock();
    bool Write(const void *bytes, qint64 size, FileFault &fault);
    bool WriteAt(qint64 offset, const void *bytes, qint64 size, FileFault &fault);
    bool Read(void *bytes, qint64 size);
    /// Writing goes on behind `size` bytes.
    bool CutTo(qint64 size, FileFault &fault);
    /// Asks the kernel to write what has come to the disk already, without waiting for it.
    void WriteBehind(qint64 from, qint64 size) const;
    bool ReadAt(qint64 offset, void *bytes, qint64 size) const;
    /// Everything is on the disk after this.
    bool Synchronise(FileFault &fault);
    /// What brings the bytes that are written now to the disk, to be called in any thread; it gives back the system's
    /// error, or 0. The file may be closed before.
    std::function<int()> DataSync() const;
    /// The system's error in words; always false.
    static bool SetSystemFault(FileFault &fault, int reason);

    /// Gives a file its final name, unless that is taken. On a file system that can't refuse by itself, a name that is
    /// taken in the same instant is overwritten.
    static bool Rename(const QString &from, const QString &to, FileFault &fault);
    /// Brings the names in the folder of `path` to the disk, as far as the file system can.
    static void MakeNamesLasting(const QString &path);

private:
    bool SetFault(FileFault &fault) const;

    int m_fd = -1;
    QString m_path;
};
