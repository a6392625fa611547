// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pictureformat.h"
#include "sampletype.h"

#include <QSize>
#include <QVector>

/// One thing that a file says about itself.
struct MetadataEntry
{
    QString key; ///< the format's own name: a TIFF tag, a FITS keyword, a PNG text key
    QString value;
    QString comment;    ///< FITS only
    bool isText = true; ///< false: a number or a logical value of a FITS card, as written there
};

/// What is known of a picture file without decoding any frame. Size and samples are those of the
/// first frame; pages of a TIFF file may differ.
struct PictureInfo
{
    PictureFormat format = PictureFormat::Unknown;
    QString formatDetail; ///< "BigTIFF, deflate", "compressed image in extension 1"; may be empty
    int frames = 0;
    int kinds = 1; ///< of frames, which take turns: the regions that each exposure has
    QSize size;
    int channels = 1;
    SampleType sampleType = SampleType::U8;
    bool isStored = false; ///< the samples of each frame lie together in the file as they are, not compressed
    double dpiX = 0; ///< pixels an inch; 0 when the file does not say
    double dpiY = 0;
    QVector<MetadataEntry> metadata;
    /// What the user should know although the file can be shown (a wrong ending, missing frames); a
    /// whole message, empty when all is well.
    QString warning;
};
