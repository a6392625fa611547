// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picture.h"
#include "processsettings.h"
#include "stackprojection.h"

/// Gives the first frame of another file; false, with the reason in `error`, when it can't.
using ReferenceReader = std::function<bool(const QString &path, Picture &frame, QString &error)>;

/// Does one step, but for a projection, which needs more than this picture. Any sample type, one channel or three, each
/// for itself. Null, with the reason in `error`, when that is not possible; null without one when `isUnwanted` said so. Throws std::bad_alloc when there is no memory.
Picture Processed(const Picture &picture, const ProcessSettings &settings, const ReferenceReader &readReference,
                  const IsUnwanted &isUnwanted, QString &error);

bool IsProjection(const ProcessSettings &settings);
/// Size of the result for a picture of `size`.
QSize ProcessedSize(const QSize &size, const ProcessSettings &settings);
/// How many pixels, along each side, become one.
int PixelsJoined(const ProcessSettings &settings);
/// What the step needs beside the picture, at most.
qint64 WorkingBytes(const Picture &picture, const ProcessSettings &settings);
/// Why something that needs so much can't be done; empty when it can, or when it is not known what is free.
QString MemoryFault(qint64 wantedBytes, qint64 availableBytes);
