// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrummeaning.h"

#include "spectrumproduct.h"

SpectrumMeaning SpectrumMeaning::Of(const SpectrumProduct &product, bool isHorizontal)
{
    SpectrumMeaning meaning;
    if (!product.HasSpectrum())
        return meaning;
    if (product.corrected.Count() > 0)
        meaning.places.push_back(product.corrected.place);
    for (const Spectrum &track : product.tracks)
        meaning.places.push_back(track.place);
    const AppliedCorrections &applied = product.corrections;
    meaning.isHorizontal = isHorizontal;
    meaning.isDarkSubtracted = applied.IsDarkSubtracted();
    meaning.isReferenceSubtracted = applied.hasReference && applied.IsReferenceWanted();
    meaning.isBaselineRemoved = applied.wanted.removesBaseline;
    meaning.quantity = applied.Quantity();
    return meaning;
}

bool SpectrumMeaning::operator==(const SpectrumMeaning &other) const
{
    return places == other.places && isHorizontal == other.isHorizontal && isDarkSubtracted == other.isDarkSubtracted
        && isReferenceSubtracted == other.isReferenceSubtracted && isBaselineRemoved == other.isBaselineRemoved
        && quantity == other.quantity;
}
