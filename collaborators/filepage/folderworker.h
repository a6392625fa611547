// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fileentry.h"
#include "fileorder.h"
#include "rowchanges.h"

#include <QObject>
#include <QStringList>

#include <atomic>

class QFileSystemWatcher;
class QTimer;

/// What is to be listed.
struct FolderQuery
{
    quint64 ticket = 0; ///< the newest wins
    QString folder;
    QStringList suffixes;
    FileOrder order;
    bool isWatched = false;
    QStringList watchedFiles; ///< names; their content is watched too
    bool readsAnew = false;   ///< although nothing else changed
};
Q_DECLARE_METATYPE(FolderQuery)

/// What is listed now.
struct FolderListing
{
    QString folder;
    FileEntries entries;
    int total = 0;      ///< with those that the filter leaves out
    QString fault;      ///< why there is nothing
    RowChanges changes; ///< from the listing before
};
Q_DECLARE_METATYPE(FolderListing)

/// Reads, arranges and watches one folder in the thread that it was moved to. While the folder is gone the
/// nearest one above it is watched, which sees it come back. Owned by FolderContent.
class FolderWorker : public QObject
{
    Q_OBJECT

public:
    /// `newest` is the ticket of the query asked last; it outlives this object.
    explicit FolderWorker(const std::atomic<quint64> *newest);

public slots:
    void slotList(const FolderQuery &query);

signals:
    void signalListed(const FolderListing &listing);

private slots:
    void slotChanged();
    void slotReadAnew();

private:
    bool IsOutdated() const { return m_query.ticket != *m_newest; }
    void Read();
    void Announce();
    void Watch();
    QStringList PathsToWatch() const;

    const std::atomic<quint64> *m_newest;
    QFileSystemWatcher *m_watcher;
    QTimer *m_delay; ///< many changes one after the other are read together
    FolderQuery m_query;
    FileEntries m_entries;
    QString m_fault;
    FileEntries m_listed;
    bool m_isRead = false;   ///< m_entries are those of the query's folder, read since it was asked to read anew
    bool m_isListed = false; ///< m_listed are those of its folder, in its order
};
