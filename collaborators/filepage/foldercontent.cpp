// SPDX-License-Identifier: GPL-3.0-or-later
#include "foldercontent.h"

FolderContent::FolderContent(QObject *parent)
    : QObject(parent)
    , m_worker(new FolderWorker(&m_newest))
{
    qRegisterMetaType<FolderQuery>();
    qRegisterMetaType<FolderListing>();
    m_worker->moveToThread(&m_thread);
    connect(&m_thread, SIGNAL(finished()), m_worker, SLOT(deleteLater()));
    connect(m_worker, SIGNAL(signalListed(FolderListing)), this, SLOT(slotListed(FolderListing)));
    m_thread.setObjectName("FolderContent");
    m_thread.start(QThread::LowPriority);
}

FolderContent::~FolderContent()
{
    ++m_newest; // ends a reading that is under way
    m_thread.quit();
    m_thread.wait();
}

void FolderContent::SetFolder(const QString &folder)
{
    if (folder == m_query.folder)
        return;
    m_query.folder = folder;
    m_query.watchedFiles.clear();
    Ask(false);
}

void FolderContent::SetSuffixes(const QStringList &suffixes)
{
    m_query.suffixes = suffixes;
    Ask(false);
}

void FolderContent::SetOrder(const FileOrder &order)
{
    if (order == m_query.order)
        return;
    m_query.order = order;
    Ask(false);
}

void FolderContent::SetWatched(bool watched)
{
    m_query.isWatched = watched;
    Ask(watched);
}

void FolderContent::SetWatchedFiles(const QStringList &names)
{
    if (names == m_query.watchedFiles)
        return;
    m_query.watchedFiles = names;
    Ask(false);
}

void FolderContent::ReadAnew()
{
    Ask(true);
}

void FolderContent::Ask(bool readsAnew)
{
    if (m_query.folder.isEmpty())
        return;
    m_query.ticket = ++m_newest;
    m_query.readsAnew = readsAnew;
    QMetaObject::invokeMethod(m_worker, "slotList", Q_ARG(FolderQuery, m_query));
}

void FolderContent::slotListed(const FolderListing &listing)
{
    if (listing.folder == m_query.folder)
        emit signalListed(listing);
}
