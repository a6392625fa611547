// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What the values of a spectrum mean.
enum class SpectrumQuantity
{
    Counts,
    Transmission, ///< (sample - dark) / (reference - dark)
    Absorbance    ///< minus the decimal logarithm of that
};

/// What is done to every spectrum, in this order: cosmic rays, average, dark, reference, baseline, smoothing.
struct CorrectionSettings
{
    bool removesCosmicRays = false;
    int averaged = 1; ///< spectra: the newest and those before it
    bool subtractsDark = false;
    bool subtractsReference = false; ///< only of counts
    SpectrumQuantity quantity = SpectrumQuantity::Counts;
    bool removesBaseline = false;
    int smoothing = 0; ///< samples of the window; less than 3 is off

    bool operator==(const CorrectionSettings &other) const;
};

/// Which of the corrections wanted were done to a spectrum.
struct AppliedCorrections
{
    CorrectionSettings wanted;
    int averaged = 1;          ///< spectra, so far
    bool hasDark = false;      ///< there is a dark spectrum of its place
    bool hasReference = false; ///< likewise
    bool isDarkOfOtherExposure = false; ///< as far as both exposures are known
    bool isTrack = false;      ///< dark and reference are those of binned spectra only

    bool IsReferenceWanted() const { return wanted.subtractsReference || wanted.quantity != SpectrumQuantity::Counts; }
    bool IsDarkSubtracted() const { return wanted.subtractsDark && hasDark; }
    /// Of the values: counts as long as there is no reference.
    SpectrumQuantity Quantity() const { return hasReference ? wanted.quantity : SpectrumQuantity::Counts; }
    /// Values may be below zero.
    bool GoesBelowZero() const;
    int SmoothingWindow() const { return wanted.smoothing / 2 * 2 + 1; }

    /// One sentence for the user: what was done, and what was wanted and could not be.
    QString Sentence() const;
    /// What was done, for files: English, whatever the language.
    QString Record() const;
};
