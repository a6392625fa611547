// SPDX-License-Identifier: GPL-3.0-or-later
#include "tiffpage.h"

#include "tiffhandle.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(TiffPage)
};

struct CompressionRow
{
    int code;
    const char *name;
    int largestRatio; ///< decoded bytes that one stored byte can become
};

// LZW: strings grow by one byte a code until the table of 4096 is full, then it starts anew.
// Deflate: 258 bytes from two bits. PackBits: 128 bytes from two.
const CompressionRow compressionTable[] = {
    {COMPRESSION_NONE, "", 1},
    {COMPRESSION_LZW, "LZW", 1400},
    {COMPRESSION_ADOBE_DEFLATE, "deflate", 1032},
    {COMPRESSION_DEFLATE, "deflate", 1032},
    {COMPRESSION_PACKBITS, "PackBits", 64},
};

const CompressionRow *FindCompression(int code)
{
    const auto row = std::find_if(std::begin(compressionTable), std::end(compressionTable),
                                  [code](const CompressionRow &candidate) { return candidate.code == code; });
    return row == std::end(compressionTable) ? nullptr : row;
}

quint16 ShortTag(TIFF *tiff, ttag_t tag)
{
    uint16_t value = 0;
    TIFFGetFieldDefaulted(tiff, tag, &value);
    return value;
}

quint32 LongTag(TIFF *tiff, ttag_t tag)
{
    uint32_t value = 0;
    TIFFGetFieldDefaulted(tiff, tag, &value);
    return value;
}

bool SetSampleType(int sampleFormat, TiffPage &page)
{
    const int bits = page.bits;
    if (sampleFormat == SAMPLEFORMAT_IEEEFP) {
        page.type = bits == 64 ? SampleType::F64 : SampleType::F32;
        return bits == 32 || bits == 64;
    }
    if (sampleFormat == SAMPLEFORMAT_INT) {
        page.type = bits == 8 ? SampleType::S8 : bits == 16 ? SampleType::S16 : SampleType::S32;
        return bits == 8 || bits == 16 || bits == 32;
    }
    if (sampleFormat != SAMPLEFORMAT_UINT && sampleFormat != SAMPLEFORMAT_VOID)
        return false;
    // Fewer bits are packed without gaps: masks of 1 bit, sensors of 10, 12 or 14.
    page.type = bits <= 8 ? SampleType::U8 : bits <= 16 ? SampleType::U16 : SampleType::U32;
    return (bits >= 1 && bits <= 16) || bits == 32;
}

bool SetChannels(int photometric, TiffPage &page, FileFault &fault)
{
    switch (photometric) {
    case PHOTOMETRIC_RGB:
        page.channels = 3;
        if (page.samplesPerPixel < 3)
            return fault.Set(Text::tr("it is marked as RGB but has %1 samples a pixel").arg(page.samplesPerPixel), DamagedAdvice());
        return true;
    case PHOTOMETRIC_PALETTE:
        page.isPalette = true;
        if (page.bits > 16 || page.samplesPerPixel != 1)
            return fault.Set(Text::tr("its colour palette does not fit its samples"), DamagedAdvice());
        return true;
    case PHOTOMETRIC_MINISWHITE:
        page.isMinWhite = true;
        return true;
    case PHOTOMETRIC_MINISBLACK:
    case PHOTOMETRIC_CFA:
        return true;
    default:
        return fault.Set(Text::tr("its colours are of a kind (%1) that is not supported").arg(photometric), UnsupportedAdvice());
    }
}

bool SetBlocks(TIFF *tiff, TiffPage &page, FileFault &fault)
{
    page.isTiled = TIFFIsTiled(tiff) != 0;
    const quint32 width = page.isTiled ? LongTag(tiff, TIFFTAG_TILEWIDTH) : quint32(page.width);
    const quint32 height = page.isTiled ? LongTag(tiff, TIFFTAG_TILELENGTH)
                                        : qMin(LongTag(tiff, TIFFTAG_ROWSPERSTRIP), quint32(page.height));
    if (width == 0 || height == 0 || width > INT_MAX / 2 || height > INT_MAX / 2)
        return fault.Set(Text::tr("its strips or tiles have the size %1 x %2").arg(width).arg(height), DamagedAdvice());
    page.blockWidth = int(width);
    page.blockHeight = int(height);
    const quint64 libraryRowBytes = page.isTiled ? TIFFTileRowSize64(tiff) : TIFFScanlineSize64(tiff);
    if (libraryRowBytes != quint64(page.BlockRowBytes()))
        return fault.Set(Text::tr("its rows have a layout that is not supported"), UnsupportedAdvice());
    return true;
}

/// What the page takes when all of its blocks are decoded; not an integer, because a damaged file can
/// claim more than 64 bits hold.
double DecodedBytes(const TiffPage &page)
{
    const double planeRows = page.isTiled ? double(page.BlocksDown()) * page.blockHeight : page.height;
    return double(page.BlockRowBytes()) * page.BlocksAcross() * planeRows * page.PlanesToRead();
}

} // namespace

int TiffPage::BlockRows(int blockRow) const
{
    return isTiled ? blockHeight : std::min(blockHeight, height - blockRow * blockHeight);
}

bool TiffPage::IsPlain() const
{
    return compression == COMPRESSION_NONE && !isTiled && !isPlanar && !IsPacked() && !isPalette && !isMinWhite
        && samplesPerPixel == channels;
}

bool ReadTiffPage(const TiffHandle &handle, TiffPage &page, FileFault &fault)
{
    TIFF *tiff = handle.Get();
    page = TiffPage();
    const quint32 width = LongTag(tiff, TIFFTAG_IMAGEWIDTH);
    const quint32 height = LongTag(tiff, TIFFTAG_IMAGELENGTH);
    page.bits = ShortTag(tiff, TIFFTAG_BITSPERSAMPLE);
    page.samplesPerPixel = ShortTag(tiff, TIFFTAG_SAMPLESPERPIXEL);
    page.isPlanar = page.samplesPerPixel > 1 && ShortTag(tiff, TIFFTAG_PLANARCONFIG) == PLANARCONFIG_SEPARATE;
    page.compression = ShortTag(tiff, TIFFTAG_COMPRESSION);
    if (width == 0 || height == 0 || page.samplesPerPixel == 0)
        return fault.Set(Text::tr("it has no size"), DamagedAdvice());
    constexpr quint32 largestSide = 1u << 28; // keeps every product below in 64 bits
    if (width > largestSide || height > largestSide)
        return fault.Set(Text::tr("its size, %1 x %2 pixels, is beyond any picture").arg(width).arg(height), DamagedAdvice());
    page.width = int(width);
    page.height = int(height);

    const CompressionRow *compression = FindCompression(page.compression);
    if (!compression || !TIFFIsCODECConfigured(uint16_t(page.compression)))
        return fault.Set(Text::tr("its compression (%1) is not supported").arg(page.compression), UnsupportedAdvice());
    const int sampleFormat = ShortTag(tiff, TIFFTAG_SAMPLEFORMAT);
    if (!SetSampleType(sampleFormat, page)) {
        return fault.Set(Text::tr("its samples of %1 bits (sample format %2) are not supported").arg(page.bits).arg(sampleFormat),
                         UnsupportedAdvice());
    }
    uint16_t photometric = PHOTOMETRIC_MINISBLACK;
    TIFFGetField(tiff, TIFFTAG_PHOTOMETRIC, &photometric);
    return SetChannels(photometric, page, fault) && SetBlocks(tiff, page, fault);
}

bool CheckTiffBlocks(const TiffHandle &handle, TiffPage &page, qint64 fileSize, FileFault &fault)
{
    TIFF *tiff = handle.Get();
    const qint64 blocks = page.BlocksOfPlane() * page.PlanesToRead();
    const QString gigantic = Text::tr("its size, %1 x %2 pixels, is more than the %3 bytes of the file can hold")
                                 .arg(page.width).arg(page.height).arg(fileSize);
    if (blocks > fileSize)
        return fault.Set(gigantic, DamagedAdvice());

    const QString blockName = page.isTiled ? Text::tr("tile %1") : Text::tr("strip %1");
    quint64 stored = 0;
    for (qint64 block = 0; block < blocks; ++block) {
        int failed = 0;
        const quint64 offset = TIFFGetStrileOffsetWithErr(tiff, uint32_t(block), &failed);
        const quint64 bytes = failed ? 0 : TIFFGetStrileByteCountWithErr(tiff, uint32_t(block), &failed);
        if (failed || bytes == 0)
            return fault.Set(Text::tr("%1 has no data").arg(blockName.arg(block)), DamagedAdvice());
        if (offset > quint64(fileSize) || bytes > quint64(fileSize) - offset) {
            return fault.Set(Text::tr("%1 (%2 bytes from byte %3) lies beyond the end of the file (%4 bytes)")
                                 .arg(blockName.arg(block)).arg(bytes).arg(offset).arg(fileSize),
                             DamagedAdvice());
        }
        const int rows = page.BlockRows(int(block % page.BlocksOfPlane() / page.BlocksAcross()));
        const double needed = double(rows) * page.BlockRowBytes();
        if (page.compression == COMPRESSION_NONE && double(bytes) < needed) {
            return fault.Set(Text::tr("%1 has %2 bytes and needs %3").arg(blockName.arg(block)).arg(bytes).arg(needed, 0, 'f', 0),
                             DamagedAdvice());
        }
        if (page.IsPlain())
            page.samples.Add(offset, rows * page.BlockRowBytes());
        stored += bytes;
    }
    // Blocks that share their bytes do not make the file larger. The little extra lets a few pixels through.
    constexpr double extraBytes = 4096;
    const double possible = double(qMin(stored, quint64(fileSize))) * FindCompression(page.compression)->largestRatio + extraBytes;
    if (DecodedBytes(page) > possible)
        return fault.Set(gigantic, DamagedAdvice());
    return true;
}

QString TiffCompressionName(int compression)
{
    const CompressionRow *row = FindCompression(compression);
    return row ? QString(row->name) : QString();
}
