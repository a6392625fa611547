// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picturewriter.h"

#include <memory>

/// Begins a picture file in the format that its name ends in: TIFF, FITS, PNG or JPEG. On failure null,
/// and `error` says why and what to do; nothing is left behind. Any thread.
std::unique_ptr<PictureWriter> CreatePicture(const QString &path, const SaveOptions &options, QString &error);

/// Saves one frame.
bool SavePicture(const QString &path, const Picture &frame, const SaveOptions &options, QString &error);
