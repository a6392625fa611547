// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarkframes.h"

#include "specimenscene.h"

#include <QRandomGenerator>

namespace {
constexpr int FrameCount = 4;
constexpr quint32 Seed = 1;
} // namespace

QVector<QImage> RandomFrames(const QSize &size, QImage::Format format)
{
    QVector<QImage> frames;
    QRandomGenerator random(Seed);
    for (int i = 0; i < FrameCount; ++i) {
        QImage frame(size, format);
        random.fillRange(reinterpret_cast<quint32 *>(frame.bits()), frame.sizeInBytes() / 4);
        frames << frame;
    }
    return frames;
}

SpecimenFrame::SpecimenFrame(int side, int number)
    : m_side(side)
    , m_samples(size_t(side) * size_t(side))
{
    SceneFrame frame;
    frame.pixels = reinterpret_cast<uchar *>(m_samples.data());
    frame.width = frame.height = frame.sensorWidth = frame.sensorHeight = side;
    frame.strideBytes = side * int(sizeof(quint16));
    frame.bitDepth = 16;
    frame.frameNumber = quint64(number);
    SpecimenScene(Seed).Fill(frame);
}

SampleView SpecimenFrame::View() const
{
    SampleView view;
    view.samples = reinterpret_cast<const uchar *>(m_samples.data());
    view.width = m_side;
    view.height = m_side;
    view.strideBytes = m_side * int(sizeof(quint16));
    view.bitDepth = 16;
    return view;
}
