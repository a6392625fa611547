// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/fsuid.h>
#include <unistd.h>

/// A folder for one test, gone with it.
class FileFolder
{
public:
    FileFolder()
    {
        if (!m_folder.isValid())
            qFatal("No folder for the test: %s", qPrintable(m_folder.errorString()));
    }

    QString Path(const QString &name = QString()) const
    {
        return name.isEmpty() ? m_folder.path() : m_folder.filePath(name);
    }
    /// `age` seconds ago.
    QString Write(const QString &name, const QByteArray &bytes = QByteArray(), int age = 3600) const
    {
        QFile file(Path(name));
        if (!file.open(QIODevice::ReadWrite | QIODevice::Truncate) || file.write(bytes) != bytes.size()
            || !file.flush() || !file.setFileTime(QDateTime::currentDateTime().addSecs(-age), QFileDevice::FileModificationTime))
            qFatal("%s: %s", qPrintable(name), qPrintable(file.errorString()));
        return file.fileName();
    }

private:
    QTemporaryDir m_folder;
};

/// This thread is nobody as far as files go: the administrator may read and write everything.
class AsNobody
{
public:
    AsNobody() : m_before(::geteuid() == 0 ? ::setfsuid(65534) : -1) {}
    ~AsNobody()
    {
        if (m_before >= 0)
            ::setfsuid(uid_t(m_before));
    }

private:
    const int m_before;
};
