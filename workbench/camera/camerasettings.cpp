// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerasettings.h"

CameraSettings::CameraSettings(QObject *parent)
    : CameraConfigManager(parent)
{
}

void CameraSettings::UpdateGraphicsRegionItem() {}
