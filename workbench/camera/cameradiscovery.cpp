// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameradiscovery.h"

#include "devicelist.h"

CameraDiscovery::CameraDiscovery(QObject *parent)
    : QObject(parent)
{
    qRegisterMetaType<QVector<CameraInfo>>("QVector<CameraInfo>");
    m_worker.setMaxThreadCount(1);
}

CameraDiscovery::~CameraDiscovery() { m_worker.waitForDone(); }

QVector<CameraInfo> CameraDiscovery::ImmediateCameras() { return { SimulatedCameraInfo() }; }

void CameraDiscovery::Start()
{
    if (m_isRunning)
        return;
    m_isRunning = true;
    m_worker.start([this] {
        const QVector<CameraInfo> cameras = ReadDeviceList();
        QMetaObject::invokeMethod(
            this,
            [this, cameras] {
                m_isRunning = false;
                emit signalCamerasFound(cameras);
            },
            Qt::QueuedConnection);
    });
}
