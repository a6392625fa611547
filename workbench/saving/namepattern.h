// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

/// Names of recordings from a pattern: text with {camera}, {date} (20261121), {time} (143005), {exposure} (in us),
/// {gain} and {number} or {number:4} (from 1, with at least so many digits). Letters that file names can't hold become
/// "_". Pure but for NextFree().
class NamePattern
{
public:
    struct Values
    {
        QString camera;
        QDateTime start;
        double exposureUs = 0;
        double gain = 0;
    };

    static QString Default() { return "{camera}_{date}_{time}"; }

    explicit NamePattern(const QString &pattern);

    /// What is wrong with the pattern, in words; empty when it is usable.
    const QString &Fault() const { return m_fault; }
    bool HasNumber() const { return m_hasNumber; }
    /// Without folder and suffix.
    QString Name(const Values &values, int number) const;
    /// The path of the first number from 1 on for which neither a recording nor a summary is there; a pattern without
    /// {number} gets "_2" and so on. Looks into the folder: not for the GUI thread.
    QString NextFree(const QString &folder, const QString &suffix, const Values &values) const;

private:
    void Check();

    const QString m_pattern;
    QString m_fault;
    bool m_hasNumber = false;
};
