// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVector>

/// Where the recordings that are running stand, so that those of a program that died are found at the next start: a
/// small file for each in a folder of the user's application data.
class RunRegister
{
public:
    /// `folder` is made when needed.
    explicit RunRegister(const QString &folder);

    /// A recording begins; `entry` names it for Remove(). False when it could not be noted, which only the repair needs.
    bool Add(const QString &recording, QString *entry) const;
    void Remove(const QString &entry) const;
    struct Entry
    {
        QString name;      ///< for Remove()
        QString recording; ///< its path
        quint64 folderId = 0; ///< tells the recording's folder from another one in its place
    };
    /// All that were noted, and are running or left behind.
    QVector<Entry> Entries() const;

private:
    const QString m_folder;
};

/// What became of a recording that was left behind.
struct RepairedRun
{
    QString path;
    int frames = 0;
    int torn = 0;        ///< frames that had been written and were not whole
    QString fault;       ///< empty when it is in order
    bool waits = false;  ///< it is tried again at the next start
};

/// Finishes the recordings that a program that died has left: every frame that was written whole is readable after.
/// Those that are still running are left alone; those whose disk is away or that can't be finished now stay noted.
/// Reads and writes files: not for the GUI thread.
QVector<RepairedRun> RepairRuns(const RunRegister &runs);
