// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pictureaccess.h"
#include "pictureedit.h"
#include "stackprojection.h"

#include <list>

/// Frames of opened files as they are seen: turned, cropped and processed. What came out of the steps of processing last
/// is kept, so that other levels, another turn or the next step don't begin anew. One thread.
class EditedFrames
{
public:
    /// `access` is borrowed and outlives this object.
    explicit EditedFrames(PictureAccess *access);

    PictureAccess *Access() const { return m_access; }
    /// False, with the reason in `error`, when there is no such picture; false without a reason when `isUnwanted` said
    /// so. `fileSize` becomes the size of the frame in the file. What is seen as it lies in the file is told to `rows`
    /// while it is read; null for nobody. Throws std::bad_alloc when there is no memory.
    bool Read(const PictureAccess::FileName &file, int frame, const PictureEdit &edit, const IsUnwanted &isUnwanted,
              Picture &seen, QSize &fileSize, QString &error, FrameRows *rows = nullptr);
    /// The file was closed, or is another one now.
    void Forget(quint64 id);

private:
    struct Kept
    {
        quint64 id;
        int frame;
        PictureEdit steps;
        QSize fileSize;
        Picture picture;
    };
    /// What is being asked for.
    struct Wish
    {
        PictureAccess::FileName file;
        PictureEdit edit;
        const IsUnwanted &isUnwanted;
        QSize &fileSize;
        QString &error;
        FrameRows *rows; ///< null when something is done to the frame
    };

    bool ReadAfterSteps(const Wish &wish, int frame, int steps, bool keeps, Picture &picture);
    bool ReadBeforeStep(const Wish &wish, int frame, int step, bool keeps, Picture &picture);
    bool Project(const Wish &wish, int step, Picture &picture);
    bool FindKept(const Wish &wish, int frame, const PictureEdit &steps, Picture &picture);
    void Keep(const Kept &kept);

    PictureAccess *m_access;
    std::list<Kept> m_kept; ///< the one used last comes first
};
