// SPDX-License-Identifier: GPL-3.0-or-later
#include "runregister.h"

#include "runwriter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QUuid>

#include <sys/stat.h>

namespace {

constexpr qint64 LargestEntry = 32 << 10;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(RunRegister)
};

/// Of the folder that holds the file; 0 when it is not there. A mount point is another folder while its disk is away.
quint64 FolderId(const QString &path)
{
    struct stat status = {};
    const QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
    return ::stat(folder.constData(), &status) == 0 ? quint64(status.st_ino) : 0;
}

RunRegister::Entry ReadEntry(const QString &name)
{
    RunRegister::Entry entry;
    QFile file(name);
    if (file.open(QIODevice::ReadOnly)) {
        const QJsonObject json = QJsonDocument::fromJson(file.read(LargestEntry)).object();
        entry.recording = json["recording"].toString();
        entry.folderId = json["folder"].toString().toULongLong();
    }
    entry.name = name;
    return entry;
}

/// The format's journal is in the recording itself; a writer of any format reads it.
bool ReadFormat(const QString &recording, RunFormat *format, FileFault *fault)
{
    RunJournal journal;
    RunJournal::Content content;
    if (!journal.TakeOver(recording, &content, *fault))
        return false;
    *format = content.format;
    return true;
}

bool CanBeOpened(const QString &recording, FileFault *fault)
{
    RunDisk disk;
    return disk.OpenExisting(RunJournal::PathFor(recording), *fault);
}

/// It has its name, and the program died before it could take the journal away.
bool IsFinished(const QString &recording)
{
    return QFileInfo::exists(recording) && !QFileInfo::exists(UnfinishedRunPath(recording));
}

/// Beyond help, so that nobody is told again and again.
RepairedRun GivenUp(const QString &recording, const FileFault &fault)
{
    RepairedRun run;
    run.path = recording;
    run.fault = ReadFaultText(recording, fault);
    return run;
}

bool FinishRepaired(RunWriter *writer, RepairedRun *run)
{
    RunOutcome outcome;
    outcome.end = RunEnd::Repaired;
    outcome.counts.captured = quint64(writer->FramesWritten() + writer->Torn().size());
    outcome.counts.saved = quint64(writer->FramesWritten());
    outcome.counts.lostAt[size_t(LossStage::Disk)] = quint64(writer->Torn().size());
    for (const FrameStamp &stamp : writer->Torn())
        outcome.lostIds.append({ stamp.frameId, 1 });
    if (!writer->Finish(&outcome, &run->fault))
        return false;
    run->path = writer->Path();
    run->frames = writer->FramesWritten();
    return true;
}

RepairedRun Repair(const QString &recording)
{
    RunFormat format = RunFormat::Tiff;
    FileFault fault;
    if (!CanBeOpened(recording, &fault)) {
        RepairedRun run = GivenUp(recording, fault);
        run.waits = true;
        return run;
    }
    if (!ReadFormat(recording, &format, &fault))
        return GivenUp(recording, fault);
    if (format != RunFormat::Png && !QFileInfo::exists(UnfinishedRunPath(recording))) {
        fault.Set(Text::tr("the file with its frames is gone"),
                  Text::tr("If you have moved it, move its journal beside it and ask for help."));
        return GivenUp(recording, fault);
    }
    RepairedRun run;
    run.path = recording;
    const std::unique_ptr<RunWriter> writer = CreateRunWriter(format, recording);
    if (!writer->Resume(&run.fault)) {
        run.waits = true;
        return run;
    }
    run.torn = writer->Torn().size();
    if (writer->FramesWritten() > 0) {
        run.waits = !FinishRepaired(writer.get(), &run);
    } else if (run.torn == 0) {
        writer->Discard(); // nothing that any program could open
    } else {
        fault.Set(Text::tr("not one of its frames is whole"),
                  Text::tr("Keep the file and ask for help; parts of its frames may be readable by hand."));
        return GivenUp(recording, fault);
    }
    return run;
}

bool IsRunning(const QString &recording)
{
    RunDisk disk;
    FileFault fault;
    return disk.OpenExisting(RunJournal::PathFor(recording), fault) && !disk.Lock();
}

} // namespace

RunRegister::RunRegister(const QString &folder)
    : m_folder(folder)
{
}

/// On the disk after this.
bool RunRegister::Add(const QString &recording, QString *entry) const
{
    *entry = m_folder + '/' + QUuid::createUuid().toString(QUuid::WithoutBraces);
    const QString path = QFileInfo(recording).absoluteFilePath();
    const QJsonObject json{ { "recording", path }, { "folder", QString::number(FolderId(path)) } };
    if (!QDir().mkpath(m_folder))
        return false;
    QSaveFile file(*entry);
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(json).toJson()) < 0 || !file.commit())
        return false;
    RunDisk::MakeNamesLasting(*entry);
    return true;
}

void RunRegister::Remove(const QString &entry) const { QFile::remove(entry); }

QVector<RunRegister::Entry> RunRegister::Entries() const
{
    QVector<Entry> entries;
    for (const QFileInfo &info : QDir(m_folder).entryInfoList(QDir::Files)) {
        const Entry entry = ReadEntry(info.filePath());
        if (!entry.recording.isEmpty())
            entries.append(entry);
    }
    return entries;
}

QVector<RepairedRun> RepairRuns(const RunRegister &runs)
{
    QVector<RepairedRun> repaired;
    for (const RunRegister::Entry &entry : runs.Entries()) {
        if (IsRunning(entry.recording))
            continue;
        RepairedRun run;
        run.path = entry.recording;
        if (IsFinished(entry.recording)) {
            RunJournal::Forget(entry.recording);
        } else if (QFileInfo::exists(RunJournal::PathFor(entry.recording))) {
            run = Repair(entry.recording);
            repaired.append(run);
        } else if (FolderId(entry.recording) != entry.folderId) {
            run.waits = true;
            repaired.append(run);
        }
        if (!run.waits)
            runs.Remove(entry.name);
    }
    return repaired;
}
