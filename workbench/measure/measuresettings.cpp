// SPDX-License-Identifier: GPL-3.0-or-later
#include "measuresettings.h"

MeasureSettings::MeasureSettings(QObject *parent)
    : MeasureConfigManager(parent)
{
}
