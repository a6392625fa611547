// SPDX-License-Identifier: GPL-3.0-or-later
#include "drawingguard.h"

#include "workspaceconfig.h"

#include <QGraphicsView>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QOpenGLWidget>

namespace {
/// The drawing repairs a passing error by itself; one that is there at every look stays.
constexpr int FaultsToFallBack = 3;
/// A lost context reports its error without end.
constexpr int ErrorsToRead = 8;
}

DrawingGuard::DrawingGuard(WorkspaceConfig *config, QObject *parent, const Probe &probe)
    : QObject(parent)
    , m_config(config)
    , m_probe(probe)
{
    connect(m_config, SIGNAL(signalSetCPUDraw(bool)), this, SLOT(slotDrawingChanged(bool)));
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(slotLook()));
    if (!m_config->IsCPUDraw())
        slotSetCPUDraw(false);
}

void DrawingGuard::Watch(QGraphicsView *view)
{
    m_view = view;
    slotDrawingChanged(m_config->IsCPUDraw());
}

void DrawingGuard::slotSetCPUDraw(bool cpuFlag)
{
    QString reason;
    if (cpuFlag || m_probe(&reason))
        m_config->SetCPUDraw(cpuFlag, false);
    else
        FallBack(tr("OpenGL can't be started: %1. The picture is drawn by the CPU.").arg(reason));
}

void DrawingGuard::slotDrawingChanged(bool cpuFlag)
{
    m_faultCount = 0;
    if (cpuFlag || !m_view)
        m_timer.stop();
    else
        m_timer.start(LookPeriodMs);
}

void DrawingGuard::slotLook()
{
    if (!m_view || !m_view->isVisible())
        return;
    m_faultCount = IsSound(qobject_cast<QOpenGLWidget *>(m_view->viewport())) ? 0 : m_faultCount + 1;
    if (m_faultCount >= FaultsToFallBack)
        FallBack(tr("OpenGL has failed. The picture is drawn by the CPU from here on."));
}

bool DrawingGuard::IsSound(QOpenGLWidget *viewport) const
{
    if (!viewport || !viewport->isValid())
        return false;
    viewport->makeCurrent();
    QOpenGLContext *context = QOpenGLContext::currentContext();
    if (!context || context != viewport->context())
        return false;
    QOpenGLFunctions *gl = context->functions();
    bool hasError = false;
    for (int i = 0; i < ErrorsToRead && gl->glGetError() != GL_NO_ERROR; ++i)
        hasError = true;
    viewport->doneCurrent();
    return !hasError;
}

/// Announced even where CPU drawing is set already: whoever showed the choice has to take it back.
void DrawingGuard::FallBack(const QString &text)
{
    m_config->SetCPUDraw(true, true);
    QMetaObject::invokeMethod(this, "signalMessage", Qt::QueuedConnection, Q_ARG(QString, text));
}
