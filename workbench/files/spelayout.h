// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pictureinfo.h"
#include "spectralaxis.h"
#include "speregions.h"

#include <QStringList>

class QIODevice;
struct FileFault;

/// A part of the sensor that was read out; every frame of an SPE file has the same ones.
struct SpeRegion
{
    int width = 0;
    int height = 0;
    qint64 offset = 0; ///< bytes from the start of the frame
    int skipped = 0;   ///< samples from the end of a row to the next one: of other regions, or filler
    SpeSensorRegion onSensor; ///< without pixels when the file does not say
    SpectralAxis axis;
};

/// How the samples lie in an SPE file of version 2 or 3, and what it says about them.
struct SpeLayout
{
    static constexpr qint64 headerBytes = 4100;

    double version = 0;
    SampleType type = SampleType::U16;
    int frames = 0;        ///< that are whole
    qint64 missingFrames = 0; ///< that were promised
    int mergedRegions = 1; ///< regions of the sensor that lie somewhere in one rectangle: version 2
    QString mergedReason;  ///< why nobody knows where, as part of a sentence
    qint64 frameStride = 0; ///< bytes from one frame to the next
    QVector<SpeRegion> regions; ///< at least one
    QVector<MetadataEntry> metadata;
    QStringList warnings; ///< what could not be understood beside the samples, each once

    void Warn(const QString &warning);

    /// From its first sample to its last.
    qint64 RegionBytes(const SpeRegion &region) const
    {
        return ((qint64(region.width) + region.skipped) * region.height - region.skipped)
               * BytesPerSample(type);
    }
};

/// Reads header and footer. Every size is checked against the file before anything is made of it.
bool ReadSpeLayout(QIODevice &file, SpeLayout &layout, FileFault &fault);
