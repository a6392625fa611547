// SPDX-License-Identifier: GPL-3.0-or-later
#include "liveprofiles.h"

LiveProfiles::LiveProfiles(QObject *parent)
    : IntensityManager(parent)
{
}

void LiveProfiles::SetAnchorPoint(int, int, QRectF) {}
