// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelssetting.h"

#include "displaylevels.h"

#include <algorithm>
#include <cmath>

namespace {

/// The nearest level; `instead` for what is no number.
double Guard(double level, double instead, const SampleKind &kind)
{
    if (std::isnan(level))
        return instead;
    return std::clamp(kind.IsWhole() ? std::round(level) : level, kind.Least(), kind.Most());
}

/// The least difference of two levels: about that of two samples.
double LeastStep(double level, const SampleKind &kind)
{
    const double part = kind.Bits() == 32 ? 1e-7 : 1e-15;
    constexpr double smallest = 1e-30;
    return kind.IsWhole() ? 1 : std::max(std::abs(level) * part, smallest);
}

} // namespace

LevelsSetting LevelsSetting::Default(const SampleKind &kind)
{
    const LevelsMode mode = kind == SampleKind(8) ? LevelsMode::FullRange : LevelsMode::Automatic;
    return kind.IsWhole() ? LevelsSetting{ mode, kind.Least(), kind.Most(), 1.0 }
                          : LevelsSetting{ mode, 0, 1, 1.0 };
}

LevelsSetting LevelsSetting::Guarded(const SampleKind &kind) const
{
    const LevelsSetting usual = Default(kind);
    LevelsSetting guarded;
    guarded.mode = mode;
    guarded.left = Guard(left, usual.left, kind);
    guarded.left = std::min(guarded.left, kind.Most() - LeastStep(kind.Most(), kind));
    guarded.right = std::max(Guard(right, usual.right, kind), guarded.left + LeastStep(guarded.left, kind));
    guarded.gamma = DisplayLevels::GuardedGamma(gamma);
    return guarded;
}

bool LevelsSetting::operator==(const LevelsSetting &other) const
{
    return mode == other.mode && left == other.left && right == other.right && gamma == other.gamma;
}
