// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "spectrumcorrections.h"
#include "trackfinder.h"

#include <vector>

/// Which rows make the spectrum of full vertical binning.
enum class BinnedRows
{
    All,
    Auto,  ///< the band that has the most light, found once
    Manual ///< between two rows set by the user
};

/// What is made of every frame. Rows and columns are those of the picture as it is shown.
struct SpectrumRecipe
{
    bool isBinning = false;
    BinnedRows rows = BinnedRows::All;
    int top = 0;    ///< first row of the band by hand
    int bottom = 0; ///< last row of it
    bool isHorizontal = true; ///< the spectrum runs along the rows
    bool hasTracks = false;
    std::vector<RowBand> tracks;
    bool isFocusing = false;
    CorrectionSettings corrections;

    bool IsAnythingWanted() const { return isBinning || hasTracks || isFocusing; }
};
