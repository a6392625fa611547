// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rundisk.h"
#include "runfacts.h"
#include "runjournal.h"

#include <QStringList>
#include <memory>
#include <vector>

/// Writes the frames of one recording. While it runs, a journal stands beside the unfinished file, from which a
/// recording of a program that died is finished later; the name asked for appears only with Finish(). A file that
/// is there is never overwritten. One thread at a time.
class RunWriter
{
public:
    virtual ~RunWriter() =
        default; ///< without Finish() or Discard() the unfinished recording stays for the repair
    RunWriter(const RunWriter &) = delete;
    RunWriter &operator=(const RunWriter &) = delete;

    /// Makes the unfinished file.
    bool Begin(const RunFacts &facts, QString *error);
    /// Takes over what a program that died has left; the frames that are whole are kept.
    bool Resume(QString *error);
    /// A frame of the size and layout of the facts. After a failure the frames before it can still be finished.
    bool Write(const CameraFrame &frame, QString *error);
    /// Brings everything to the disk under the name asked for, with a summary beside it. Frames that a full disk can't
    /// keep after all are counted in the outcome.
    bool Finish(RunOutcome *outcome, QString *error);
    /// Removes what was written.
    void Discard();

    const QString &Path() const { return m_path; }
    int FramesWritten() const { return m_stamps.size(); }
    const RunFacts &Facts() const { return m_facts; }
    const QVector<FrameStamp> &Stamps() const { return m_stamps; }
    /// After Finish(): what stands on the disk, the summary last.
    QStringList Files() const;

protected:
    RunWriter(const QString &path, RunFormat format);

    QString UnfinishedPath() const { return m_path + ".part"; }

    /// The name asked for is free.
    virtual bool CheckName(FileFault &fault) const;
    virtual bool CreateData(FileFault &fault) = 0;
    /// Opens what was left; `frames` is what the journal says, and becomes how many of them are whole.
    virtual bool ReopenData(int *frames, FileFault &fault) = 0;
    /// Rows packed without padding.
    virtual bool AppendFrame(const uchar *samples, const FrameStamp &stamp, FileFault &fault) = 0;
    /// Takes back what a failed AppendFrame() has left, and the frames from `frames` on.
    virtual bool CutTo(int frames, FileFault &fault) = 0;
    /// Everything but the name.
    virtual bool Complete(const RunOutcome &outcome, FileFault &fault) = 0;
    /// Gives the name asked for.
    virtual bool Place(FileFault &fault) = 0;
    virtual void RemoveData() = 0;
    virtual QStringList DataFiles() const { return { m_path }; }

private:
    bool CompleteWhatFits(RunOutcome *outcome, FileFault &fault);
    const uchar *Packed(const CameraFrame &frame);

    const QString m_path;
    const RunFormat m_format;
    RunFacts m_facts;
    RunJournal m_journal;
    QVector<FrameStamp> m_stamps;
    std::vector<uchar> m_packed;
    bool m_hasSummary = false;
};

/// `path` ends with the format's suffix; a PNG sequence makes "name_000001.png" and so on of it.
std::unique_ptr<RunWriter> CreateRunWriter(RunFormat format, const QString &path);
/// "tif", "fits" or "png".
QString RunSuffix(RunFormat format);
