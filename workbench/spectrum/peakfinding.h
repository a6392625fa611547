// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "algspectrometer.h"

#include <functional>
#include <vector>

struct Spectrum;
struct SpectrumProduct;

/// Peaks for the plots. GUI thread.
class PeakFinding : public AlgSpectrometer
{
    Q_OBJECT

public:
    /// Gives what is being drawn; null when that is nothing that was made of frames.
    using Shown = std::function<const SpectrumProduct *()>;

    /// `isImageShown` says that an opened picture is on the screen: what the camera's page draws then is not counted.
    explicit PeakFinding(Shown shown = {}, std::function<bool()> isImageShown = {}, QObject *parent = nullptr);

    /// In the curve on the screen: all of them, and those that are marked.
    int Found() const { return m_found; }
    int Marked() const { return m_marked; }

    /// The `peakNumber` highest peaks by rising index, all of them with 0. `window` is the half width of the widest line
    /// in samples, `threshold` the thousands of spectra of noise that share one false peak (see PeakRules), and `mode` has
    /// no meaning here. The plots get values cut at 0: when `data` is the spectrum shown, peaks are looked for in its
    /// values as they were before that and before they were smoothed.
    void Findcurvepeak(unsigned int *data, int count, int peakNumber, std::vector<int> &peaks, int window,
                       float threshold, int mode) override;

signals:
    /// Found() or Marked() is another.
    void signalCounted();

private:
    /// Which of those that were made of frames is being drawn; null when none is.
    const Spectrum *Drawn(const unsigned int *data, int count) const;
    void Count(size_t found, size_t marked);

    const Shown m_shown;
    const std::function<bool()> m_isImageShown;
    int m_found = 0;
    int m_marked = 0;
};
