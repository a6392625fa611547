// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filemoves.h"
#include "thumbnailstore.h"

#include <QObject>
#include <QThreadPool>
#include <QVector>

#include <functional>
#include <memory>

class QUndoStack;

/// What the user does to files, one after the other in a thread of its own; each step can be undone. GUI
/// thread.
class FileCommands : public QObject
{
    Q_OBJECT

public:
    explicit FileCommands(const ThumbnailStore &store, QObject *parent = nullptr);
    /// Waits for what was begun.
    ~FileCommands() override;

    QUndoStack *UndoStack() const { return m_undoStack; }

    void Rename(const QString &path, const QString &newName);
    void Trash(const QStringList &paths);

signals:
    /// In any direction: a file has another path now.
    void signalMoved(const QString &from, const QString &to);
    void signalFault(const QString &text);
    void signalMessage(const QString &text);
    /// Something was done, or tried, in the folder.
    void signalDone();

private:
    friend class RenameStep;
    friend class TrashStep;

    using Moves = std::shared_ptr<QVector<FileMove>>;
    using Done = std::shared_ptr<bool>;
    void StartRename(const FileMove &move, const Done &isDone);
    void StartRenameBack(const FileMove &move, const Done &isDone);
    /// In the worker.
    bool RenameNow(const FileMove &move);
    /// The worker fills in where the files went, for StartRestore() behind it.
    void StartTrash(const Moves &moves);
    void StartRestore(const Moves &moves);
    void Start(const std::function<void()> &work);
    void Report(const QVector<FileMove> &moved, const QStringList &faults, const QString &message);

    const ThumbnailStore m_store;
    QUndoStack *m_undoStack;
    QThreadPool m_worker;
};
