// SPDX-License-Identifier: GPL-3.0-or-later
#include <arv.h> // before Qt, whose "signals" GLib uses as a name

#include "devicelist.h"

#include <mutex>

namespace {
const char *const kSimulatedInterface = "Fake";

QString InterfaceName(const QString &protocol)
{
    if (protocol == QLatin1String("GigEVision"))
        return QStringLiteral("GigE");
    if (protocol == QLatin1String("USB3Vision"))
        return QStringLiteral("USB3");
    return protocol;
}

CameraInfo DeviceAt(unsigned int index)
{
    CameraInfo info;
    info.id = QString::fromUtf8(arv_get_device_id(index));
    info.vendor = QString::fromUtf8(arv_get_device_vendor(index));
    info.model = QString::fromUtf8(arv_get_device_model(index));
    info.serial = QString::fromUtf8(arv_get_device_serial_nbr(index));
    info.interfaceName = InterfaceName(QString::fromUtf8(arv_get_device_protocol(index)));
    return info;
}
} // namespace

QVector<CameraInfo> ReadDeviceList()
{
    // Aravis keeps one list for the process; another update must not come while we read it.
    static std::mutex mutex;
    std::lock_guard<std::mutex> lock(mutex);
    arv_enable_interface(kSimulatedInterface);
    arv_update_device_list();
    QVector<CameraInfo> cameras;
    for (unsigned int i = 0; i < arv_get_n_devices(); ++i)
        cameras.append(DeviceAt(i));
    return cameras;
}

CameraInfo SimulatedCameraInfo()
{
    CameraInfo info;
    info.id = QStringLiteral("Fake_1");
    info.vendor = QStringLiteral("Aravis");
    info.model = QStringLiteral("Fake");
    info.serial = QStringLiteral("1");
    info.interfaceName = QString::fromLatin1(kSimulatedInterface);
    return info;
}

bool IsSimulatedCamera(const QString &id) { return id == SimulatedCameraInfo().id; }
