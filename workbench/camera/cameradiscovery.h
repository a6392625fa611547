// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "camerainfo.h"

#include <QObject>
#include <QThreadPool>

/// Looks for cameras in a worker thread. Destroying it waits for a search in progress (about one second).
class CameraDiscovery : public QObject
{
    Q_OBJECT

public:
    explicit CameraDiscovery(QObject *parent = nullptr);
    ~CameraDiscovery() override;

    /// The cameras that need no search: the simulated one.
    static QVector<CameraInfo> ImmediateCameras();

    /// Starts a search unless one is on its way; signalCamerasFound() tells the end.
    void Start();
    bool IsRunning() const { return m_isRunning; }

signals:
    /// Emitted in this object's thread.
    void signalCamerasFound(const QVector<CameraInfo> &cameras);

private:
    QThreadPool m_worker;
    bool m_isRunning = false;
};
