// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "orientation.h"

#include <QRect>

/// How the frames of a camera come to be what is seen of them.
struct SensorFrame
{
    QRect region; ///< sensor pixels, unbinned
    int binning = 1;
    Orientation orientation;

    bool operator==(const SensorFrame &other) const
    {
        return region == other.region && binning == other.binning && orientation == other.orientation;
    }
};

/// Where the samples of a spectrum lie on the sensor. A value.
struct SpectralFrame
{
    bool isAlongRows = true;  ///< of the sensor, however the picture is turned
    bool isReversed = false;  ///< its first sample is the last one on the sensor
    int first = 0;            ///< the sensor's column, or row, that it begins or, reversed, ends with
    int binning = 1;
    int count = 0; ///< samples; 0 when nothing is known

    /// Of a spectrum that runs along the rows, or the columns, of what is seen.
    static SpectralFrame Of(const SensorFrame &frame, bool isHorizontal);

    bool IsNull() const { return count <= 0; }
    /// Where the middle of a sample is, sensor pixels.
    double OnSensor(double sample) const;
    /// The sample whose middle is there.
    double SampleAt(double onSensor) const;
    /// Lies within another one, to half a sample of that.
    bool IsWithin(const SpectralFrame &other) const;

    bool operator==(const SpectralFrame &other) const
    {
        return isAlongRows == other.isAlongRows && isReversed == other.isReversed && first == other.first
            && binning == other.binning && count == other.count;
    }
    bool operator!=(const SpectralFrame &other) const { return !(*this == other); }
};
