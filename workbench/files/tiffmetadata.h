// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pictureinfo.h"

#include <tiffio.h>

/// The text tags of the current page, named as in the TIFF standard; the description comes first.
QVector<MetadataEntry> ReadTiffTexts(TIFF *tiff);
/// Value of the description among `metadata`.
QString DescriptionOf(const QVector<MetadataEntry> &metadata);
/// Tag of a text entry by its standard name; 0 for other keys.
ttag_t TiffTextTag(const QString &key);

/// Whether a unit's name, as ImageJ and OME write it, means micrometres.
bool IsMicrometre(const QString &unit);
/// Pixels an inch from the resolution tags, or from the pixel size that ImageJ or OME gives; 0 if unknown.
void ReadTiffResolution(TIFF *tiff, const QString &description, double &dpiX, double &dpiY);
