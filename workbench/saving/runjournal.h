// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rundisk.h"
#include "runfacts.h"

/// What a running recording leaves beside its file for the case that the program dies: the facts, and a record for each
/// frame, appended when the frame itself has been written. Locked while the recording lives.
///
/// Layout, all in little-endian order: the 8 bytes "WBRUN01\n", a 32-bit length, that many bytes of JSON (the format and
/// the facts), then records of 32 bytes: frame id, camera time, host time, checksum.
class RunJournal
{
public:
    /// What stands in the journal of a recording that was left behind.
    struct Content
    {
        RunFormat format = RunFormat::Tiff;
        RunFacts facts;
        QVector<FrameStamp> stamps; ///< of whole records only
    };

    static QString PathFor(const QString &recording) { return recording + ".journal"; }

    bool Create(const QString &recording, RunFormat format, const RunFacts &facts, FileFault &fault);
    /// Takes over what was left behind; false when the recording is still running, or the journal makes no sense.
    bool TakeOver(const QString &recording, Content *content, FileFault &fault);
    bool Append(const FrameStamp &stamp, FileFault &fault);
    /// The recording is in order.
    void Remove();

private:
    RunDisk m_disk;
};
