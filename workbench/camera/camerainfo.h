// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaType>
#include <QString>
#include <QVector>

/// Who a camera is. A list of cameras leaves `firmware` empty: it is read when a camera is opened.
struct CameraInfo
{
    QString id; ///< what CameraSession::Open() takes
    QString vendor;
    QString model;
    QString serial;
    QString firmware;
    QString interfaceName; ///< "GigE", "USB3" or "Fake" (the simulated camera)
};

/// As it is kept, in every language the same: model and serial number, or the id of a camera that has not told them yet.
QString KeptCameraName(const CameraInfo &info);
/// For the user, of a name that was kept.
QString ShownCameraName(const QString &kept);
/// For the user: model and serial number, or the id of a camera that has not told them yet.
QString CameraName(const CameraInfo &info);

Q_DECLARE_METATYPE(CameraInfo)
Q_DECLARE_METATYPE(QVector<CameraInfo>)
