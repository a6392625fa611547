// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "algspectrometer.h"

/// Peaks for the plots. GUI thread.
class PeakFinding : public AlgSpectrometer
{
    Q_OBJECT

public:
    explicit PeakFinding(QObject *parent = nullptr);

    /// The `peakNumber` highest peaks by rising index, all of them with 0. `window` is the half width of the widest line
    /// in samples, `threshold` how certain a peak is to be (see PeakRules), and `mode` has no meaning here.
    void Findcurvepeak(unsigned int *data, int count, int peakNumber, std::vector<int> &peaks, int window,
                       float threshold, int mode) override;
};
