// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "orientation.h"

#include <QRect>

/// How the frames of a camera, or of a file, come to be what is seen of them.
struct SensorFrame
{
    QRect region; ///< sensor, or file, pixels, unbinned
    int binning = 1;
    Orientation orientation;

    bool operator==(const SensorFrame &other) const
    {
        return region == other.region && binning == other.binning && orientation == other.orientation;
    }
    bool operator!=(const SensorFrame &other) const { return !(*this == other); }
};
