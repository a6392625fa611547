// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "countsettings.h"
#include "objectcount.h"
#include "pictureaccess.h"
#include "pictureedit.h"
#include "samplerange.h"

#include <QImage>
#include <QMetaType>

#include <optional>

/// A frame of a file, wanted for the screen.
struct PictureRequest
{
    quint64 ticket = 0; ///< grows from request to request
    int place = 0; ///< where it is to be shown; a newer request for the same place replaces one that waits
    PictureAccess::FileName file;
    int frame = 0;
    PictureEdit edit;
    bool isPreview = false;      ///< the last step of the edit is only tried
    std::optional<CountSettings> count; ///< its objects are to be counted and marked
    SampleRange range;           ///< of the frame before, which automatic levels keep
    bool wantsThumbnail = false; ///< another picture than before, for the list
};

/// The answer to a request: either `error` says why there is none, or all of it is there.
struct LoadedPicture
{
    PictureRequest request;
    QString error;
    QString news; ///< what happened to the file meanwhile, or what is odd about it; may be empty
    PictureInfo info;
    int frames = 0; ///< that can be looked at after the edit
    QString frameDescription;
    QSize fileSize;   ///< of the frame in the file
    Picture samples;  ///< as seen, after the edit
    QImage image;     ///< the same, for the screen, with the marks of its objects
    double countLevel = 0; ///< that separates the objects from the rest
    QVector<CountedObject> objects;
    QString countError; ///< why the objects were not counted
    QImage thumbnail; ///< null unless it was wanted
    SampleRange range;
    SpectralAxis fileAxis; ///< of the columns, or rows, of the file; empty when it does not say
    SpectralAxis axis;     ///< of the columns, or rows, as seen; empty without one, or when they were joined
};
Q_DECLARE_METATYPE(LoadedPicture)

/// A small picture of a file for the list.
struct PictureThumbnail
{
    quint64 id = 0;
    QString error; ///< why there is none
    PictureInfo info;
    QImage image;
};
Q_DECLARE_METATYPE(PictureThumbnail)
