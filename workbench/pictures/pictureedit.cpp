// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictureedit.h"

#include "picturegeometry.h"

PictureEdit PictureEdit::Turned(int rotateType) const
{
    PictureEdit edit = *this;
    edit.m_orientation = m_orientation.After(rotateType);
    return edit;
}

PictureEdit PictureEdit::Cropped(const QRect &seen, const QSize &fileSize) const
{
    const QSize seenSize = SeenSize(fileSize);
    const QRect left = seen & QRect(QPoint(0, 0), seenSize);
    if (left.isEmpty() || left.size() == seenSize)
        return *this;
    PictureEdit edit = *this;
    edit.m_region = m_orientation.Inverse().Map(left, seenSize).translated(RegionOf(fileSize).topLeft());
    return edit;
}

QRect PictureEdit::RegionOf(const QSize &fileSize) const
{
    const QRect whole(QPoint(0, 0), fileSize);
    return m_region.isNull() ? whole : m_region & whole;
}

QSize PictureEdit::SeenSize(const QSize &fileSize) const
{
    return m_orientation.Map(RegionOf(fileSize).size());
}

Picture PictureEdit::Applied(const Picture &frame) const
{
    return Oriented(::Cropped(frame, RegionOf(frame.Size())), m_orientation);
}
