// SPDX-License-Identifier: GPL-3.0-or-later
#include "connectedcameras.h"

#include "cameradiscovery.h"

ConnectedCameras::ConnectedCameras(QObject *parent)
    : CameraList(parent)
    , m_cameras(CameraDiscovery::ImmediateCameras())
{
}

void ConnectedCameras::SetCameras(const QVector<CameraInfo> &cameras)
{
    m_cameras = cameras;
    emit signalUpdateCameraList();
}
