// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>
#include <QByteArray>

/// The open camera. The object lives as long as the camera is open: GetInstance() is null without
/// one, and every caller tests it.
class GLOBALUI_SERVICES_EXPORT CameraMainManager : public QObject
{
    Q_OBJECT

public:
    static CameraMainManager *GetInstance();
    ~CameraMainManager() override;

    /// Capability number of rotation, for IsSupportCapa().
    static constexpr int RotationCapability = 26;

    /// Name of the interface the camera is connected by; NUL-terminated 8-bit text, may be null.
    virtual const char *GetCommunicationInterface() const = 0;
    /// 0 is USB.
    virtual int GetCommunicationInterfaceID() const = 0;
    virtual int GetVID() const = 0;
    virtual int GetPID() const = 0;
    /// Rotation of the live picture, degrees.
    virtual int GetRotateDegree() const = 0;
    virtual bool IsAnyBinOpen() const = 0;
    virtual bool IsSupportCapa(int capability) const = 0;
    virtual bool IsSupportDisplayFWAndSN() const = 0;
    /// Firmware text, Latin-1.
    virtual QByteArray GetFirmwareVersion() const = 0;
    /// Serial number, local 8-bit text.
    virtual QByteArray GetSerialNumber() const = 0;
    /// True bits per sample.
    virtual int GetBitDepth() const = 0;
    virtual bool HasHardwareSettings() const = 0;
    /// What the view tool bar of the live picture may offer.
    virtual bool IsSupportHorizontalMirror() const = 0;
    virtual bool IsSupportVerticalMirror() const = 0;

protected:
    explicit CameraMainManager(QObject *parent = nullptr);
};
