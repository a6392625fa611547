// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sampleview.h"

#include <QSize>
#include <vector>

/// A picture of random samples in memory of its own, the same at every run.
class RandomSamples
{
public:
    RandomSamples(QSize size, int bitDepth, bool isColour, quint32 seed);

    /// Rows are longer than their samples, as padded camera rows are.
    SampleView View() const;
    int At(int x, int y, int channel = 0) const;
    void Set(int x, int y, int value);
    /// All samples, in no special order.
    std::vector<int> Values() const;

private:
    size_t Index(int x, int y, int channel) const;

    SampleView m_shape;
    int m_rowSamples;
    std::vector<quint8> m_samples8;
    std::vector<quint16> m_samples16;
};
