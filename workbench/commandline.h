// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "runfacts.h"

#include <QString>
#include <QStringList>

/// What the user asked for on the command line.
struct CommandLine
{
    /// What is to be done: run, print `text` and end with 0, or print it as an error and end with 2.
    enum class Action { Run, Print, Fail };

    static constexpr int UsageExitCode = 2;

    /// `arguments` begin with the program's name.
    static CommandLine Parse(const QStringList &arguments);
    /// The line for a name that is not among the choices.
    static QString NoSuchText(const QString &what, const QString &name, const QStringList &choices);

private:
    static CommandLine ForRecording(CommandLine line, const QString &path, const QString &format);

public:
    Action action = Action::Run;
    QString text;
    /// Empty: the simulated camera.
    QString cameraId;
    QString scene;
    /// End after so many frames were shown; 0 runs until the user quits.
    int frames = 0;
    QString screenshot;
    /// Record into this file instead of showing a window: so many frames (`frames`) or seconds, what comes first.
    QString record;
    int seconds = 0;
    RunFormat format = RunFormat::Tiff;
    /// Print what became of each plug-in instead of showing a window.
    bool listPlugins = false;
    /// Pictures to be opened.
    QStringList files;
};
