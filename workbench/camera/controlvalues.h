// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// What a camera allows; equal ends when it has no such setting.
struct ValueRange
{
    double minimum = 0;
    double maximum = 0;

    bool IsAdjustable() const { return maximum > minimum; }
    bool operator==(const ValueRange &other) const
    {
        return minimum == other.minimum && maximum == other.maximum;
    }
};

/// A camera's exposure, gain and frame rate as it last told them: a copy, which nobody waits for.
struct ControlValues
{
    ValueRange exposureRangeUs;
    double exposureUs = 0;
    /// The camera can find its exposure by itself. The simulated camera can't.
    bool hasAutoExposure = false;
    bool isAutoExposure = false;

    /// In the camera's unit: decibels for the simulated camera and for most others.
    ValueRange gainRange;
    double gain = 0;
    bool hasAutoGain = false;
    bool isAutoGain = false;

    ValueRange frameRateRange;
    /// Frames per second that the camera gives now: what was asked for, bounded by the exposure.
    double frameRate = 0;

    /// But perhaps other limits.
    bool HasSameSettings(const ControlValues &other) const
    {
        return exposureUs == other.exposureUs && isAutoExposure == other.isAutoExposure && gain == other.gain
               && isAutoGain == other.isAutoGain && frameRate == other.frameRate;
    }
    bool operator==(const ControlValues &other) const
    {
        return HasSameSettings(other) && exposureRangeUs == other.exposureRangeUs
               && gainRange == other.gainRange && frameRateRange == other.frameRateRange
               && hasAutoExposure == other.hasAutoExposure && hasAutoGain == other.hasAutoGain;
    }
};
