// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picture.h"
#include "processsettings.h"

/// What lies beyond the edge has no part in it.
Picture Morphed(const Picture &picture, const MorphologySettings &settings);
