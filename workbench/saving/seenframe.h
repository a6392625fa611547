// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cameraframe.h"
#include "orientation.h"

/// The frame turned and flipped as it is seen: itself, or a copy with pixels of its own.
CameraFrame SeenFrame(const CameraFrame &frame, const Orientation &orientation);
