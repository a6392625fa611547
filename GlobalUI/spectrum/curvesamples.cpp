// SPDX-License-Identifier: GPL-3.0-or-later
#include "curvesamples.h"

#include "spectrumuimanager.h"

#include <algorithm>
#include <cmath>

double CurveSamples::PixelToX(int pixel)
{
    double x = pixel;
    const bool converted = SpectrumUIManager::GetInstance()->Calculate(pixel, x);
    return converted && std::isfinite(x) ? x : pixel;
}

template <typename Sample>
void CurveSamples::AssignSamples(const Sample *data, int count, double factor)
{
    Clear();
    m_factor = factor;
    m_x.reserve(count);
    m_values.reserve(count);
    m_byX.reserve(size_t(count));
    for (int i = 0; i < count; ++i) {
        m_x.append(PixelToX(i));
        m_values.append(data[i] / factor);
        m_byX.emplace_back(m_x.last(), m_values.last());
    }
    const auto extremes = std::minmax_element(data, data + count);
    m_minimum = *extremes.first / factor;
    m_maximum = *extremes.second / factor;
    m_ends = QCPRange(PixelToX(0), PixelToX(count)); // turned around where x falls

    // Where two pixels have one x, the later one counts.
    const auto lessX = [](const auto &a, const auto &b) { return a.first < b.first; };
    const auto sameX = [](const auto &a, const auto &b) { return a.first == b.first; };
    if (!std::is_sorted(m_byX.begin(), m_byX.end(), lessX))
        std::stable_sort(m_byX.begin(), m_byX.end(), lessX);
    const auto kept = std::unique(m_byX.rbegin(), m_byX.rend(), sameX);
    m_byX.erase(m_byX.begin(), kept.base());
}

template void CurveSamples::AssignSamples(const unsigned int *data, int count, double factor);
template void CurveSamples::AssignSamples(const int *data, int count, double factor);

void CurveSamples::Clear()
{
    m_x.clear();
    m_values.clear();
    m_byX.clear();
    m_minimum = m_maximum = 0.0;
}

double CurveSamples::TracerValue(double x) const
{
    int low = -1;
    int high = int(m_byX.size()) - 1;
    while (low < high) {
        const int middle = (high + 1 + low) / 2;
        if (x >= m_byX[size_t(middle)].first)
            low = middle + 1;
        else
            high = middle - 1;
    }
    if (low == -1)
        return 0.0;
    // Right of the last sample the search ends one behind it.
    return m_byX[std::min(size_t(low), m_byX.size() - 1)].second;
}
