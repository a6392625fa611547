// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "algspectrometer.h"

class FakeAlgSpectrometer : public AlgSpectrometer
{
public:
    std::vector<int> foundPeaks;
    std::vector<unsigned int> askedSamples; ///< of the last call

    void Findcurvepeak(unsigned int *data, int count, int peakNumber, std::vector<int> &peaks, int window, float threshold, int mode) override
    {
        peaks = foundPeaks;
        askedSamples.assign(data, data + count);
        CallLog::Add("AlgSpectrometer::Findcurvepeak", {QString::number(count), QString::number(peakNumber), QString::number(window), QString::number(threshold), QString::number(mode)});
    }
};
