// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

class QSettings;

/// The language of the texts: the one that was chosen, else the system's where it is among ours, else
/// English. Texts are translated when they are made, so another choice shows at the next start.
/// GUI thread.
class Language
{
public:
    /// "en" and "de".
    static QStringList Names();

    /// `settings` is borrowed and outlives this object. `system` is what the user's system speaks.
    explicit Language(QSettings *settings, const QString &system = SystemName());

    QString Name() const;
    /// Keeps the choice for the next start; unknown names are ignored.
    void Choose(const QString &name);
    /// Translates what the application makes from here on, Qt's own texts too.
    void Install() const;

private:
    static QString SystemName();

    QSettings *m_settings;
    QString m_system;
};
