// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "cameramainmanager.h"

#include <QSet>

class FakeCameraMainManager : public CameraMainManager
{
public:
    const char *communicationInterface = "";
    int communicationInterfaceID = 0;
    int vid = 0;
    int pid = 0;
    int rotateDegree = 0;
    bool anyBinOpen = false;
    QSet<int> capabilities;
    bool supportDisplayFWAndSN = false;
    QByteArray firmwareVersion;
    QByteArray serialNumber;
    int bitDepth = 8;
    bool hardwareSettings = false;
    bool supportHorizontalMirror = true;
    bool supportVerticalMirror = true;

    const char *GetCommunicationInterface() const override { return communicationInterface; }
    int GetCommunicationInterfaceID() const override { return communicationInterfaceID; }
    int GetVID() const override { return vid; }
    int GetPID() const override { return pid; }
    int GetRotateDegree() const override { return rotateDegree; }
    bool IsAnyBinOpen() const override { return anyBinOpen; }
    bool IsSupportCapa(int capability) const override { return capabilities.contains(capability); }
    bool IsSupportDisplayFWAndSN() const override { return supportDisplayFWAndSN; }
    QByteArray GetFirmwareVersion() const override { return firmwareVersion; }
    QByteArray GetSerialNumber() const override { return serialNumber; }
    int GetBitDepth() const override { return bitDepth; }
    bool HasHardwareSettings() const override { return hardwareSettings; }
    bool IsSupportHorizontalMirror() const override { return supportHorizontalMirror; }
    bool IsSupportVerticalMirror() const override { return supportVerticalMirror; }
};
