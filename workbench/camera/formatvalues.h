// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cameraframe.h"

#include <QRect>
#include <QSize>
#include <QVector>

/// The steps and limits of a region on a sensor, in pixels.
struct RegionLimits
{
    QSize sensorSize;
    QSize minimumSize = QSize(1, 1);
    QSize sizeStep = QSize(1, 1);
    QSize offsetStep = QSize(1, 1);

    bool operator==(const RegionLimits &other) const
    {
        return sensorSize == other.sensorSize && minimumSize == other.minimumSize
               && sizeStep == other.sizeStep && offsetStep == other.offsetStep;
    }
};

/// A camera's pixel layout, region and binning as it last told them: a copy, which nobody waits for.
struct FormatValues
{
    /// What both the camera and this program know; empty for a camera that we cannot show.
    QVector<PixelLayout> layouts;
    PixelLayout layout = PixelLayout::Mono8;

    /// In sensor pixels, whatever the binning, as is the region.
    RegionLimits limits;
    QRect region;

    /// Sensor pixels along each side of a frame's pixel that the camera allows: 1 is none. The simulated camera gives
    /// the rounded mean of the pixels; others do as they are made.
    QVector<int> binnings{ 1 };
    int binning = 1;

    QSize FrameSize() const { return region.size() / binning; }
    bool HasSameFrames(const FormatValues &other) const
    {
        return layout == other.layout && region == other.region && binning == other.binning;
    }
    bool operator==(const FormatValues &other) const
    {
        return HasSameFrames(other) && layouts == other.layouts && limits == other.limits
               && binnings == other.binnings;
    }
};
