// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumranges.h"

SpectrumRanges::SpectrumRanges(QObject *parent)
    : DisplayModeManager(parent)
{
}
