// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sampleview.h"

#include <QImage>
#include <QSize>
#include <QVector>

#include <vector>

/// Frames to show in turn, so that none is drawn from a cache: random bytes, Grayscale8 or RGB888.
QVector<QImage> RandomFrames(const QSize &size, QImage::Format format);

/// A 16-bit frame as a camera sends it: the simulated specimen.
class SpecimenFrame
{
public:
    SpecimenFrame(int side, int number);

    SampleView View() const;
    size_t ByteCount() const { return m_samples.size() * sizeof(quint16); }

private:
    int m_side;
    std::vector<quint16> m_samples;
};
