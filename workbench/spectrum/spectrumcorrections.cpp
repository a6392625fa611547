// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumcorrections.h"

#include "runningmedian.h"
#include "savitzkygolay.h"
#include "spectrumnoise.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

/// A cosmic ray stands out from the spectra before and by more than noise and flicker explain.
constexpr double rayDeviations = 8;
constexpr double rayShare = 0.05;
/// When more than that share of the samples jumps the light has changed.
constexpr double mostRayShare = 0.05;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(SpectrumCorrections)
};

double MiddleOf(double a, double b, double c)
{
    return std::max(std::min(a, b), std::min(std::max(a, b), c));
}

} // namespace

bool CorrectionSettings::operator==(const CorrectionSettings &other) const
{
    return removesCosmicRays == other.removesCosmicRays && averaged == other.averaged && subtractsDark == other.subtractsDark
        && subtractsReference == other.subtractsReference && quantity == other.quantity && removesBaseline == other.removesBaseline
        && smoothing == other.smoothing;
}

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

Spectrum SpectrumCorrections::Apply(const Spectrum &raw)
{
    Spectrum spectrum = raw;
    if ((!m_averaged.empty() && m_averaged.front().Count() != raw.Count())
        || (!m_before.empty() && m_before.front().size() != raw.values.size()))
        Restart();
    RemoveCosmicRays(&spectrum.values);
    Average(&spectrum);
    if (m_settings.subtractsDark && HasDark(spectrum.Count())) {
        for (size_t i = 0; i < m_dark.size(); ++i)
            spectrum.values[i] -= m_dark[i];
    }
    ApplyReference(&spectrum.values);
    if (m_settings.removesBaseline) {
        const std::vector<double> baseline = Baseline(spectrum.values, BaselineReach);
        for (size_t i = 0; i < baseline.size(); ++i)
            spectrum.values[i] -= baseline[i];
    }
    if (m_settings.smoothing >= 3) {
        spectrum.unsmoothed = SavitzkyGolay(spectrum.values, m_settings.smoothing, std::min(SmoothingDegree, m_settings.smoothing - 1));
        spectrum.values.swap(spectrum.unsmoothed);
    }
    return spectrum;
}

/// What is in one spectrum and not in the two before is no light of the sample.
void SpectrumCorrections::RemoveCosmicRays(std::vector<double> *values)
{
    if (!m_settings.removesCosmicRays) {
        m_before.clear();
        return;
    }
    if (m_before.size() == 2) {
        std::vector<double> above(values->size());
        for (size_t i = 0; i < above.size(); ++i)
            above[i] = (*values)[i] - MiddleOf((*values)[i], m_before[0][i], m_before[1][i]);
        std::vector<double> change(values->size());
        for (size_t i = 0; i < change.size(); ++i)
            change[i] = std::abs(m_before[1][i] - m_before[0][i]);
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
        m_before.pop_front();
    }
    m_before.push_back(*values);
}

void SpectrumCorrections::Average(Spectrum *spectrum)
{
    if (m_settings.averaged < 2) {
        m_averaged.clear();
        return;
    }
    m_averaged.push_back(*spectrum);
    while (int(m_averaged.size()) > m_settings.averaged)
        m_averaged.pop_front();
    for (size_t i = 0; i < spectrum->values.size(); ++i) {
        double sum = 0;
        quint8 saturated = 0;
        for (const Spectrum &one : m_averaged) {
            sum += one.values[i];
            saturated |= one.saturated[i];
        }
        spectrum->values[i] = sum / double(m_averaged.size());
        spectrum->saturated[i] = saturated;
    }
}

void SpectrumCorrections::ApplyReference(std::vector<double> *values) const
{
    const int count = int(values->size());
    if (!HasReference(count))
        return;
    const bool isDark = m_settings.subtractsDark && HasDark(count);
    for (size_t i = 0; i < values->size(); ++i) {
        double &value = (*values)[i];
        const double reference = m_reference[i] - (isDark ? m_dark[i] : 0);
        if (m_settings.quantity == SpectrumQuantity::Counts) {
            value -= m_settings.subtractsReference ? reference : 0;
            continue;
        }
        const double transmission = reference > 0 ? value / reference : 0;
        value = transmission;
        if (m_settings.quantity == SpectrumQuantity::Absorbance)
            value = transmission > 0 ? std::min(MostAbsorbance, -std::log10(transmission)) : MostAbsorbance;
    }
}

QString SpectrumCorrections::Description(int count) const
{
    QStringList parts;
    if (m_settings.removesCosmicRays)
        parts << Text::tr("cosmic rays removed");
    if (m_settings.averaged > 1)
        parts << Text::tr("average of %1").arg(m_settings.averaged);
    if (m_settings.subtractsDark)
        parts << (HasDark(count) ? Text::tr("dark subtracted") : Text::tr("no dark spectrum of this width to subtract"));
    const bool wantsReference = m_settings.subtractsReference || m_settings.quantity != SpectrumQuantity::Counts;
    if (wantsReference && !HasReference(count))
        parts << Text::tr("no reference spectrum of this width");
    else if (m_settings.quantity == SpectrumQuantity::Transmission)
        parts << Text::tr("transmission in 1/100 %");
    else if (m_settings.quantity == SpectrumQuantity::Absorbance)
        parts << Text::tr("absorbance in 1/10000");
    else if (m_settings.subtractsReference)
        parts << Text::tr("reference subtracted");
    if (m_settings.removesBaseline)
        parts << Text::tr("baseline removed");
    if (m_settings.smoothing >= 3)
        parts << Text::tr("smoothed over %1 samples").arg(m_settings.smoothing / 2 * 2 + 1);
    return parts.isEmpty() ? Text::tr("No correction is on.") : Text::tr("Corrections: %1.").arg(parts.join(Text::tr(", ")));
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
