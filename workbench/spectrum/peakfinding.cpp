// SPDX-License-Identifier: GPL-3.0-or-later
#include "peakfinding.h"

#include "peakfinder.h"

#include <algorithm>

PeakFinding::PeakFinding(QObject *parent)
    : AlgSpectrometer(parent)
{
}

void PeakFinding::Findcurvepeak(unsigned int *data, int count, int peakNumber, std::vector<int> &peaks, int window, float threshold,
                                int)
{
    peaks.clear();
    if (!data || count <= 0)
        return;
    PeakRules rules;
    rules.halfWidth = window;
    rules.certainty = double(threshold);
    std::vector<SpectralPeak> found = FindPeaks(std::vector<double>(data, data + count), rules);
    std::sort(found.begin(), found.end(), [](const SpectralPeak &a, const SpectralPeak &b) { return a.height > b.height; });
    if (peakNumber > 0)
        found.resize(std::min(found.size(), size_t(peakNumber)));
    for (const SpectralPeak &peak : found)
        peaks.push_back(peak.index);
    std::sort(peaks.begin(), peaks.end());
}
