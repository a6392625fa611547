// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "camerainfo.h"
#include "cameramainmanager.h"

class CameraLink;

/// The open camera as the module sees it. Made when a camera was opened and taken away when it is
/// closed; a lost camera keeps it, so that its last picture stays on the screen. GUI thread.
class OpenCamera : public CameraMainManager
{
    Q_OBJECT

public:
    /// `link` is borrowed and outlives this object.
    explicit OpenCamera(const CameraLink *link, QObject *parent = nullptr);

    const char *GetCommunicationInterface() const override;
    int GetCommunicationInterfaceID() const override;
    int GetVID() const override;
    int GetPID() const override;
    int GetRotateDegree() const override;
    bool IsAnyBinOpen() const override;
    bool IsSupportCapa(int capability) const override;
    bool IsSupportDisplayFWAndSN() const override;
    QByteArray GetFirmwareVersion() const override;
    QByteArray GetSerialNumber() const override;
    int GetBitDepth() const override;
    bool HasHardwareSettings() const override;
    bool IsSupportHorizontalMirror() const override;
    bool IsSupportVerticalMirror() const override;

public slots:
    void slotSetRotateDegree(int degree);

private slots:
    void slotFormatChanged();

private:
    const CameraLink *m_link;
    const CameraInfo m_info;
    const QByteArray m_interface;
    int m_bitDepth = 0;
    bool m_isBinned = false;
    int m_rotateDegree = 0;
};
