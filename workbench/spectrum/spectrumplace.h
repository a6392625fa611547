// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "orientation.h"

#include <QSize>

/// Where on the picture a spectrum comes from. Only spectra of the same place can be averaged, or be dark and reference
/// of each other.
struct SpectrumPlace
{
    QSize frame; ///< as shown
    Orientation orientation;
    bool isHorizontal = true; ///< the spectrum runs along the rows
    int first = 0; ///< of the rows that were summed, or of the columns when it runs along them
    int end = 0;   ///< the one after the last

    bool operator==(const SpectrumPlace &other) const
    {
        return frame == other.frame && orientation == other.orientation && isHorizontal == other.isHorizontal && first == other.first
            && end == other.end;
    }
    bool operator!=(const SpectrumPlace &other) const { return !(*this == other); }
};
