// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QSize>

class QImage;

/// One of the eight ways to lay a picture: first mirrored left to right or not, then turned
/// clockwise by quarters. A value; the commands act on the picture as it is seen.
class Orientation
{
public:
    void Rotate90();
    void FlipHorizontal();
    void FlipVertical();

    int Degrees() const;
    bool IsMirrored() const { return m_mirrored; }
    bool IsUpright() const { return !m_mirrored && m_quarterTurns == 0; }

    /// A picture of this size after it was laid so.
    QSize Applied(const QSize &size) const;
    QImage Applied(const QImage &picture) const;
    /// The pixel of a frame of `frameSize` that is seen at `seen`.
    QPoint FramePixel(const QPoint &seen, const QSize &frameSize) const;

private:
    bool m_mirrored = false;
    int m_quarterTurns = 0;
};
