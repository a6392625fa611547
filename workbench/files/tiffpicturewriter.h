// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picturewriter.h"
#include "tiffhandle.h"

/// Writes TIFF, or BigTIFF when the frames take more than four gigabytes: all sample types, mono and RGB,
/// a page for each frame.
class TiffPictureWriter : public PictureWriter
{
public:
    TiffPictureWriter(const QString &path, const SaveOptions &options);

protected:
    bool Write(const Picture &frame, FileFault &fault) override;
    bool Finish(FileFault &fault) override;

private:
    bool Open(const Picture &frame, FileFault &fault);
    void SetLayout(const Picture &frame);
    void SetResolution(const QString &description);
    bool WriteStrips(const Picture &frame);

    TiffHandle m_tiff;
    QString m_description;
};
