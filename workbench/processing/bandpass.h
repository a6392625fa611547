// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picture.h"
#include "processsettings.h"

/// Gain of a wave of `frequency` waves a pixel: 2^-(f s)^2 (1 - 2^-(f l)^2), with s and l the lengths of the settings.
double BandPassGain(double frequency, const BandPassSettings &settings);
/// Beyond its edges the picture goes on as in a mirror.
Picture BandPassed(const Picture &picture, const BandPassSettings &settings);
