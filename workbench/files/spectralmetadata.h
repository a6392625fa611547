// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pictureinfo.h"
#include "spectralaxis.h"

/// A polynomial calibration of the columns, or the rows, of a picture, as its file carries it.
struct SpectralRecord
{
    SpectralUnit unit = SpectralUnit::Nanometre;
    SpectralSide side = SpectralSide::Columns;
    QVector<double> coefficients; ///< of the column or row, counted from 0: lowest power first
    int width = 0;                ///< columns, or rows, of the pictures that it holds for
    QString origin;               ///< for people: which pixels of the sensor these are
};

/// Keys and values that every format can hold: cards in FITS, annotations in OME, lines in other TIFF descriptions. Empty
/// for a record or an axis of nothing. The values of an axis are written one by one.
QVector<MetadataEntry> SpectralMetadata(const SpectralRecord &record);
QVector<MetadataEntry> SpectralMetadata(const SpectralAxis &axis);
bool IsSpectralMetadata(const MetadataEntry &entry);
/// Those among the lines or annotations of a TIFF description.
QVector<MetadataEntry> SpectralMetadataOfText(const QString &description);
QString WithoutSpectralMetadata(const QString &description);

/// What they mean for pictures of `size`; empty without a calibration or for one of other pictures. One that does not say
/// so is that of the columns. `fault` says, as part of a sentence, when there is one that cannot be used.
SpectralAxis AxisOfMetadata(const QVector<MetadataEntry> &metadata, const QSize &size, QString *fault);
