// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rundisk.h"

/// The frames of a recording one behind the other in one file, after a header of fixed size.
class CubeFile
{
public:
    bool Create(const QString &path, const QByteArray &header, qint64 frameBytes, FileFault &fault);
    /// `frames` becomes how many of so many are whole.
    bool Reopen(const QString &path, qint64 headerBytes, qint64 frameBytes, int *frames, FileFault &fault);
    bool Append(const void *frame, FileFault &fault);
    bool CutTo(int frames, FileFault &fault);
    bool ReadFrame(int frame, void *bytes) const { return m_disk.ReadAt(OffsetOf(frame), bytes, m_frameBytes); }
    bool WriteFrame(int frame, const void *bytes, FileFault &fault)
    {
        return m_disk.WriteAt(OffsetOf(frame), bytes, m_frameBytes, fault);
    }
    std::function<int()> DataSync() const { return m_disk.DataSync(); }
    /// Behind the last frame, or what was written there before.
    bool WriteEnd(const QByteArray &bytes, FileFault &fault)
    {
        return m_disk.Write(bytes.constData(), bytes.size(), fault);
    }
    bool WriteHeader(const QByteArray &bytes, FileFault &fault)
    {
        return m_disk.WriteAt(0, bytes.constData(), bytes.size(), fault);
    }
    bool Synchronise(FileFault &fault) { return m_disk.Synchronise(fault); }
    void Close() { m_disk.Close(); }
    const QString &Path() const { return m_disk.Path(); }
    qint64 OffsetOf(int frame) const { return m_headerBytes + frame * m_frameBytes; }

private:
    RunDisk m_disk;
    qint64 m_headerBytes = 0;
    qint64 m_frameBytes = 0;
    qint64 m_end = 0;        ///< of the last frame
    qint64 m_behindFrom = 0; ///< what the kernel has not been asked to write yet
};
