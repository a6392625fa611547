// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <QSize>
#include <QString>
#include <QVector>

/// Pixels of the sensor that were read out together, and how many of them became one. A value.
struct SpeSensorRegion
{
    QRect pixels; ///< from 0; null when what the file says makes no sense
    QSize binning{ 1, 1 };

    QSize Size() const { return QSize(pixels.width() / binning.width(), pixels.height() / binning.height()); }
    /// For people and programs: English.
    QString Text() const;
};

/// What a region is called among the facts of a file that has so many.
QString SpeRegionKey(int region, int regions);
bool IsSpeRegionKey(const QString &key);

/// Version 2 lays all regions of a frame into one rectangle, and what it has no samples for is filler. Where that is to be
/// seen from the sizes alone: regions that fill the rectangle lie below each other, others as they do on the sensor.
/// Empty when it is not; then `reason` says why, as part of a sentence.
QVector<QRect> PlaceSpeRegions(const QVector<SpeSensorRegion> &regions, const QSize &rectangle,
                               QString *reason);
