// SPDX-License-Identifier: GPL-3.0-or-later
#include "opencamera.h"

#include "cameralink.h"
#include "camerasession.h"

namespace {
enum InterfaceId { UsbInterface = 0, NetworkInterface = 1, SimulatedInterface = 2 };
}

OpenCamera::OpenCamera(const CameraLink *link, QObject *parent)
    : CameraMainManager(parent)
    , m_link(link)
    , m_info(link->Info())
    , m_interface(link->Session()->IsSimulated() ? QByteArray("Simulated") : m_info.interfaceName.toLocal8Bit())
{
    connect(link, SIGNAL(signalFormatChanged()), this, SLOT(slotFormatChanged()));
    slotFormatChanged();
}

const char *OpenCamera::GetCommunicationInterface() const
{
    return m_interface.constData();
}

int OpenCamera::GetCommunicationInterfaceID() const
{
    if (m_info.interfaceName == "USB3")
        return UsbInterface;
    return m_info.interfaceName == "GigE" ? NetworkInterface : SimulatedInterface;
}

int OpenCamera::GetVID() const
{
    return 0; // GenICam tells a vendor's name, not its number
}

int OpenCamera::GetPID() const
{
    return 0;
}

int OpenCamera::GetRotateDegree() const
{
    return m_rotateDegree;
}

bool OpenCamera::IsAnyBinOpen() const
{
    return m_isBinned;
}

bool OpenCamera::IsSupportCapa(int capability) const
{
    return capability == RotationCapability; // the picture is turned by the program, for every camera
}

bool OpenCamera::IsSupportDisplayFWAndSN() const
{
    return true;
}

QByteArray OpenCamera::GetFirmwareVersion() const
{
    return m_info.firmware.toLatin1();
}

QByteArray OpenCamera::GetSerialNumber() const
{
    return m_info.serial.toLocal8Bit();
}

int OpenCamera::GetBitDepth() const
{
    return m_bitDepth;
}

/// Every GenICam camera has a feature tree.
bool OpenCamera::HasHardwareSettings() const
{
    return true;
}

bool OpenCamera::IsSupportHorizontalMirror() const
{
    return true;
}

bool OpenCamera::IsSupportVerticalMirror() const
{
    return true;
}

void OpenCamera::slotSetRotateDegree(int degree)
{
    m_rotateDegree = degree;
}

void OpenCamera::slotFormatChanged()
{
    if (!m_link->Session())
        return; // what it was
    m_bitDepth = BitDepth(m_link->Session()->Format().layout);
    m_isBinned = m_link->Session()->Format().binning > 1;
}
