// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "samplekind.h"

/// Where the levels of a picture come from.
enum class LevelsMode
{
    Automatic,      ///< the picture's own, without its darkest and brightest thousandth
    MinimumMaximum, ///< from the darkest sample to the brightest
    Manual,         ///< left and right as they were set
    FullRange       ///< all values that the samples can take; with floating point as MinimumMaximum
};

/// What the user chose for pictures of one kind of samples. The gamma holds in every mode; left and right, in units
/// of the samples, only in manual mode.
struct LevelsSetting
{
    LevelsMode mode = LevelsMode::Automatic;
    double left = 0;
    double right = 255;
    double gamma = 1.0;

    /// 8 bits are shown as they are; other samples seldom fill their range, so their levels are found.
    static LevelsSetting Default(const SampleKind &kind);
    /// The nearest setting that makes sense: left below right, both within the kind's range and whole when it is.
    LevelsSetting Guarded(const SampleKind &kind) const;

    bool operator==(const LevelsSetting &other) const;
    bool operator!=(const LevelsSetting &other) const { return !(*this == other); }
};
