// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelsfollower.h"

#include "levelsfinder.h"
#include "sampleview.h"

#include <algorithm>
#include <cmath>

namespace {

/// A few dead and hot pixels don't set the levels.
constexpr double DarkestPart = 0.001;
constexpr double BrightestPart = 0.999;
/// Part of the way to the newest picture's own levels; three quarters of a change are followed in five pictures.
constexpr double StepPart = 0.25;
/// So many samples tell the levels of a large picture within the noise of the picture itself.
constexpr qint64 EnoughSamples = 1 << 19;

int RowStep(const SampleView &samples)
{
    return int(std::max(qint64(1), qint64(samples.SamplesPerRow()) * samples.height / EnoughSamples));
}

} // namespace

DisplayLevels LevelsFollower::Next(const SampleView &samples, const LevelsSetting &setting)
{
    DisplayLevels levels;
    if (setting.mode == LevelsMode::Automatic)
        return FollowAutomatic(samples, setting);
    m_isFollowing = false;
    switch (setting.mode) {
    case LevelsMode::MinimumMaximum:
        levels = LevelsFinder::FromRange(samples);
        break;
    case LevelsMode::Manual:
        levels = { int(std::lround(setting.left)), int(std::lround(setting.right)), 1.0 };
        break;
    default:
        levels = DisplayLevels::FullRange(samples.bitDepth);
    }
    levels.gamma = setting.gamma;
    return levels.Guarded(samples.bitDepth);
}

DisplayLevels LevelsFollower::FollowAutomatic(const SampleView &samples, const LevelsSetting &setting)
{
    const DisplayLevels found =
        LevelsFinder::FromPercentiles(samples, DarkestPart, BrightestPart, RowStep(samples));
    const double part = m_isFollowing && m_bitDepth == samples.bitDepth ? StepPart : 1.0;
    m_isFollowing = true;
    m_bitDepth = samples.bitDepth;
    m_left += (found.left - m_left) * part;
    m_right += (found.right - m_right) * part;
    return DisplayLevels{ int(std::lround(m_left)), int(std::lround(m_right)), setting.gamma }.Guarded(
        samples.bitDepth);
}
