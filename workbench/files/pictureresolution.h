// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Writes another resolution, in pixels an inch, into a TIFF, PNG, JPEG or BMP file; its samples and all else
/// that it says stay as they are. The file is replaced when its copy is whole and has been looked at. On
/// failure false: the file is as it was, and `error` says why and what to do. Any thread; takes as long as
/// copying the file.
bool SetPictureResolution(const QString &path, double dpi, QString &error);
