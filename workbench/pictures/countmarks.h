// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

class Picture;

/// The picture of the screen with the outlines of its objects: their pixels that touch another object or none. `labels`
/// has the number of its object for each pixel, unsigned 32 bit, 0 for none. Null without memory for it.
QImage WithOutlines(const QImage &image, const Picture &labels);
