// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "algspectrometer.h"

#include <functional>
#include <vector>

struct SpectrumProduct;

/// Peaks for the plots. GUI thread.
class PeakFinding : public AlgSpectrometer
{
    Q_OBJECT

public:
    /// Gives what is being drawn; null when that is nothing that was made of frames.
    using Shown = std::function<const SpectrumProduct *()>;

    explicit PeakFinding(Shown shown = {}, QObject *parent = nullptr);

    /// The `peakNumber` highest peaks by rising index, all of them with 0. `window` is the half width of the widest line
    /// in samples, `threshold` the thousands of spectra of noise that share one false peak (see PeakRules), and `mode` has
    /// no meaning here. The plots get values cut at 0: when `data` is the spectrum shown, peaks are looked for in its
    /// values as they were before that and before they were smoothed.
    void Findcurvepeak(unsigned int *data, int count, int peakNumber, std::vector<int> &peaks, int window,
                       float threshold, int mode) override;

private:
    std::vector<double> Uncut(const unsigned int *data, int count) const;

    const Shown m_shown;
};
