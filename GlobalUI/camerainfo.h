// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/// What is known of the open camera, as label, value, label, value…; without a camera it says so.
QStringList CameraInfo();
