// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cameranamemanager.h"

class CameraLink;

/// The name under which the camera in use is shown; empty without one. GUI thread.
class CameraCaption : public CameraNameManager
{
    Q_OBJECT

public:
    /// `link` is borrowed and outlives this object.
    explicit CameraCaption(const CameraLink *link, QObject *parent = nullptr);

    QString GetCameraName() const override;

private:
    const CameraLink *m_link;
};
