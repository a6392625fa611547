// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "cameranamemanager.h"

class FakeCameraNameManager : public CameraNameManager
{
public:
    QString cameraName;

    QString GetCameraName() const override { return cameraName; }
};
