// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>
#include <QString>

/// The name under which the open camera is shown.
class GLOBALUI_SERVICES_EXPORT CameraNameManager : public QObject
{
    Q_OBJECT

public:
    static CameraNameManager *GetInstance();
    ~CameraNameManager() override;

    virtual QString GetCameraName() const = 0;

protected:
    explicit CameraNameManager(QObject *parent = nullptr);
};
