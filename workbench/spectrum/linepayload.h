// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "spectrumlinepayload.h"
#include "spectrumproduct.h"

#include <QMutex>

#include <cstdlib>
#include <memory>

/// The record behind SignalUpdateFVB() and SignalUpdateMultiTrack(), with its buffers. The plots read as many lines as
/// the track list names when they draw, each as wide as the frame is then, which may be more than was filled: so there is
/// always room for the most lines of the widest frame. The system gives memory for what was filled, no more. GUI thread.
class LinePayload
{
public:
    static constexpr int WidestFrame = 65535;

    explicit LinePayload(int mostLines);
    LinePayload(const LinePayload &) = delete;
    LinePayload &operator=(const LinePayload &) = delete;

    /// One line after another, each `width` values long; what a line has less is 0. Fills under the record's lock.
    SpectrumLinePayload *Fill(const std::vector<const Spectrum *> &lines, int width, SpectrumQuantity quantity);

private:
    struct Free
    {
        void operator()(unsigned int *values) const { std::free(values); }
    };
    using Buffer = std::unique_ptr<unsigned int[], Free>;

    static Buffer MakeBuffer(int mostLines);

    const int m_mostLines;
    QMutex m_mutex;
    Buffer m_first;
    Buffer m_second;
    SpectrumLinePayload m_record{};
};

/// A value as the plots take it: whole and not below 0; transmission and absorbance in ten-thousandths.
unsigned int PlotValue(double value, SpectrumQuantity quantity);
