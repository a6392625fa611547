// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumproduct.h"

#include <algorithm>

bool SpectrumProduct::IsSaturated() const
{
    const auto isCutOff = [](const Spectrum &spectrum) {
        return std::find(spectrum.saturated.begin(), spectrum.saturated.end(), 1) != spectrum.saturated.end();
    };
    return isCutOff(corrected) || std::any_of(tracks.begin(), tracks.end(), isCutOff);
}
