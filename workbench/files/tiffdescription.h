// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pictureinfo.h"

class Picture;

/// The ImageDescription of a file that is written with `metadata`: the one that the picture came with,
/// made true for the frames that are written, and lines for what has no TIFF tag of its own. An ImageJ
/// or OME description that does not fit any more is brought up to date or left out, because other
/// programs read the file by it.
QString DescriptionForSaving(const QVector<MetadataEntry> &metadata, const Picture &frame, int frameCount);
