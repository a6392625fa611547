// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameracaption.h"

#include "cameralink.h"

CameraCaption::CameraCaption(const CameraLink *link, QObject *parent)
    : CameraNameManager(parent)
    , m_link(link)
{
}

QString CameraCaption::GetCameraName() const
{
    return m_link->Name();
}
