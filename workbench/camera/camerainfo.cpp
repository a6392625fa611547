// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerainfo.h"

#include "devicelist.h"

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CameraLink)
};

} // namespace

QString CameraName(const CameraInfo &info)
{
    if (IsSimulatedCamera(info.id))
        return Text::tr("Simulated Camera");
    if (info.model.isEmpty())
        return info.id;
    return info.serial.isEmpty() ? info.model : QString("%1 %2").arg(info.model, info.serial);
}
