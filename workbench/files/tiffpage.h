// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filefault.h"
#include "fileruns.h"
#include "sampletype.h"

#include <QSize>
#include <QString>

class TiffHandle;

/// How the samples of a TIFF page are laid out, from its tags.
struct TiffPage
{
    int width = 0;
    int height = 0;
    int bits = 8; ///< of a sample in the file; fewer than the sample type's for packed samples
    int samplesPerPixel = 1;
    int channels = 1; ///< that are decoded: 1 or 3; a palette page has 1 here
    SampleType type = SampleType::U8;
    bool isPlanar = false; ///< a plane of its own for each sample
    bool isTiled = false;
    bool isPalette = false;
    bool isMinWhite = false;
    int compression = 1;
    int blockWidth = 0; ///< of a strip or tile
    int blockHeight = 0;
    FileRuns samples; ///< of a plain page; known when its blocks were checked

    /// The bytes of the strips, one behind the other, are the samples of a Picture, but for the byte order.
    bool IsPlain() const;
    bool IsPacked() const { return bits != 8 * BytesPerSample(type); }
    int PlanesToRead() const { return isPlanar ? channels : 1; }
    /// Samples of one pixel that lie together in a block.
    int SamplesInBlock() const { return isPlanar ? 1 : samplesPerPixel; }
    qint64 BlockRowBytes() const { return (qint64(blockWidth) * SamplesInBlock() * bits + 7) / 8; }
    int BlocksAcross() const { return (width - 1) / blockWidth + 1; }
    int BlocksDown() const { return (height - 1) / blockHeight + 1; }
    qint64 BlocksOfPlane() const { return qint64(BlocksAcross()) * BlocksDown(); }
    /// Rows that a block brings; the last strip may be shorter, tiles are always whole.
    int BlockRows(int blockRow) const;
};

/// Reads the layout of the current directory. False for what is not supported or makes no sense.
bool ReadTiffPage(const TiffHandle &tiff, TiffPage &page, FileFault &fault);

/// Whether all strips or tiles lie within the file and hold enough for the page's size, so that no
/// memory is taken for a picture that the file cannot contain. Finds the samples of a plain page.
bool CheckTiffBlocks(const TiffHandle &tiff, TiffPage &page, qint64 fileSize, FileFault &fault);

/// "LZW"; empty for uncompressed pages.
QString TiffCompressionName(int compression);
