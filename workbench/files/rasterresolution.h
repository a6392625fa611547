// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filefault.h"
#include "pictureformat.h"

class QFile;

/// Copies a PNG, JPEG or BMP file with another resolution: the pHYs chunk, the JFIF header, or the pixels to
/// the metre. All other bytes stay. Any thread.
bool CopyWithResolution(QFile &from, QFile &to, PictureFormat format, double dpi, FileFault &fault);
