// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "orientation.h"

#include <QImage>

/// A picture for the screen (Grayscale8 or RGB888) laid anew; null without memory for it.
QImage OrientedImage(const QImage &image, Orientation orientation);
