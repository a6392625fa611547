// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumcorrections.h"

#include "runningmedian.h"
#include "savitzkygolay.h"
#include "spectrumnoise.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

/// A cosmic ray stands out from the spectra before and by more than noise and flicker explain.
constexpr double rayDeviations = 8;
constexpr double rayShare = 0.05;
/// When more than that share of the samples jumps the light has changed.
constexpr double mostRayShare = 0.05;
/// The screen is a few frames behind when one is taken back: so many are remembered beyond those that are used.
constexpr size_t spare = 4;
constexpr size_t compared = 2; ///< before the newest, for cosmic rays

void AddFlags(const std::vector<quint8> &others, std::vector<quint8> *flags)
{
    for (size_t i = 0; i < std::min(flags->size(), others.size()); ++i)
        (*flags)[i] |= others[i];
}

bool IsOf(const Spectrum &reference, const Spectrum &spectrum)
{
    return spectrum.Count() > 0 && reference.Count() == spectrum.Count() && reference.place == spectrum.place;
}

/// Cameras round what they are told.
bool AreOtherExposures(double oneUs, double otherUs)
{
    constexpr double rounding = 1e-3;
    return oneUs > 0 && otherUs > 0 && std::abs(oneUs - otherUs) > rounding * std::max(oneUs, otherUs);
}

/// With those after it: it becomes the newest.
void TakeBackOf(std::deque<Spectrum> *spectra, quint64 frameId)
{
    const auto isIt = [frameId](const Spectrum &one) { return one.frameId == frameId; };
    const auto found = std::find_if(spectra->rbegin(), spectra->rend(), isIt);
    if (found != spectra->rend())
        spectra->erase(std::prev(found.base()), spectra->end());
}

double MiddleOf(double a, double b, double c)
{
    return std::max(std::min(a, b), std::min(std::max(a, b), c));
}

} // namespace

void SpectrumCorrections::SetSettings(const CorrectionSettings &settings)
{
    m_settings = settings;
    m_settings.averaged = std::max(1, settings.averaged);
}

void SpectrumCorrections::Restart()
{
    m_before.clear();
    m_averaged.clear();
}

void SpectrumCorrections::TakeBack(quint64 frameId)
{
    TakeBackOf(&m_before, frameId);
    TakeBackOf(&m_averaged, frameId);
}

Spectrum SpectrumCorrections::Apply(const Spectrum &raw)
{
    if (m_mean.place != raw.place || m_mean.Count() != raw.Count() || AreOtherExposures(m_mean.exposureUs, raw.exposureUs))
        Restart();
    m_mean = raw;
    RemoveCosmicRays(&m_mean);
    Average(&m_mean);
    m_applied.wanted = m_settings;
    m_applied.averaged = std::max(1, std::min(int(m_averaged.size()), m_settings.averaged));
    m_applied.hasDark = IsOf(m_dark, raw);
    m_applied.hasReference = IsOf(m_reference, raw);
    m_applied.isDarkOfOtherExposure = m_applied.hasDark && AreOtherExposures(m_dark.exposureUs, raw.exposureUs);

    Spectrum spectrum = m_mean;
    SubtractDark(&spectrum);
    ApplyReference(&spectrum);
    if (m_settings.removesBaseline) {
        const std::vector<double> baseline = Baseline(spectrum.values, BaselineReach);
        for (size_t i = 0; i < baseline.size(); ++i)
            spectrum.values[i] -= baseline[i];
    }
    Smooth(&spectrum);
    return spectrum;
}

/// What is in one spectrum and not in the two before is no light of the sample. They are remembered with what was taken
/// from them: light that stays is in them by the next one.
void SpectrumCorrections::RemoveCosmicRays(Spectrum *spectrum)
{
    if (!m_settings.removesCosmicRays) {
        m_before.clear();
        return;
    }
    const Spectrum raw = *spectrum;
    std::vector<double> *values = &spectrum->values;
    if (m_before.size() >= compared) {
        const std::vector<double> &one = m_before[m_before.size() - 2].values;
        const std::vector<double> &other = m_before.back().values;
        std::vector<double> above(values->size());
        for (size_t i = 0; i < above.size(); ++i)
            above[i] = (*values)[i] - MiddleOf((*values)[i], one[i], other[i]);
        std::vector<double> change(values->size());
        for (size_t i = 0; i < change.size(); ++i)
            change[i] = std::abs(other[i] - one[i]);
        const double noise = 1.4826 * MedianOf(change);
        std::vector<size_t> rays;
        for (size_t i = 0; i < above.size(); ++i) {
            if (above[i] > rayDeviations * noise && above[i] > rayShare * std::abs((*values)[i] - above[i]))
                rays.push_back(i);
        }
        if (double(rays.size()) <= mostRayShare * double(values->size())) {
            for (const size_t i : rays)
                (*values)[i] -= above[i];
        }
    }
    m_before.push_back(raw);
    if (m_before.size() > compared + spare)
        m_before.pop_front();
}

void SpectrumCorrections::Average(Spectrum *spectrum)
{
    if (m_settings.averaged < 2) {
        m_averaged.clear();
        return;
    }
    m_averaged.push_back(*spectrum);
    const size_t most = size_t(m_settings.averaged);
    while (m_averaged.size() > most + spare)
        m_averaged.pop_front();
    const auto newest = m_averaged.end() - std::ptrdiff_t(std::min(most, m_averaged.size()));
    const double count = double(m_averaged.end() - newest);
    for (size_t i = 0; i < spectrum->values.size(); ++i) {
        double sum = 0;
        for (auto one = newest; one != m_averaged.end(); ++one)
            sum += one->values[i];
        spectrum->values[i] = sum / count;
    }
    for (auto one = newest; one != m_averaged.end(); ++one)
        AddFlags(one->saturated, &spectrum->saturated);
}

void SpectrumCorrections::SubtractDark(Spectrum *spectrum) const
{
    if (!m_applied.IsDarkSubtracted())
        return;
    for (size_t i = 0; i < spectrum->values.size(); ++i)
        spectrum->values[i] -= m_dark.values[i];
    AddFlags(m_dark.saturated, &spectrum->saturated);
}

void SpectrumCorrections::ApplyReference(Spectrum *spectrum) const
{
    if (!m_applied.hasReference || !m_applied.IsReferenceWanted())
        return;
    const bool isDark = m_applied.IsDarkSubtracted();
    for (size_t i = 0; i < spectrum->values.size(); ++i) {
        double &value = spectrum->values[i];
        const double reference = m_reference.values[i] - (isDark ? m_dark.values[i] : 0);
        if (m_settings.quantity == SpectrumQuantity::Counts) {
            value -= reference;
            continue;
        }
        const double transmission = reference > 0 ? value / reference : 0;
        value = transmission;
        if (m_settings.quantity == SpectrumQuantity::Absorbance)
            value = transmission > 0 ? std::min(MostAbsorbance, -std::log10(transmission)) : MostAbsorbance;
    }
    AddFlags(m_reference.saturated, &spectrum->saturated);
}

/// A sample that is cut off goes into each value of its window.
void SpectrumCorrections::Smooth(Spectrum *spectrum) const
{
    if (m_settings.smoothing < 3)
        return;
    spectrum->unsmoothed = SavitzkyGolay(spectrum->values, m_settings.smoothing, std::min(SmoothingDegree, m_settings.smoothing - 1));
    spectrum->values.swap(spectrum->unsmoothed);
    const int reach = m_settings.smoothing / 2;
    const std::vector<quint8> flags = spectrum->saturated;
    for (int i = 0; i < int(flags.size()); ++i) {
        if (flags[size_t(i)])
            std::fill(spectrum->saturated.begin() + std::max(0, i - reach),
                      spectrum->saturated.begin() + std::min(int(flags.size()), i + reach + 1), quint8(1));
    }
}

std::vector<double> Baseline(const std::vector<double> &samples, int reach)
{
    constexpr int rounds = 4;
    constexpr double clippedDeviations = 2.5;
    const double most = clippedDeviations * EstimateNoise(samples);
    std::vector<double> clipped = samples;
    std::vector<double> baseline = RunningMedian(clipped, reach);
    for (int round = 1; round < rounds; ++round) {
        for (size_t i = 0; i < clipped.size(); ++i)
            clipped[i] = clipped[i] > baseline[i] + most ? baseline[i] : clipped[i];
        baseline = RunningMedian(clipped, reach);
    }
    return baseline;
}
