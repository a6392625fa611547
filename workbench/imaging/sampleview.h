// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

/// Raw samples in somebody else's memory: one picture of a camera or a file. Valid as long as that memory.
struct SampleView
{
    const uchar *samples = nullptr;
    int width = 0;
    int height = 0;
    int strideBytes = 0;   ///< from one row to the next
    int bitDepth = 8;      ///< 8 to 16; more than 8 bits take a 16-bit sample in host byte order
    bool isColour = false; ///< red, green and blue, interleaved

    bool IsEmpty() const { return !samples || width <= 0 || height <= 0; }
    int SamplesPerRow() const { return width * (isColour ? 3 : 1); }
    bool Has16BitSamples() const { return bitDepth > 8; }
    const uchar *Row8(int y) const { return samples + qptrdiff(y) * strideBytes; }
    const quint16 *Row16(int y) const { return reinterpret_cast<const quint16 *>(Row8(y)); }
};
