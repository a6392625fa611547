// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerainfo.h"

#include "cameramainmanager.h"
#include "cameranamemanager.h"
#include "globalclass.h"
#include "globalui.h"

#include <QCoreApplication>

namespace {

/// USB is named as such; the other interfaces are told apart by their text.
QString InterfaceLabel(int interfaceId)
{
    const int usb = 0;
    return interfaceId == usb ? GlobalUI::tr("USB") : GlobalUI::tr("Type");
}

/// Version of the camera library beside the program.
QString SdkVersion()
{
    return GlobalClass::GetSoftWareVersion(QCoreApplication::applicationDirPath() + "\\Kelvo.dll",
                                           "ProductVersion");
}

} // namespace

QStringList CameraInfo()
{
    const CameraMainManager *camera = CameraMainManager::GetInstance();
    if (!camera)
        return { GlobalUI::tr("Name"), GlobalUI::tr("No Camera") };

    QStringList info;
    info << GlobalUI::tr("Name") << CameraNameManager::GetInstance()->GetCameraName();
    info << InterfaceLabel(camera->GetCommunicationInterfaceID()) << camera->GetCommunicationInterface();
    info << GlobalUI::tr("VID") << QString::asprintf("0x%04X", unsigned(camera->GetVID()));
    info << GlobalUI::tr("PID") << QString::asprintf("0x%04X", unsigned(camera->GetPID()));
    if (camera->IsSupportDisplayFWAndSN()) {
        info << GlobalUI::tr("Firmware Serial No.") << QString::fromLatin1(camera->GetFirmwareVersion());
        info << GlobalUI::tr("SN") << QString::fromLocal8Bit(camera->GetSerialNumber());
    }
    info << GlobalUI::tr("SDK Serial No.") << SdkVersion();
    return info;
}
