// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picturefile.h"
#include "rasterheader.h"

#include <QFile>

class QImage;

/// A PNG, JPEG or BMP file, decoded by Qt. Transparency is left out, palettes become RGB.
class RasterPictureFile : public PictureFile
{
public:
    RasterPictureFile(const QString &path, PictureFormat format);

    bool Open(FileFault &fault);
    SpectralAxis AxisOf(int) const override { return m_axis; }

protected:
    bool Decode(int index, Picture &frame, FrameRows *rows, FileFault &fault) override;

private:
    QFile m_file;
    RasterHeader m_header;
    SpectralAxis m_axis;
};
