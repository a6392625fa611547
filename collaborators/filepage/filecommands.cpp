// SPDX-License-Identifier: GPL-3.0-or-later
#include "filecommands.h"

#include "filenametext.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QUndoCommand>
#include <QUndoStack>

namespace {
/// More than these are only counted.
constexpr int MostFaults = 5;
}

class RenameStep : public QUndoCommand
{
public:
    RenameStep(FileCommands *commands, const FileMove &move)
        : QUndoCommand(FileCommands::tr("Rename %1").arg(FileNameTextOf(move.from)))
        , m_commands(commands)
        , m_move(move)
        , m_isDone(std::make_shared<bool>(false))
    {
    }
    void redo() override { m_commands->StartRename(m_move, m_isDone); }
    void undo() override { m_commands->StartRenameBack(m_move, m_isDone); }

private:
    FileCommands *m_commands;
    const FileMove m_move;
    FileCommands::Done m_isDone; ///< shared with the worker, which alone reads and writes it
};

class TrashStep : public QUndoCommand
{
public:
    TrashStep(FileCommands *commands, const QStringList &paths)
        : QUndoCommand(FileCommands::tr("Move %n file(s) to Trash", nullptr, paths.size()))
        , m_commands(commands)
        , m_moves(std::make_shared<QVector<FileMove>>())
    {
        for (const QString &path : paths)
            m_moves->append({path, QString()});
    }
    void redo() override { m_commands->StartTrash(m_moves); }
    void undo() override { m_commands->StartRestore(m_moves); }

private:
    FileCommands *m_commands;
    FileCommands::Moves m_moves; ///< shared with the worker, which alone reads and writes the elements
};

FileCommands::FileCommands(const ThumbnailStore &store, QObject *parent)
    : QObject(parent)
    , m_store(store)
    , m_undoStack(new QUndoStack(this))
{
    m_worker.setMaxThreadCount(1);
}

FileCommands::~FileCommands()
{
    m_worker.waitForDone();
}

void FileCommands::Rename(const QString &path, const QString &newName)
{
    const QString fault = FileMoves::NameFault(newName);
    if (!fault.isEmpty()) {
        emit signalFault(fault);
        return;
    }
    m_undoStack->push(new RenameStep(this, {path, QFileInfo(path).path() + '/' + newName}));
}

void FileCommands::Trash(const QStringList &paths)
{
    if (!paths.isEmpty())
        m_undoStack->push(new TrashStep(this, paths));
}

void FileCommands::StartRename(const FileMove &move, const Done &isDone)
{
    Start([this, move, isDone] { *isDone = RenameNow(move); });
}

/// What was not renamed stays: a file of the new name is another one.
void FileCommands::StartRenameBack(const FileMove &move, const Done &isDone)
{
    Start([this, move, isDone] {
        if (*isDone)
            *isDone = !RenameNow(FileMove{move.to, move.from});
    });
}

bool FileCommands::RenameNow(const FileMove &move)
{
    QString fault;
    if (!FileMoves::Rename(move, fault)) {
        Report({}, {fault}, QString());
        return false;
    }
    m_store.Forget(move.from);
    Report({move}, {}, QString());
    return true;
}

void FileCommands::StartTrash(const Moves &moves)
{
    Start([this, moves] {
        QStringList faults;
        int count = 0;
        for (FileMove &move : *moves) {
            QString fault;
            if (FileMoves::Trash(move, fault)) {
                m_store.Forget(move.from);
                ++count;
            } else {
                move.to.clear();
                faults << fault;
            }
        }
        Report({}, faults,
               count > 0 ? tr("%n file(s) moved to the trash. Undo brings them back.", nullptr, count) : QString());
    });
}

void FileCommands::StartRestore(const Moves &moves)
{
    Start([this, moves] {
        QStringList faults;
        for (const FileMove &move : *moves) {
            QString fault;
            if (!move.to.isEmpty() && !FileMoves::Restore(move, fault))
                faults << fault;
        }
        Report({}, faults, QString());
    });
}

void FileCommands::Start(const std::function<void()> &work)
{
    m_worker.start(work);
}

/// From the worker to the GUI.
void FileCommands::Report(const QVector<FileMove> &moved, const QStringList &faults, const QString &message)
{
    QStringList told = faults.mid(0, MostFaults);
    if (faults.size() > MostFaults)
        told << tr("And %n more.", nullptr, faults.size() - MostFaults);
    QMetaObject::invokeMethod(this, [this, moved, told, message] {
        for (const FileMove &move : moved)
            emit signalMoved(move.from, move.to);
        if (!told.isEmpty())
            emit signalFault(told.join('\n'));
        else if (!message.isEmpty())
            emit signalMessage(message);
        emit signalDone();
    }, Qt::QueuedConnection);
}
