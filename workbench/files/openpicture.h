// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picturefile.h"

#include <memory>

/// Opens a TIFF, FITS, PNG, JPEG, BMP or SPE file by its content, whatever its name says (a wrong ending is
/// told in Info().warning). Nothing is decoded. On failure null, and `error` says what is wrong with
/// which file, where, and what to do. Any thread.
std::unique_ptr<PictureFile> OpenPicture(const QString &path, QString &error);
