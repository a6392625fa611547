// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSettings>
#include <QString>

#include <memory>

/// The file with the user's settings. One that can't be used (empty, damaged, or written by a later
/// version) is moved aside and the program starts with its defaults.
class SettingsFile
{
public:
    /// What this program writes and can read.
    static constexpr int Version = 1;

    /// In the user's configuration folder.
    static QString StandardPath();
    /// Opens `path`, which need not exist yet.
    explicit SettingsFile(const QString &path);

    QSettings *Settings() const { return m_settings.get(); }
    /// Where a file that could not be used was moved; empty when all was well.
    QString KeptAside() const { return m_keptAside; }
    /// What was wrong with it.
    QString Fault() const { return m_fault; }

private:
    static QString FindFault(const QString &path);
    static QString MoveAside(const QString &path);

    QString m_fault;
    QString m_keptAside;
    std::unique_ptr<QSettings> m_settings;
};
