// SPDX-License-Identifier: GPL-3.0-or-later
#include "liveorientation.h"

#include "viewcodes.h"

LiveOrientation::LiveOrientation(QObject *parent)
    : CameraManager(parent)
{
}

Orientation LiveOrientation::Get() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_orientation;
}

void LiveOrientation::Reset()
{
    Set(Orientation());
}

void LiveOrientation::slotSetMirrorRotate(int type)
{
    Orientation orientation = Get();
    switch (type) {
    case RotateBy90:
        orientation.Rotate90();
        break;
    case FlipHorizontal:
        orientation.FlipHorizontal();
        break;
    case FlipVertical:
        orientation.FlipVertical();
        break;
    default:
        return;
    }
    Set(orientation);
}

void LiveOrientation::Set(const Orientation &orientation)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_orientation = orientation;
    }
    emit signalOrientationChanged();
    emit signalUpdateRotateDegree(orientation.Degrees());
}
