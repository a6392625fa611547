// SPDX-License-Identifier: GPL-3.0-or-later
#include "liveorientation.h"

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
    const Orientation orientation = Get().After(type);
    if (orientation != Get())
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
