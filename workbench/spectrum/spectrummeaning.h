// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "appliedcorrections.h"
#include "spectrumplace.h"

#include <vector>

struct SpectrumProduct;

/// What the values on the plot are: which pixels were summed, and what was taken off or divided by. While it stays the
/// same one range of values suits one spectrum after another. A value.
struct SpectrumMeaning
{
    std::vector<SpectrumPlace> places; ///< of each line; none without a spectrum
    bool isHorizontal = true;          ///< tracks are drawn along the rows
    bool isDarkSubtracted = false;
    bool isReferenceSubtracted = false;
    bool isBaselineRemoved = false;
    SpectrumQuantity quantity = SpectrumQuantity::Counts;

    /// `isHorizontal` is how tracks are drawn, whatever they were made for.
    static SpectrumMeaning Of(const SpectrumProduct &product, bool isHorizontal);

    bool operator==(const SpectrumMeaning &other) const;
    bool operator!=(const SpectrumMeaning &other) const { return !(*this == other); }
};
