// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picturefile.h"
#include "stackorder.h"
#include "tiffchain.h"
#include "tiffhandle.h"
#include "tiffpage.h"

/// A TIFF or BigTIFF file. Opening follows the chain of pages and decodes nothing, so a stack of many
/// gigabytes opens at once. ImageJ stacks of more than 4 GB, which have one page description and
/// their frames one after the other behind it, are read by their convention.
class TiffPictureFile : public PictureFile
{
public:
    explicit TiffPictureFile(const QString &path);

    /// `fd` is taken.
    bool Open(int fd, qint64 fileSize, FileFault &fault);
    QString FrameDescription(int index) const override;
    SpectralAxis AxisOf(int) const override { return m_axis; }

protected:
    bool Decode(int index, Picture &frame, FrameRows *rows, FileFault &fault) override;

private:
    bool SelectPage(int index, TiffPage &page, FileFault &fault);
    void FillInfo(const TiffPage &page);
    void FindContiguousFrames(const TiffPage &page);
    /// The page that was selected.
    bool DecodePage(const TiffPage &page, Picture &frame, FrameRows *rows, FileFault &fault);
    /// Samples that lie in the file as they are in a Picture, but for the byte order.
    bool ReadSamples(const FileRuns &samples, Picture &frame, FrameRows *rows);

    TiffHandle m_tiff;
    TiffChain m_chain;
    qint64 m_fileSize = 0;
    StackOrder m_order;
    SpectralAxis m_axis; ///< of pages of the size of the first
    /// First byte of the frames that follow each other without descriptions; 0 for ordinary files.
    quint64 m_contiguousOffset = 0;
    qint64 m_contiguousBytes = 0; ///< of each of them
};
