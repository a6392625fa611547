// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picturewriter.h"

#include <fitsio.h>

/// Writes FITS: all sample types, several frames as a cube, the three colours of an RGB picture as
/// planes of a cube, bottom row first.
class FitsPictureWriter : public PictureWriter
{
public:
    FitsPictureWriter(const QString &path, const SaveOptions &options);
    ~FitsPictureWriter() override;

protected:
    bool Write(const Picture &frame, FileFault &fault) override;
    bool Finish(FileFault &fault) override;

private:
    void Open(const Picture &frame, int *status);
    void WritePlane(const Picture &frame, int channel, int *status);

    fitsfile *m_fits = nullptr;
};
