// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fitslayout.h"
#include "fitstiles.h"
#include "picturefile.h"

#include <QFile>

#include <memory>

class FitsHeader;

/// The first picture of a FITS file, plain or tile-compressed; the planes of a cube are its frames.
/// FITS counts rows from the bottom of the picture: the last row of the file is row 0 here.
class FitsPictureFile : public PictureFile
{
public:
    explicit FitsPictureFile(const QString &path);

    bool Open(FileFault &fault);
    SpectralAxis AxisOf(int) const override { return m_axis; }

protected:
    bool Decode(int index, Picture &frame, FrameRows *rows, FileFault &fault) override;

private:
    /// Goes from header to header until one has a picture.
    bool FindPicture(FitsHeader &header, int &extension, FileFault &fault);
    void FillInfo(const FitsHeader &header, int extension);
    /// From where the file stands.
    bool DecodeDirect(Picture &frame);
    bool DecodeScaled(Picture &frame);

    QFile m_file;
    FitsLayout m_layout;
    SpectralAxis m_axis; ///< of every frame
    qint64 m_dataOffset = 0;
    double m_blank = 0; ///< stands for "undefined" in scaled integers; NaN if nothing does
    std::unique_ptr<FitsTiles> m_tiles; ///< of a compressed picture only
};
