// SPDX-License-Identifier: GPL-3.0-or-later
#include "orientation.h"

#include <QImage>
#include <QTransform>

namespace {
constexpr int QuarterTurns = 4;
constexpr int DegreesPerTurn = 90;
}

void Orientation::Rotate90()
{
    m_quarterTurns = (m_quarterTurns + 1) % QuarterTurns;
}

void Orientation::FlipHorizontal()
{
    // A mirror image of a picture turned one way is its mirror image turned the other way.
    m_quarterTurns = (QuarterTurns - m_quarterTurns) % QuarterTurns;
    m_mirrored = !m_mirrored;
}

void Orientation::FlipVertical()
{
    FlipHorizontal();
    m_quarterTurns = (m_quarterTurns + 2) % QuarterTurns;
}

int Orientation::Degrees() const
{
    return m_quarterTurns * DegreesPerTurn;
}

QSize Orientation::Applied(const QSize &size) const
{
    return m_quarterTurns % 2 == 0 ? size : size.transposed();
}

QImage Orientation::Applied(const QImage &picture) const
{
    const QImage flipped = m_mirrored ? picture.mirrored(true, false) : picture;
    if (m_quarterTurns == 0)
        return flipped;
    if (m_quarterTurns == 2)
        return flipped.mirrored(true, true);
    return flipped.transformed(QTransform().rotate(Degrees()));
}

QPoint Orientation::FramePixel(const QPoint &seen, const QSize &frameSize) const
{
    const int right = frameSize.width() - 1;
    const int bottom = frameSize.height() - 1;
    QPoint pixel = seen;
    if (m_quarterTurns == 1)
        pixel = QPoint(seen.y(), bottom - seen.x());
    else if (m_quarterTurns == 2)
        pixel = QPoint(right - seen.x(), bottom - seen.y());
    else if (m_quarterTurns == 3)
        pixel = QPoint(right - seen.y(), seen.x());
    return m_mirrored ? QPoint(right - pixel.x(), pixel.y()) : pixel;
}
