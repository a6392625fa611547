// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rundisk.h"
#include "runfacts.h"
#include "runjournal.h"

#include <QElapsedTimer>
#include <QStringList>
#include <QThreadPool>

#include <atomic>
#include <functional>
#include <memory>
#include <vector>

/// Writes the frames of one recording. While it runs, a journal stands beside the unfinished file, from which a
/// recording of a program that died is finished later; the name asked for appears only with Finish(). A file that
/// is there is never overwritten. Once a second a thread of its own brings what was written to the disk, so that a power
/// cut takes no more than the last frames. One thread at a time.
class RunWriter
{
public:
    virtual ~RunWriter() =
        default; ///< without Finish() or Discard() the unfinished recording stays for the repair
    RunWriter(const RunWriter &) = delete;
    RunWriter &operator=(const RunWriter &) = delete;

    /// Makes the unfinished file.
    bool Begin(const RunFacts &facts, QString *error);
    /// Takes over what a program that died has left; the frames that are whole are kept. Those that a power cut may have
    /// torn are read back and compared with their checksums.
    bool Resume(QString *error);
    /// After Resume(): frames that had been written and are not whole.
    const QVector<FrameStamp> &Torn() const { return m_torn; }
    /// Exposure, gain and rate from the next frame on.
    bool ChangeSettings(SettingsChange change, QString *error);
    /// A frame of the size and layout of the facts, MostRunFrames at most. After a failure the frames before it can
    /// still be finished.
    bool Write(const CameraFrame &frame, QString *error);
    /// Brings everything to the disk under the name asked for, with a summary beside it. Frames that a full disk can't
    /// keep after all are counted in the outcome.
    bool Finish(RunOutcome *outcome, QString *error);
    /// Removes what was written.
    void Discard();

    /// The name asked for or, after Finish(), the free one that the recording got when that was taken meanwhile.
    const QString &Path() const { return m_path; }
    int FramesWritten() const { return m_stamps.size(); }
    const RunFacts &Facts() const { return m_facts; }
    const QVector<FrameStamp> &Stamps() const { return m_stamps; }
    /// After Finish(): what stands on the disk, the summary last.
    QStringList Files() const;
    /// After Finish(): in words, when the recording is whole and its summary could not be written.
    const QString &Warning() const { return m_warning; }

protected:
    RunWriter(const QString &path, RunFormat format);

    const QString &UnfinishedPath() const { return m_unfinished; }

    virtual int MostFrames() const { return MostRunFrames; }
    /// The name asked for is free.
    virtual bool CheckName(FileFault &fault) const;
    virtual bool CreateData(FileFault &fault) = 0;
    /// Opens what was left; `frames` is what the journal says, and becomes how many of them are whole.
    virtual bool ReopenData(int *frames, FileFault &fault) = 0;
    /// Rows packed without padding.
    virtual bool AppendFrame(const uchar *samples, const FrameStamp &stamp, FileFault &fault) = 0;
    /// Takes back what a failed AppendFrame() has left, and the frames from `frames` on.
    virtual bool CutTo(int frames, FileFault &fault) = 0;
    /// The samples of a frame that was written before; false when it can't be read.
    virtual bool ReadBack(int frame, uchar *samples) = 0;
    /// Puts frame `from` into the place of the torn frame `to`.
    virtual bool MoveFrame(int from, int to, FileFault &fault) = 0;
    /// Brings all frames written until now to the disk, in another thread; gives back the system's error or 0.
    virtual std::function<int()> DataSync() = 0;
    /// Everything but the name.
    virtual bool Complete(const RunOutcome &outcome, FileFault &fault) = 0;
    /// Gives the name asked for.
    virtual bool Place(FileFault &fault) = 0;
    virtual void RemoveData() = 0;
    virtual QStringList DataFiles() const { return { m_path }; }

private:
    bool MayTake(const CameraFrame &frame, FileFault &fault) const;
    bool DropTornFrames(int lasting, FileFault &fault);
    void ForgetStamp(int frame);
    bool SyncNowAndThen(FileFault &fault);
    bool CompleteWhatFits(RunOutcome *outcome, FileFault &fault);
    bool PlaceUnderFreeName(FileFault &fault);
    const uchar *Packed(const CameraFrame &frame);

    QString m_path;
    const QString m_unfinished;
    const RunFormat m_format;
    RunFacts m_facts;
    RunJournal m_journal;
    QVector<FrameStamp> m_stamps;
    QVector<FrameStamp> m_torn;
    std::vector<uchar> m_packed;
    QString m_summary;
    QString m_warning;

    QElapsedTimer m_sinceSync;
    int m_marked = 0;                ///< frames that the journal calls lasting
    std::atomic<int> m_lasting{ 0 }; ///< frames that are on the disk
    std::atomic<int> m_syncError{ 0 };
    std::atomic<bool> m_isSyncing{ false };
    QThreadPool m_syncer; ///< the last member: it is waited for before the others go
};

/// `path` ends with the format's suffix; a PNG sequence makes "name_000001.png" and so on of it.
std::unique_ptr<RunWriter> CreateRunWriter(RunFormat format, const QString &path);
/// What the file is called while it is not finished; a PNG sequence has none.
QString UnfinishedRunPath(const QString &path);
/// "tif", "fits" or "png".
QString RunSuffix(RunFormat format);
