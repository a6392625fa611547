// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QString>

/// Tries whether OpenGL can be started on this display, without a window.
class OpenGLProbe
{
    Q_DECLARE_TR_FUNCTIONS(OpenGLProbe)

public:
    /// Makes a context current and gives it up again; `reason` says what failed. GUI thread.
    static bool CanStart(QString *reason);
};
