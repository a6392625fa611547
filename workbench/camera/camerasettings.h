// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cameraconfigmanager.h"

/// Settings of the open camera; announces when the preview starts and stops. GUI thread.
class CameraSettings : public CameraConfigManager
{
    Q_OBJECT

public:
    explicit CameraSettings(QObject *parent = nullptr);

    void UpdateGraphicsRegionItem() override;
};
