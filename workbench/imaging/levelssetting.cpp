// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelssetting.h"

#include "displaylevels.h"

LevelsSetting LevelsSetting::Default(int bitDepth)
{
    const DisplayLevels full = DisplayLevels::FullRange(bitDepth);
    return { bitDepth > 8 ? LevelsMode::Automatic : LevelsMode::FullRange, full.left, full.right, full.gamma };
}

bool LevelsSetting::operator==(const LevelsSetting &other) const
{
    return mode == other.mode && left == other.left && right == other.right && gamma == other.gamma;
}
