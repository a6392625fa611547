// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "folderreading.h"

#include <QObject>

class QFileSystemWatcher;

/// Reads and watches folders for the tree, in the thread that it was moved to.
class FolderTreeWorker : public QObject
{
    Q_OBJECT

public:
    FolderTreeWorker();

public slots:
    void slotRead(const QString &path, const QString &always);
    /// These and no others.
    void slotWatch(const QStringList &paths);

signals:
    void signalRead(const QString &path, const FolderBranches &branches);
    void signalChanged(const QString &path);

private:
    QFileSystemWatcher *m_watcher;
};
