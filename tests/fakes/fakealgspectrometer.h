// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "algspectrometer.h"

class FakeAlgSpectrometer : public AlgSpectrometer
{
public:
    void Findcurvepeak(unsigned int *, int count, int peakNumber, std::vector<int> &, int window, float threshold, int mode) override
    {
        CallLog::Add("AlgSpectrometer::Findcurvepeak", {QString::number(count), QString::number(peakNumber), QString::number(window), QString::number(threshold), QString::number(mode)});
    }
};
