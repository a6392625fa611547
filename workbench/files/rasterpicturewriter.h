// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pictureformat.h"
#include "picturewriter.h"

/// Writes PNG (8 and 16 bit) and JPEG (8 bit), mono and RGB, through Qt. One frame.
class RasterPictureWriter : public PictureWriter
{
public:
    RasterPictureWriter(const QString &path, PictureFormat format, const SaveOptions &options);

protected:
    bool Write(const Picture &frame, FileFault &fault) override;
    bool Finish(FileFault &fault) override;

private:
    const PictureFormat m_format;
};
