// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filefault.h"
#include "sampletype.h"

class FitsHeader;

/// What the header of a FITS picture says about its samples.
struct FitsLayout
{
    int width = 0;
    int height = 0;
    int frames = 0; ///< planes of a cube, all axes above the second counted together
    SampleType type = SampleType::U8;
    bool isCompressed = false;
    int storedBits = 8; ///< of a sample in the file, BITPIX; negative for floating point
    double scale = 1;   ///< sample = stored * scale + zero
    double zero = 0;
    /// The samples are those of the file but for the byte order, and for the highest bit when the
    /// usual offset stands for the other sign.
    bool isDirect = true;
    /// Frames that the file does not hold whole, though its header names them.
    int missingFrames = 0;

    qint64 FrameSamples() const { return qint64(width) * height; }
    int StoredBytes() const { return (storedBits < 0 ? -storedBits : storedBits) / 8; }
};

/// A header of a picture with pixels, plain or compressed.
bool IsFitsPicture(const FitsHeader &header);

/// Reads the layout and checks it against the file's size. Unsigned 16- and 32-bit and signed 8-bit
/// samples (integers with the usual offset) stay integers; other scaled integers become floating point.
bool ReadFitsLayout(const FitsHeader &header, qint64 fileSize, FitsLayout &layout, FileFault &fault);
