// SPDX-License-Identifier: GPL-3.0-or-later
#include "settingsfile.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace {
const char VersionKey[] = "settings/version";
}

QString SettingsFile::StandardPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + "/globalui-workbench/workbench.ini";
}

SettingsFile::SettingsFile(const QString &path)
    : m_fault(FindFault(path))
{
    if (!m_fault.isEmpty()) {
        m_keptAside = MoveAside(path);
        qWarning("The settings in %s were not used: %s. Starting with the defaults; the file was kept as %s.",
                 qUtf8Printable(path), qUtf8Printable(m_fault), qUtf8Printable(m_keptAside));
    }
    m_settings = std::make_unique<QSettings>(path, QSettings::IniFormat);
    m_settings->setValue(VersionKey, Version);
}

QString SettingsFile::FindFault(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return QString();
    if (file.size() == 0)
        return "the file is empty";
    const QSettings settings(path, QSettings::IniFormat);
    if (settings.status() == QSettings::AccessError)
        return "the file can't be read";
    bool isNumber = false;
    const int version = settings.value(VersionKey).toInt(&isNumber);
    if (settings.status() != QSettings::NoError || !isNumber || version < 1)
        return "the file is damaged";
    if (version > Version)
        return QString("a later version of the program wrote them (%1, this one reads up to %2)").arg(version).arg(Version);
    return QString();
}

QString SettingsFile::MoveAside(const QString &path)
{
    QString aside;
    int number = 1;
    do {
        aside = QString("%1.bak-%2").arg(path).arg(number++);
    } while (QFile::exists(aside));
    return QFile::rename(path, aside) ? aside : path;
}
