// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picture.h"
#include "processsettings.h"

Picture WithoutBackground(const Picture &picture, const BackgroundSettings &settings);
