// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "displaylevels.h"
#include "levelssetting.h"

struct SampleView;

/// Gives each picture of a row its levels. Automatic ones move towards what suits the newest picture by a part of
/// the way, so that noise does not make a live picture flicker; minimum and maximum are those of each picture.
/// One follower for one row of pictures; one thread at a time.
class LevelsFollower
{
public:
    DisplayLevels Next(const SampleView &samples, const LevelsSetting &setting);
    /// The next picture gets what suits it, wherever the levels stand.
    void Reset() { m_isFollowing = false; }

private:
    DisplayLevels FollowAutomatic(const SampleView &samples, const LevelsSetting &setting);

    bool m_isFollowing = false;
    int m_bitDepth = 0;
    double m_left = 0;
    double m_right = 0;
};
