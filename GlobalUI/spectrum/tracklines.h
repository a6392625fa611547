// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qwt3d_types.h>

#include <vector>

// The numbers of the 3D plot: one line per track, one behind the other.

/// How far the lines stand apart, and how many counts are one unit of height.
struct TrackSteps
{
    int series;
    int countsDivisor;

    bool operator!=(const TrackSteps &other) const
    {
        return series != other.series || countsDivisor != other.countsDivisor;
    }
};

/// For tracks `width` pixels wide whose values reach from `minimum` to `maximum`.
TrackSteps ComputeTrackSteps(int width, int minimum, int maximum);

/// Depth of the box in series steps: at least 5, at most 20.
int ComputeSeriesDepth(int trackCount);

/// One line per track: pixel, series position, counts in units of height. `tracks` holds the tracks one
/// after another and `valueCount` values in all; a line ends where they do.
std::vector<Qwt3D::TripleField> ComputeTrackLines(const unsigned int *tracks, int trackCount, int width,
                                                  int valueCount, const TrackSteps &steps);
