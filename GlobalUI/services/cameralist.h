// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>

/// The list of connected cameras that GlobalManager hands out.
class GLOBALUI_SERVICES_EXPORT CameraList : public QObject
{
    Q_OBJECT

public:
    ~CameraList() override;

signals:
    /// A camera came, went, was opened or was closed.
    void signalUpdateCameraList();

protected:
    explicit CameraList(QObject *parent = nullptr);
};
