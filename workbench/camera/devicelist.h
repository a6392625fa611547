// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "camerainfo.h"

/// The cameras that Aravis reaches now, the simulated one included. Blocks for about one second while GigE cameras
/// answer: never call it in the GUI thread. May be called from several threads.
QVector<CameraInfo> ReadDeviceList();

/// The simulated camera, which is always there; asks nobody.
CameraInfo SimulatedCameraInfo();
bool IsSimulatedCamera(const QString &id);
