// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "cameramanager.h"

class FakeCameraManager : public CameraManager
{
public:
    void slotSetMirrorRotate(int type) override
    {
        CallLog::Add("CameraManager::slotSetMirrorRotate", {QString::number(type)});
    }
};
