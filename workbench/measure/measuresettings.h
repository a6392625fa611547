// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "measureconfigmanager.h"

/// Settings of measuring. There are none yet; the announcements pass through here. GUI thread.
class MeasureSettings : public MeasureConfigManager
{
    Q_OBJECT

public:
    explicit MeasureSettings(QObject *parent = nullptr);
};
