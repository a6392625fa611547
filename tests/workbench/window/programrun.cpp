// SPDX-License-Identifier: GPL-3.0-or-later
#include "programrun.h"

#include <QProcessEnvironment>

namespace {
constexpr int MsToWait = 60000;
}

void StartProgram(QProcess *program, const QString &folder, const QStringList &arguments,
                  const QStringList &environment)
{
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert("XDG_CONFIG_HOME", folder);
    variables.insert("XDG_RUNTIME_DIR", folder);
    for (const QString &variable : environment)
        variables.insert(variable.section('=', 0, 0), variable.section('=', 1));
    program->setProcessEnvironment(variables);
    program->start(WORKBENCH_PROGRAM, arguments);
}

ProgramOutcome WaitForProgram(QProcess *program)
{
    if (!program->waitForFinished(MsToWait)) {
        program->kill();
        program->waitForFinished();
    }
    ProgramOutcome outcome;
    outcome.exitCode = program->exitStatus() == QProcess::NormalExit ? program->exitCode() : -1;
    outcome.output = QString::fromLocal8Bit(program->readAllStandardOutput());
    outcome.errors = QString::fromLocal8Bit(program->readAllStandardError());
    return outcome;
}

ProgramOutcome RunProgram(const QString &folder, const QStringList &arguments, const QStringList &environment)
{
    QProcess program;
    StartProgram(&program, folder, arguments, environment);
    return WaitForProgram(&program);
}
