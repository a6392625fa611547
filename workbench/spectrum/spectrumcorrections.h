// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "appliedcorrections.h"
#include "spectrumplace.h"

#include <QtGlobal>

#include <deque>
#include <vector>

/// One spectrum with all that was done to it.
struct Spectrum
{
    std::vector<double> values;
    /// 1 where a pixel that the value was made of was at the end of its range; empty when that is not known.
    std::vector<quint8> saturated;
    quint64 frameId = 0;
    SpectrumPlace place = {};
    /// The values before they were smoothed; empty when they were not. Smoothed noise is no longer that of each sample
    /// for itself: peaks are looked for in these.
    std::vector<double> unsmoothed = {};
    double exposureUs = 0; ///< 0 when it is not known

    int Count() const { return int(values.size()); }
};

/// Corrects spectra one after another, for one thread. A correction that lacks its dark or reference spectrum, or has
/// one of another place, is left out, and Applied() says so. Spectra of different places or exposures are never averaged or
/// compared.
class SpectrumCorrections
{
public:
    static constexpr int SmoothingDegree = 3;
    static constexpr int BaselineReach = 120; ///< samples to each side; a line must fill less than half of them to stay
    /// Absorbance of less light than can be told from none.
    static constexpr double MostAbsorbance = 6.0;

    void SetSettings(const CorrectionSettings &settings);
    void SetDark(const Spectrum &dark) { m_dark = dark; }
    void SetReference(const Spectrum &reference) { m_reference = reference; }
    /// Forgets the spectra before: the next one has nothing to do with them.
    void Restart();
    /// The spectrum of this frame comes once more: it takes its own place, and those after it are forgotten.
    void TakeBack(quint64 frameId);

    Spectrum Apply(const Spectrum &raw);
    /// What Apply() did last.
    const AppliedCorrections &Applied() const { return m_applied; }
    /// Its spectrum before dark and reference: what can become one of them.
    const Spectrum &Averaged() const { return m_mean; }

private:
    void RemoveCosmicRays(Spectrum *spectrum);
    void Average(Spectrum *spectrum);
    void SubtractDark(Spectrum *spectrum) const;
    void ApplyReference(Spectrum *spectrum) const;
    void Smooth(Spectrum *spectrum) const;

    CorrectionSettings m_settings;
    AppliedCorrections m_applied;
    Spectrum m_dark;
    Spectrum m_reference; ///< not dark-subtracted
    Spectrum m_mean;
    std::deque<Spectrum> m_before; ///< the last ones, the newest among them, with their cosmic rays
    std::deque<Spectrum> m_averaged; ///< and a few before them, for when some are taken back
};

/// The slow background beneath lines: a running median over `reach` samples to each side, worked out again and again
/// with what stands out of it by more than noise taken down to it.
std::vector<double> Baseline(const std::vector<double> &samples, int reach);
