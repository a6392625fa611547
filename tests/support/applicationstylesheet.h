// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>

/// While it lives, the application has this style sheet.
class ApplicationStyleSheet
{
public:
    explicit ApplicationStyleSheet(const QString &text) { qApp->setStyleSheet(text); }
    ~ApplicationStyleSheet() { qApp->setStyleSheet(QString()); }

private:
    Q_DISABLE_COPY(ApplicationStyleSheet)
};
