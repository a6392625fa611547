// SPDX-License-Identifier: GPL-3.0-or-later
#include "runregister.h"

#include "runwriter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>

namespace {

constexpr qint64 LargestEntry = 32 << 10;

QString ReadEntry(const QString &entry)
{
    QFile file(entry);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.read(LargestEntry)) : QString();
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

RepairedRun Repair(const QString &recording)
{
    RepairedRun run;
    run.path = recording;
    RunFormat format = RunFormat::Tiff;
    FileFault fault;
    if (!ReadFormat(recording, &format, &fault)) {
        run.fault = ReadFaultText(recording, fault);
        return run;
    }
    const std::unique_ptr<RunWriter> writer = CreateRunWriter(format, recording);
    RunOutcome outcome;
    outcome.end = RunEnd::Repaired;
    if (!writer->Resume(&run.fault))
        return run;
    outcome.counts.captured = quint64(writer->FramesWritten());
    outcome.counts.saved = outcome.counts.captured;
    if (writer->Finish(&outcome, &run.fault))
        run.frames = writer->FramesWritten();
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

bool RunRegister::Add(const QString &recording, QString *entry) const
{
    *entry = m_folder + '/' + QUuid::createUuid().toString(QUuid::WithoutBraces);
    QFile file(*entry);
    const QByteArray path = QFileInfo(recording).absoluteFilePath().toUtf8();
    return QDir().mkpath(m_folder) && file.open(QIODevice::WriteOnly | QIODevice::NewOnly)
           && file.write(path) == path.size();
}

void RunRegister::Remove(const QString &entry) const { QFile::remove(entry); }

QVector<std::pair<QString, QString>> RunRegister::Entries() const
{
    QVector<std::pair<QString, QString>> entries;
    for (const QFileInfo &info : QDir(m_folder).entryInfoList(QDir::Files)) {
        const QString recording = ReadEntry(info.filePath());
        if (!recording.isEmpty())
            entries.append({ info.filePath(), recording });
    }
    return entries;
}

QVector<RepairedRun> RepairRuns(const RunRegister &runs)
{
    QVector<RepairedRun> repaired;
    for (const auto &entry : runs.Entries()) {
        if (IsRunning(entry.second))
            continue;
        if (QFileInfo::exists(RunJournal::PathFor(entry.second)))
            repaired.append(Repair(entry.second));
        runs.Remove(entry.first);
    }
    return repaired;
}
