// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "intensitymanager.h"

/// Live row and column profiles, which nothing computes yet. GUI thread.
class LiveProfiles : public IntensityManager
{
    Q_OBJECT

public:
    explicit LiveProfiles(QObject *parent = nullptr);

    void SetAnchorPoint(int x, int y, QRectF normalisedRect) override;
};
