// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cameramanager.h"
#include "orientation.h"

#include <mutex>

/// How the live picture is laid. Changed in the GUI thread, read in the preview thread.
class LiveOrientation : public CameraManager
{
    Q_OBJECT

public:
    explicit LiveOrientation(QObject *parent = nullptr);

    Orientation Get() const;
    /// A newly opened camera starts upright.
    void Reset();

public slots:
    void slotSetMirrorRotate(int type) override;

signals:
    void signalOrientationChanged();

private:
    void Set(const Orientation &orientation);

    mutable std::mutex m_mutex;
    Orientation m_orientation;
};
