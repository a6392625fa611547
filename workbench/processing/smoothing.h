// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picture.h"
#include "processsettings.h"

/// Beyond the edge the picture goes on as its last row or column.
Picture Denoised(const Picture &picture, const DenoiseSettings &settings);
Picture Sharpened(const Picture &picture, const SharpenSettings &settings);
