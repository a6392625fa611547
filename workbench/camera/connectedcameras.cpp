// SPDX-License-Identifier: GPL-3.0-or-later
#include "connectedcameras.h"

#include "cameradiscovery.h"
#include "devicelist.h"

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

QString ConnectedCameras::Caption(const CameraInfo &camera)
{
    if (IsSimulatedCamera(camera.id))
        return tr("Simulated Camera");
    return QString("%1 %2 %3 (%4)").arg(camera.vendor, camera.model, camera.serial, camera.interfaceName);
}
