// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>

/// The camera-side manager object that GlobalManager hands out: the orientation of the live
/// picture.
class GLOBALUI_SERVICES_EXPORT CameraManager : public QObject
{
    Q_OBJECT

public:
    ~CameraManager() override;

public slots:
    /// Turns or flips the live picture; `type` is a RotateType.
    virtual void slotSetMirrorRotate(int type) = 0;

signals:
    void signalUpdateRotateDegree(int degree);

protected:
    explicit CameraManager(QObject *parent = nullptr);
};
