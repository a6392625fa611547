// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fitslayout.h"
#include "picturefile.h"

/// The first picture of a FITS file, plain or tile-compressed; the planes of a cube are its frames.
/// FITS counts rows from the bottom of the picture: the last row of the file is row 0 here.
class FitsPictureFile : public PictureFile
{
public:
    explicit FitsPictureFile(const QString &path);
    ~FitsPictureFile() override;

    bool Open(qint64 fileSize, FileFault &fault);

protected:
    bool Decode(int index, Picture &frame, FileFault &fault) override;

private:
    /// Goes to the first picture; `status` says why there is none.
    bool FindPicture(int &status);
    void FillInfo(int extension);

    fitsfile *m_fits = nullptr;
    FitsLayout m_layout;
};
