// SPDX-License-Identifier: GPL-3.0-or-later
#include "orientation.h"

#include "viewcodes.h"

Orientation::Orientation(bool isFlipped, int quarterTurns)
    : m_isFlipped(isFlipped)
    , m_quarterTurns(quarterTurns % 4)
{
}

Orientation Orientation::After(int rotateType) const
{
    switch (rotateType) {
    case RotateBy90: return RotatedRight();
    case FlipHorizontal: return FlippedHorizontally();
    case FlipVertical: return FlippedVertically();
    default: return *this;
    }
}

Orientation Orientation::Inverse() const
{
    // A flip that is followed by a rotation undoes itself.
    return m_isFlipped ? *this : Orientation(false, 4 - m_quarterTurns);
}

QPoint Orientation::Map(const QPoint &pixel, const QSize &size) const
{
    const int right = size.width() - 1;
    const int bottom = size.height() - 1;
    const int x = m_isFlipped ? right - pixel.x() : pixel.x();
    const int y = pixel.y();
    switch (m_quarterTurns) {
    case 1: return QPoint(bottom - y, x);
    case 2: return QPoint(right - x, bottom - y);
    case 3: return QPoint(y, right - x);
    default: return QPoint(x, y);
    }
}

QRect Orientation::Map(const QRect &region, const QSize &size) const
{
    if (region.isEmpty())
        return QRect();
    const QPoint one = Map(region.topLeft(), size);
    const QPoint other = Map(region.bottomRight(), size);
    return QRect(QPoint(qMin(one.x(), other.x()), qMin(one.y(), other.y())),
                 QPoint(qMax(one.x(), other.x()), qMax(one.y(), other.y())));
}
