// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "folderworker.h"

#include <QThread>

/// The files of one folder, as they are now: reads them in a thread of its own and tells what changes. What
/// was asked for last wins. GUI thread.
class FolderContent : public QObject
{
    Q_OBJECT

public:
    explicit FolderContent(QObject *parent = nullptr);
    ~FolderContent() override;

    const QString &Folder() const { return m_query.folder; }
    const FileOrder &Order() const { return m_query.order; }

    void SetFolder(const QString &folder);
    void SetSuffixes(const QStringList &suffixes);
    void SetOrder(const FileOrder &order);
    /// What changes in the folder is told from now on, or not any more. Looks at once.
    void SetWatched(bool watched);
    /// Files whose content is watched, too: those that are seen.
    void SetWatchedFiles(const QStringList &names);
    void ReadAnew();

signals:
    /// Of the folder asked for last.
    void signalListed(const FolderListing &listing);

private slots:
    void slotListed(const FolderListing &listing);

private:
    void Ask(bool readsAnew);

    std::atomic<quint64> m_newest{0};
    FolderQuery m_query;
    QThread m_thread;
    FolderWorker *m_worker; ///< lives in the thread
};
