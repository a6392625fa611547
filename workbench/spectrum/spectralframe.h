// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sensorframe.h"
#include "spectralaxis.h"

/// Where the samples of a spectrum lie on the sensor; of an opened picture, where in its file, as nobody knows where on the
/// sensor that was. A value.
struct SpectralFrame
{
    bool isAlongRows = true;  ///< of the sensor, however the picture is turned
    bool isHorizontal = true; ///< along the rows of what is seen
    bool isReversed = false;  ///< its first sample is the last one on the sensor
    int first = 0;            ///< the sensor's column, or row, that it begins or, reversed, ends with
    int binning = 1;
    int count = 0;      ///< samples; 0 when nothing is known
    int fileExtent = 0; ///< of an opened picture: pixels of its file along that side

    /// Of a spectrum that runs along the rows, or the columns, of what is seen; null for a frame of nothing.
    static SpectralFrame Of(const SensorFrame &frame, bool isHorizontal);

    bool IsNull() const { return count <= 0; }
    bool IsOfFile() const { return fileExtent > 0; }
    /// The pixels of what is seen that are its samples.
    SpectralSide Side() const { return isHorizontal ? SpectralSide::Columns : SpectralSide::Rows; }
    /// Where the middle of a sample is, sensor pixels.
    double OnSensor(double sample) const;
    /// The sample whose middle is there.
    double SampleAt(double onSensor) const;
    /// Lies within another one, to half a sample of that. Files of one size are taken to show the same pixels.
    bool IsWithin(const SpectralFrame &other) const;

    bool operator==(const SpectralFrame &other) const
    {
        return isAlongRows == other.isAlongRows && isHorizontal == other.isHorizontal
               && isReversed == other.isReversed && first == other.first && binning == other.binning
               && count == other.count && fileExtent == other.fileExtent;
    }
    bool operator!=(const SpectralFrame &other) const { return !(*this == other); }
};
