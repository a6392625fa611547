// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1Char>
#include <QString>

/// "[file:line function]", the opening of a diagnostic line. Of `path`, as the compiler gives it in
/// __FILE__, the part behind the last backslash counts, or else behind the last slash.
inline QString LogLocation(const char *path, int line, const char *function)
{
    const QString file = QString::fromLocal8Bit(path);
    int separator = file.lastIndexOf(QLatin1Char('\\'));
    if (separator < 0)
        separator = file.lastIndexOf(QLatin1Char('/'));
    return QString("[%1:%2 %3]").arg(file.mid(separator + 1), QString::number(line), QString::fromLatin1(function));
}
