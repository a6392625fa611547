// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QString>

/// Tries whether OpenGL can be started on this display, and draw as the picture needs it, without a window.
class OpenGLProbe
{
    Q_DECLARE_TR_FUNCTIONS(OpenGLProbe)

public:
    /// Makes a context current, builds a drawing program and gives them up again; `reason` says what failed. GUI
    /// thread.
    static bool CanStart(QString *reason);
    /// The same with this vertex shader in the program.
    static bool CanStartWith(const char *vertexShader, QString *reason);
};
