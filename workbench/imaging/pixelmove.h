// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "orientation.h"

/// Rows of pixels in somebody else's memory, whatever the pixels are made of.
struct PixelRows
{
    const uchar *pixels = nullptr;
    QSize size;
    qint64 strideBytes = 0; ///< from one row to the next
    int bytesPerPixel = 1;  ///< 1, 2, 3, 4, 6, 8, 12 or 24
};

/// Lays the pixels anew into `target`, which has room for them in rows `targetStride` bytes apart.
void MovePixels(const PixelRows &source, Orientation orientation, uchar *target, qint64 targetStride);
