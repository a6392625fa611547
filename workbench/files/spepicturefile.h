// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picturefile.h"
#include "spelayout.h"

#include <QFile>

/// A spectrum file (SPE 2 and 3). With several regions each one is a frame of its own: all regions of the first
/// exposure, then all of the second.
class SpePictureFile : public PictureFile
{
public:
    explicit SpePictureFile(const QString &path);

    bool Open(FileFault &fault);
    QString FrameDescription(int index) const override;
    SpectralAxis AxisOf(int index) const override;

protected:
    bool Decode(int index, Picture &frame, FrameRows *rows, FileFault &fault) override;

private:
    const SpeRegion &RegionOf(int index) const { return m_layout.regions[index % m_layout.regions.size()]; }
    void FillInfo();
    /// `start` is in the file; `skippedBytes` lie between two rows.
    bool ReadRows(qint64 start, int skippedBytes, Picture &frame);

    QFile m_file;
    SpeLayout m_layout;
};
