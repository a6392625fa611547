// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filefault.h"
#include "sampletype.h"

#include <fitsio.h>

/// What the header of a FITS picture says about its samples.
struct FitsLayout
{
    int width = 0;
    int height = 0;
    int frames = 0; ///< planes of a cube, all axes above the second counted together
    SampleType type = SampleType::U8;
    int libraryType = TBYTE; ///< CFITSIO's code of `type`
    bool isCompressed = false;
    /// Undefined samples of the file become NaN; floating point samples that are stored as such are
    /// never looked at and keep every bit.
    bool marksUndefined = false;
    /// Frames that the file does not hold whole, though its header names them.
    int missingFrames = 0;

    qint64 FrameSamples() const { return qint64(width) * height; }
};

/// Reads the layout of the current header and checks it against the file's size. Unsigned 16- and
/// 32-bit and signed 8-bit samples (integers with the usual offset) stay integers; other scaled
/// integers become floating point.
bool ReadFitsLayout(fitsfile *fits, qint64 fileSize, FitsLayout &layout, FileFault &fault);
