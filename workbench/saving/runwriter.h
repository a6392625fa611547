// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "runfacts.h"

#include <QString>
#include <QStringList>
#include <memory>

enum class RunFormat
{
    Tiff,
    Fits,
    Png
};

/// Writes the frames of one recording. While it runs, what was written can be repaired after a crash; the name asked
/// for appears only with Finish(). An existing file is never overwritten. One thread at a time.
class RunWriter
{
public:
    virtual ~RunWriter() = default; ///< without Finish() or Discard() the unfinished recording stays for the repair

    /// Makes the unfinished file. `path` ends with the format's suffix; a PNG sequence makes "name_000001.png" of it.
    virtual bool Begin(const QString &path, const RunFacts &facts, QString *error) = 0;
    /// A frame of the size and layout of the facts. After a failure the frames before it can still be finished.
    virtual bool Write(const CameraFrame &frame, QString *error) = 0;
    /// Brings everything to the disk (synced), with the outcome in it, under the name asked for.
    virtual bool Finish(const RunOutcome &outcome, QString *error) = 0;
    /// Removes what was written.
    virtual void Discard() = 0;

    virtual qint64 FramesWritten() const = 0;
    virtual qint64 BytesWritten() const = 0;
    /// After Finish(): what stands on the disk, the summary text last.
    virtual QStringList Files() const = 0;
};

std::unique_ptr<RunWriter> CreateRunWriter(RunFormat format);
