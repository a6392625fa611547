// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "orientation.h"
#include "picture.h"

#include <QMetaType>

/// What was done to an opened picture. The user turns and crops what he sees; any row of such steps comes
/// down to one region of the picture as it is in the file, laid in one of the eight ways. A value; samples
/// are only looked at in Applied().
class PictureEdit
{
public:
    bool IsNone() const { return m_region.isNull() && m_orientation == Orientation(); }
    const Orientation &GetOrientation() const { return m_orientation; }
    bool IsCropped() const { return !m_region.isNull(); }

    /// After a command of the tool bar, a RotateType.
    PictureEdit Turned(int rotateType) const;
    /// Only `seen` is left, in pixels of what is seen now; `fileSize` is that of the frame in the file.
    /// Unchanged when nothing would be left.
    PictureEdit Cropped(const QRect &seen, const QSize &fileSize) const;

    /// Size of what is seen of a frame.
    QSize SeenSize(const QSize &fileSize) const;
    /// What is seen of a frame; null when the frame is too small for the region.
    Picture Applied(const Picture &frame) const;

    bool operator==(const PictureEdit &other) const
    {
        return m_region == other.m_region && m_orientation == other.m_orientation;
    }
    bool operator!=(const PictureEdit &other) const { return !(*this == other); }

private:
    QRect RegionOf(const QSize &fileSize) const;

    QRect m_region; ///< pixels of the file; null for all of them
    Orientation m_orientation;
};
Q_DECLARE_METATYPE(PictureEdit)
