// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rundisk.h"
#include "runfacts.h"

/// What a running recording leaves beside its file for the case that the program dies: the facts, and a record for each
/// frame, appended when the frame itself has been written. Locked while the recording lives.
///
/// Layout, all in little-endian order: the 8 bytes "WBRUN01\n", a 32-bit length, that many bytes of JSON (the format and
/// the facts) with blanks behind it up to a multiple of 32, then records of 32 bytes, so that none lies across two
/// sectors: frame id, camera time, host time, checksum. Two ids stand for something else: ~0 that so many frames (the
/// next 8 bytes) are on the disk for certain, ~0 - 4 to ~0 - 1 that exposure, gain and frame rate (three doubles) were set
/// anew, with a bit each for automatic gain and exposure.
class RunJournal
{
public:
    /// What stands in the journal of a recording that was left behind.
    struct Content
    {
        RunFormat format = RunFormat::Tiff;
        RunFacts facts;
        QVector<FrameStamp> stamps; ///< of whole records only; the facts have the changes
        int lasting = 0;            ///< frames that were on the disk for certain; a power cut may have torn later ones
    };

    static QString PathFor(const QString &recording) { return recording + ".journal"; }

    /// On the disk after this, but for its name.
    bool Create(const QString &recording, RunFormat format, const RunFacts &facts, FileFault &fault);
    /// Takes over what was left behind; false when the recording is still running, or the journal makes no sense.
    bool TakeOver(const QString &recording, Content *content, FileFault &fault);
    bool Append(const FrameStamp &stamp, FileFault &fault);
    bool AppendLasting(int frames, FileFault &fault);
    bool AppendChange(const SettingsChange &change, FileFault &fault);
    std::function<int()> DataSync() const { return m_disk.DataSync(); }
    /// The recording is in order.
    void Remove();
    static void Forget(const QString &recording);

private:
    RunDisk m_disk;
};
