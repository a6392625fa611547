// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "openglprobe.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>

class QGraphicsView;
class QOpenGLWidget;
class WorkspaceConfig;

/// Keeps the picture on the screen where OpenGL fails: a choice of GPU drawing that can't be started, or that dies
/// while it runs, is turned into CPU drawing, and the user is told once. GUI thread.
class DrawingGuard : public QObject
{
    Q_OBJECT

public:
    static constexpr int LookPeriodMs = 1000;

    /// Whether OpenGL can be started; if not, says why.
    using Probe = std::function<bool(QString *reason)>;

    /// Judges the stored choice at once, so make it before the views. `config` is borrowed and outlives this object.
    explicit DrawingGuard(WorkspaceConfig *config, QObject *parent = nullptr,
                          const Probe &probe = OpenGLProbe::CanStart);

    /// The view whose OpenGL viewport is looked after from here on; null for none.
    void Watch(QGraphicsView *view);

public slots:
    /// The user's choice: true is CPU drawing.
    void slotSetCPUDraw(bool cpuFlag);

signals:
    /// A sentence for the status bar; comes by the event queue.
    void signalMessage(QString text);

private slots:
    void slotDrawingChanged(bool cpuFlag);
    void slotLook();

private:
    bool IsSound(QOpenGLWidget *viewport) const;
    void FallBack(const QString &text);

    WorkspaceConfig *m_config;
    const Probe m_probe;
    QPointer<QGraphicsView> m_view;
    QTimer m_timer;
    int m_faultCount = 0;
};
