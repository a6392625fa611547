// SPDX-License-Identifier: GPL-3.0-or-later
#include "peakfinding.h"

#include "linepayload.h"
#include "peakfinder.h"

#include <algorithm>
#include <utility>

namespace {

bool IsPlotOf(const Spectrum &spectrum, SpectrumQuantity quantity, const unsigned int *data, int count)
{
    return spectrum.Count() == count
        && std::equal(data, data + count, spectrum.values.begin(),
                      [quantity](unsigned int plotted, double value) { return plotted == PlotValue(value, quantity); });
}

const std::vector<double> &SearchedValues(const Spectrum &spectrum)
{
    return spectrum.unsmoothed.empty() ? spectrum.values : spectrum.unsmoothed;
}

} // namespace

PeakFinding::PeakFinding(Shown shown, std::function<bool()> isImageShown, QObject *parent)
    : AlgSpectrometer(parent)
    , m_shown(std::move(shown))
    , m_isImageShown(std::move(isImageShown))
{
}

const Spectrum *PeakFinding::Drawn(const unsigned int *data, int count) const
{
    const SpectrumProduct *product = m_shown ? m_shown() : nullptr;
    if (!product)
        return nullptr;
    if (IsPlotOf(product->corrected, product->corrections.Quantity(), data, count))
        return &product->corrected;
    for (const Spectrum &track : product->tracks) {
        if (IsPlotOf(track, SpectrumQuantity::Counts, data, count))
            return &track;
    }
    return nullptr;
}

void PeakFinding::Count(size_t found, size_t marked)
{
    if (m_found == int(found) && m_marked == int(marked))
        return;
    m_found = int(found);
    m_marked = int(marked);
    emit signalCounted();
}

void PeakFinding::Findcurvepeak(unsigned int *data, int count, int peakNumber, std::vector<int> &peaks, int window, float threshold,
                                int)
{
    peaks.clear();
    if (!data || count <= 0)
        return;
    PeakRules rules;
    rules.halfWidth = window;
    rules.thousandsPerFalsePeak = double(threshold);
    const Spectrum *drawn = Drawn(data, count);
    std::vector<SpectralPeak> found = FindPeaks(drawn ? SearchedValues(*drawn) : std::vector<double>(data, data + count), rules);
    const size_t all = found.size();
    std::sort(found.begin(), found.end(), [](const SpectralPeak &a, const SpectralPeak &b) { return a.height > b.height; });
    if (peakNumber > 0)
        found.resize(std::min(found.size(), size_t(peakNumber)));
    for (const SpectralPeak &peak : found)
        peaks.push_back(peak.index);
    std::sort(peaks.begin(), peaks.end());
    if (!drawn || !m_isImageShown || !m_isImageShown())
        Count(all, peaks.size());
}
