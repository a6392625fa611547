// SPDX-License-Identifier: GPL-3.0-or-later
#include "openglprobe.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>

bool OpenGLProbe::CanStart(QString *reason)
{
    QOpenGLContext context;
    if (!context.create()) {
        *reason = tr("the display offers none");
        return false;
    }
    QOffscreenSurface surface;
    surface.setFormat(context.format());
    surface.create();
    if (!context.makeCurrent(&surface)) {
        *reason = tr("the driver gives no context");
        return false;
    }
    context.doneCurrent();
    return true;
}
