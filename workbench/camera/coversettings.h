// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "coverconfigmanager.h"

/// The cover over a part of the picture. There is no way to draw one yet. GUI thread.
class CoverSettings : public CoverConfigManager
{
    Q_OBJECT

public:
    explicit CoverSettings(QObject *parent = nullptr);

    void ResetCover() override;

public slots:
    void slotStopManualCover() override;
    void slotManualCoverFinished(QRect rect) override;
    void slotScaleFactorChanged(double scaleFactor) override;
};
