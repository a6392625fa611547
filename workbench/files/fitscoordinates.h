// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pictureinfo.h"

#include <QRect>

#include <optional>

/// What the header of a FITS file says, for a picture of which only `region` (in pixels of the file's frames, from the
/// top left) is left, so that other programs find the same places in it: reference pixels move with the crop. Without a
/// region pixels were turned or joined; then what says where they lie is left out. Sections of the sensor go with both.
QVector<MetadataEntry> FitsMetadataOfRegion(const QVector<MetadataEntry> &metadata, const QSize &frameSize,
                                            const std::optional<QRect> &region);
