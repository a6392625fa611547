// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "camerainfo.h"
#include "cameralist.h"

/// The cameras that can be chosen: the simulated one at once, the others when they were found.
/// GUI thread.
class ConnectedCameras : public CameraList
{
    Q_OBJECT

public:
    explicit ConnectedCameras(QObject *parent = nullptr);

    /// What a camera is called in a list.
    static QString Caption(const CameraInfo &camera);
    const QVector<CameraInfo> &Cameras() const { return m_cameras; }
    void SetCameras(const QVector<CameraInfo> &cameras);

private:
    QVector<CameraInfo> m_cameras;
};
