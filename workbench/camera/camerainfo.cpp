// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerainfo.h"

#include "devicelist.h"

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CameraLink)
};

const char SimulatedName[] = QT_TRANSLATE_NOOP("CameraLink", "Simulated Camera");

} // namespace

QString KeptCameraName(const CameraInfo &info)
{
    if (IsSimulatedCamera(info.id))
        return SimulatedName;
    if (info.model.isEmpty())
        return info.id;
    return info.serial.isEmpty() ? info.model : QString("%1 %2").arg(info.model, info.serial);
}

QString ShownCameraName(const QString &kept)
{
    return kept == SimulatedName ? Text::tr(SimulatedName) : kept;
}

QString CameraName(const CameraInfo &info)
{
    return ShownCameraName(KeptCameraName(info));
}
