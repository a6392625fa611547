// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Where the levels of a picture come from.
enum class LevelsMode {
    Automatic,      ///< the picture's own, without its darkest and brightest thousandth
    MinimumMaximum, ///< from the darkest sample to the brightest
    Manual,         ///< left and right as they were set
    FullRange       ///< all values that the bit depth allows
};

/// What the user chose for pictures of one bit depth. The gamma holds in every mode; left and right, in units of
/// the samples, only in manual mode.
struct LevelsSetting
{
    LevelsMode mode = LevelsMode::Automatic;
    int left = 0;
    int right = 255;
    double gamma = 1.0;

    /// 8 bits are shown as they are; deeper samples seldom fill their range, so their levels are found.
    static LevelsSetting Default(int bitDepth);

    bool operator==(const LevelsSetting &other) const;
    bool operator!=(const LevelsSetting &other) const { return !(*this == other); }
};
