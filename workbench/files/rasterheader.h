// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filefault.h"
#include "pictureformat.h"
#include "sampletype.h"

#include <QSize>

class QFile;

/// What the header of a PNG, JPEG or BMP file says, read without decoding.
struct RasterHeader
{
    QSize size;
    int channels = 3; ///< 1 for grey, also for a BMP palette of greys
    SampleType type = SampleType::U8;
    double dpiX = 0; ///< pixels an inch; 0 when the file does not say
    double dpiY = 0;
};

/// Walks the parts of the file, so that a file that was cut short or that claims more pixels than its
/// bytes can hold is found before any memory is taken for it.
bool ReadRasterHeader(QFile &file, PictureFormat format, RasterHeader &header, FileFault &fault);
