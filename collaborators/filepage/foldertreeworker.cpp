// SPDX-License-Identifier: GPL-3.0-or-later
#include "foldertreeworker.h"

#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QSet>

#include <algorithm>

FolderTreeWorker::FolderTreeWorker()
    : m_watcher(new QFileSystemWatcher(this))
{
    connect(m_watcher, SIGNAL(directoryChanged(QString)), this, SIGNAL(signalChanged(QString)));
}

void FolderTreeWorker::slotRead(const QString &path, const QString &always)
{
    emit signalRead(path, FolderReading::Folders(path, always));
}

void FolderTreeWorker::slotWatch(const QStringList &paths)
{
    const QStringList now = m_watcher->directories();
    const QSet<QString> wanted(paths.begin(), paths.end());
    const QSet<QString> watched(now.begin(), now.end());
    const QStringList gone = (watched - wanted).values();
    QStringList added = (wanted - watched).values();
    added.erase(std::remove_if(added.begin(), added.end(), [](const QString &path) { return !QFileInfo(path).isDir(); }),
                added.end());
    if (!gone.isEmpty())
        m_watcher->removePaths(gone);
    if (!added.isEmpty())
        m_watcher->addPaths(added);
}
