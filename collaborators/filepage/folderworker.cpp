// SPDX-License-Identifier: GPL-3.0-or-later
#include "folderworker.h"

#include "folderreading.h"

#include <QDir>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QSet>
#include <QTimer>

namespace {
constexpr int DelayMs = 200;
}

FolderWorker::FolderWorker(const std::atomic<quint64> *newest)
    : m_newest(newest)
    , m_watcher(new QFileSystemWatcher(this))
    , m_delay(new QTimer(this))
{
    m_delay->setSingleShot(true);
    m_delay->setInterval(DelayMs);
    connect(m_watcher, SIGNAL(directoryChanged(QString)), this, SLOT(slotChanged()));
    connect(m_watcher, SIGNAL(fileChanged(QString)), this, SLOT(slotChanged()));
    connect(m_delay, SIGNAL(timeout()), this, SLOT(slotReadAnew()));
}

void FolderWorker::slotList(const FolderQuery &query)
{
    if (query.readsAnew)
        m_isRead = false; // for the query that overtakes this one, too
    if (query.ticket != *m_newest)
        return; // a newer one is on its way
    const bool isOtherFolder = query.folder != m_query.folder || query.suffixes != m_query.suffixes;
    const bool isOtherOrder = !(query.order == m_query.order);
    m_query = query;
    m_isRead = m_isRead && !isOtherFolder;
    m_isListed = m_isListed && !isOtherFolder && !isOtherOrder;
    Watch(); // before reading, so that nothing slips through between the two
    if (!m_isRead)
        Read();
    else if (m_isListed)
        return;
    if (m_isRead)
        Announce();
}

void FolderWorker::slotChanged()
{
    if (!m_delay->isActive())
        m_delay->start();
}

void FolderWorker::slotReadAnew()
{
    if (!m_query.isWatched)
        return;
    Watch();
    Read();
    if (m_isRead)
        Announce();
}

void FolderWorker::Read()
{
    if (m_query.folder.isEmpty())
        return;
    const FolderFiles files = FolderReading::Files(m_query.folder, m_query.suffixes, [this] { return IsOutdated(); });
    m_isRead = !IsOutdated();
    m_entries = files.entries;
    m_fault = files.fault;
}

void FolderWorker::Announce()
{
    FolderListing listing;
    listing.folder = m_query.folder;
    listing.entries = Arranged(m_entries, m_query.order);
    listing.total = m_entries.size();
    listing.fault = m_fault;
    if (m_isListed)
        listing.changes = FindRowChanges(m_listed, listing.entries);
    else
        listing.changes.isReset = true;
    m_listed = listing.entries;
    m_isListed = true;
    emit signalListed(listing);
}

void FolderWorker::Watch()
{
    const QStringList wanted = PathsToWatch();
    const QStringList now = m_watcher->directories() + m_watcher->files();
    const QSet<QString> wantedSet(wanted.begin(), wanted.end());
    const QSet<QString> nowSet(now.begin(), now.end());
    const QSet<QString> gone = nowSet - wantedSet;
    const QSet<QString> added = wantedSet - nowSet;
    if (!gone.isEmpty())
        m_watcher->removePaths(gone.values());
    if (!added.isEmpty())
        m_watcher->addPaths(added.values());
}

QStringList FolderWorker::PathsToWatch() const
{
    if (!m_query.isWatched || m_query.folder.isEmpty())
        return {};
    QString folder = m_query.folder;
    while (!QFileInfo(folder).isDir() && !QDir(folder).isRoot())
        folder = QFileInfo(folder).path();
    QStringList paths(folder);
    if (folder != m_query.folder)
        return paths;
    for (const QString &name : m_query.watchedFiles) {
        const QString path = QDir(folder).filePath(name);
        if (QFileInfo::exists(path))
            paths << path;
    }
    return paths;
}
