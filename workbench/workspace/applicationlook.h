// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QStringList>

class QSettings;

/// Which of the looks the application wears: dark unless another one was chosen, which is kept.
/// GUI thread.
class ApplicationLook : public QObject
{
    Q_OBJECT

public:
    /// "dark" and "light".
    static QStringList Names();

    /// `settings` is borrowed and outlives this object.
    explicit ApplicationLook(QSettings *settings, QObject *parent = nullptr);

    QString Name() const { return m_name; }
    /// Dresses the whole application in the look that was chosen last.
    void Apply() const;
    /// Chooses a look, dresses the application in it and keeps the choice. Unknown names are ignored.
    void Choose(const QString &name);

signals:
    void signalChanged();

private:
    QSettings *m_settings;
    QString m_name;
};
