// SPDX-License-Identifier: GPL-3.0-or-later
#include "coversettings.h"

CoverSettings::CoverSettings(QObject *parent)
    : CoverConfigManager(parent)
{
}

void CoverSettings::ResetCover() {}

void CoverSettings::slotStopManualCover() {}

void CoverSettings::slotManualCoverFinished(QRect) {}

void CoverSettings::slotScaleFactorChanged(double) {}
