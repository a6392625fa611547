// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class Picture;
class QPoint;

/// The samples of one pixel as measured: "123", "-0.6815", "nan", or "(r, g, b)"; empty outside of the
/// picture.
QString PixelText(const Picture &picture, const QPoint &pixel);
