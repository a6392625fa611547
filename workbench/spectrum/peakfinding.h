// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "algspectrometer.h"

/// Spectrometer algorithms. Finds no peaks yet. GUI thread.
class PeakFinding : public AlgSpectrometer
{
    Q_OBJECT

public:
    explicit PeakFinding(QObject *parent = nullptr);

    void Findcurvepeak(unsigned int *data, int count, int peakNumber, std::vector<int> &peaks, int window,
                       float threshold, int mode) override;
};
