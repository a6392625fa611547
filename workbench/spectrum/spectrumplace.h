// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sensorframe.h"

#include <QSize>
#include <QString>

/// Which pixels a spectrum is of, and how they count. Only spectra of the same place can be averaged, or be dark and
/// reference of each other.
struct SpectrumPlace
{
    QSize frame; ///< as shown
    SensorFrame sensor;
    bool isHorizontal = true; ///< the spectrum runs along the rows
    int first = 0; ///< of the rows that were summed, or of the columns when it runs along them
    int end = 0;   ///< the one after the last
    QString camera = {}; ///< its name; empty when it is not known
    int bitDepth = 0;    ///< of the samples; 0 when it is not known
    bool isColour = false;

    bool operator==(const SpectrumPlace &other) const
    {
        return frame == other.frame && sensor == other.sensor && isHorizontal == other.isHorizontal && first == other.first
            && end == other.end && camera == other.camera && bitDepth == other.bitDepth && isColour == other.isColour;
    }
    bool operator!=(const SpectrumPlace &other) const { return !(*this == other); }
};
