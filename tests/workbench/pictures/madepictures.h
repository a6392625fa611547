// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picture.h"

#include <QString>

/// Pictures whose samples tell where they are, and files of them.
namespace MadePictures {

/// 1000 * frame + 20 * y + x, for frames of up to 20 columns.
int Value(int x, int y, int frame);
/// Unsigned 16 bit.
Picture Numbered(const QSize &size, int frame = 0);
/// A file of numbered frames, in the format that its name ends in.
void Write(const QString &path, const QSize &size, int frames = 1);
void WriteBytes(const QString &path, const QByteArray &bytes);
/// The samples of a frame of a file; null when it cannot be read.
Picture Read(const QString &path, int frame = 0);
int Frames(const QString &path);

} // namespace MadePictures
