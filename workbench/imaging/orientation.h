// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

/// One of the eight ways to lay a picture on the screen: flipped left to right or not, and then rotated
/// clockwise by quarter turns. Each step of the user (rotate, flip) gives a new orientation of what he
/// sees, so any row of steps is again one of the eight. Places and sizes are in picture pixels.
class Orientation
{
public:
    Orientation() = default;
    Orientation(bool isFlipped, int quarterTurns);

    bool IsFlipped() const { return m_isFlipped; }
    /// Clockwise, 0 to 3.
    int QuarterTurns() const { return m_quarterTurns; }
    /// The same, clockwise: 0, 90, 180 or 270.
    int Degrees() const { return m_quarterTurns * 90; }
    bool SwapsSides() const { return m_quarterTurns % 2 != 0; }

    Orientation RotatedRight() const { return Orientation(m_isFlipped, m_quarterTurns + 1); }
    Orientation RotatedLeft() const { return Orientation(m_isFlipped, m_quarterTurns + 3); }
    /// Left becomes right, as seen now.
    Orientation FlippedHorizontally() const { return Orientation(!m_isFlipped, 4 - m_quarterTurns); }
    /// Top becomes bottom, as seen now.
    Orientation FlippedVertically() const { return Orientation(!m_isFlipped, 6 - m_quarterTurns); }
    /// After a command of the tool bar, a RotateType.
    Orientation After(int rotateType) const;
    /// Leads from the turned picture back to the samples as they were measured.
    Orientation Inverse() const;

    QSize Map(const QSize &size) const { return SwapsSides() ? size.transposed() : size; }
    /// Where a pixel of a picture of `size` comes to lie.
    QPoint Map(const QPoint &pixel, const QSize &size) const;
    QRect Map(const QRect &region, const QSize &size) const;

    bool operator==(const Orientation &other) const
    {
        return m_isFlipped == other.m_isFlipped && m_quarterTurns == other.m_quarterTurns;
    }
    bool operator!=(const Orientation &other) const { return !(*this == other); }

private:
    bool m_isFlipped = false;
    int m_quarterTurns = 0;
};
