// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "orientation.h"
#include "spectralaxis.h"
#include "spectralframe.h"

#include <QRect>

/// What spectra need to know of the opened picture: how its file comes to be what is seen of it. A value.
struct SpectralPicture
{
    quint64 file = 0; ///< tells the opened files apart
    QSize fileSize;
    QRect region; ///< that is seen, pixels of the file; null when that is not known
    Orientation orientation;
    SpectralAxis fileAxis; ///< of the columns, or rows, of the file; empty when it does not say
    SpectralAxis axis;     ///< the same of those that are seen; empty when they were joined

    /// Of a spectrum that runs along the rows, or the columns, of what is seen.
    SpectralFrame Frame(bool isHorizontal) const;

    /// A frame of the same file, with the same meaning of its columns or rows, however it is turned and cropped.
    bool IsOfSameColumns(const SpectralPicture &other) const { return file == other.file && fileAxis == other.fileAxis; }
    /// The same, whichever file it is of.
    bool IsLike(const SpectralPicture &other) const
    {
        return fileSize == other.fileSize && region == other.region && orientation == other.orientation
            && fileAxis == other.fileAxis && axis == other.axis;
    }
};
