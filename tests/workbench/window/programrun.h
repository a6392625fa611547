// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

/// How the program ended, and what it said.
struct ProgramOutcome
{
    int exitCode = -1; ///< -1 when it did not end by itself
    QString output;
    QString errors;
};

/// The workbench as it is started from a shell, with its settings in `folder`; `environment` holds "NAME=value".
void StartProgram(QProcess *program, const QString &folder, const QStringList &arguments,
                  const QStringList &environment = {});
ProgramOutcome RunProgram(const QString &folder, const QStringList &arguments, const QStringList &environment = {});
/// Of a program that was started; waits for its end.
ProgramOutcome WaitForProgram(QProcess *program);
