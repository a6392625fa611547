// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "spectrumlinepayload.h"
#include "spectrumproduct.h"

#include <QMutex>

/// The record behind SignalUpdateFVB() and SignalUpdateMultiTrack(), with its buffers. They have room for the widest
/// frame there is, so that a plot that already knows of a wider frame reads nothing that is not there. GUI thread.
class LinePayload
{
public:
    static constexpr int WidestFrame = 65535;

    LinePayload() = default;
    LinePayload(const LinePayload &) = delete;
    LinePayload &operator=(const LinePayload &) = delete;

    /// One line after another, each `width` values long; what a line has less is 0. Fills under the record's lock.
    SpectrumLinePayload *Fill(const std::vector<const Spectrum *> &lines, int width, SpectrumQuantity quantity);

private:
    QMutex m_mutex;
    std::vector<unsigned int> m_first;
    std::vector<unsigned int> m_second;
    SpectrumLinePayload m_record{};
};

/// A value as the plots take it: whole and not below 0; transmission and absorbance in ten-thousandths.
unsigned int PlotValue(double value, SpectrumQuantity quantity);
