// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QtGlobal>

#include <deque>
#include <vector>

/// What the values of a spectrum mean.
enum class SpectrumQuantity
{
    Counts,
    Transmission, ///< (sample - dark) / (reference - dark)
    Absorbance    ///< minus the decimal logarithm of that
};

/// One spectrum with all that was done to it.
struct Spectrum
{
    std::vector<double> values;
    std::vector<quint8> saturated; ///< 1 where a pixel of the sum was at the end of its range
    quint64 frameId = 0;
    /// The values before they were smoothed; empty when they were not. Smoothed noise is no longer that of each sample
    /// for itself: peaks are looked for in these.
    std::vector<double> unsmoothed = {};

    int Count() const { return int(values.size()); }
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

/// Corrects spectra one after another, for one thread. A correction that lacks its dark or reference spectrum, or has
/// one of another width, is left out, and Description() says so.
class SpectrumCorrections
{
public:
    static constexpr int SmoothingDegree = 3;
    static constexpr int BaselineReach = 120; ///< samples to each side; a line must fill less than half of them to stay
    /// Absorbance of less light than can be told from none.
    static constexpr double MostAbsorbance = 6.0;

    void SetSettings(const CorrectionSettings &settings);
    const CorrectionSettings &Settings() const { return m_settings; }
    void SetDark(const std::vector<double> &dark) { m_dark = dark; }
    void SetReference(const std::vector<double> &reference) { m_reference = reference; }
    /// Forgets the spectra before: the next one has nothing to do with them.
    void Restart();

    Spectrum Apply(const Spectrum &raw);
    /// One sentence: which corrections are on for spectra of `count` samples.
    QString Description(int count) const;

private:
    bool HasDark(int count) const { return count > 0 && int(m_dark.size()) == count; }
    bool HasReference(int count) const { return count > 0 && int(m_reference.size()) == count; }
    void RemoveCosmicRays(std::vector<double> *values);
    void Average(Spectrum *spectrum);
    void ApplyReference(std::vector<double> *values) const;

    CorrectionSettings m_settings;
    std::vector<double> m_dark;
    std::vector<double> m_reference; ///< not dark-subtracted
    std::deque<std::vector<double>> m_before; ///< the last two, for cosmic rays
    std::deque<Spectrum> m_averaged;
};

/// The slow background beneath lines: a running median over `reach` samples to each side, worked out again and again
/// with what stands out of it by more than noise taken down to it.
std::vector<double> Baseline(const std::vector<double> &samples, int reach);
