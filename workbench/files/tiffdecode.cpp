// SPDX-License-Identifier: GPL-3.0-or-later
#include "tiffdecode.h"

#include "tiffhandle.h"

#include <QCoreApplication>

#include <cstring>
#include <limits>
#include <vector>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(TiffDecode)
};

/// A run of samples of one channel: from a row of a block into a row of the picture.
struct SampleRun
{
    const uchar *source;
    int sourceFirst; ///< in samples from the start of the block's row
    int sourceStep;
    uchar *target; ///< the channel's first sample
    int targetStep;
    int count;
};

template <typename T>
void CopyWhole(const SampleRun &run)
{
    const T *source = reinterpret_cast<const T *>(run.source) + run.sourceFirst;
    T *target = reinterpret_cast<T *>(run.target);
    for (int i = 0; i < run.count; ++i)
        target[qint64(i) * run.targetStep] = source[qint64(i) * run.sourceStep];
}

/// Samples of fewer bits than their type follow each other without gaps, the highest bit first.
template <typename T>
void CopyPacked(const SampleRun &run, int bits)
{
    T *target = reinterpret_cast<T *>(run.target);
    for (int i = 0; i < run.count; ++i) {
        const qint64 firstBit = (run.sourceFirst + qint64(i) * run.sourceStep) * bits;
        quint32 value = 0;
        for (qint64 bit = firstBit; bit < firstBit + bits; ++bit)
            value = value << 1 | (run.source[bit / 8] >> (7 - bit % 8) & 1u);
        target[qint64(i) * run.targetStep] = T(value);
    }
}

/// 16-bit packed samples of more than 8 bits come from libtiff as they lie in the file, so no byte
/// order applies to them.
void CopySamples(const TiffPage &page, const SampleRun &run)
{
    VisitSampleType(page.type, [&](auto sample) {
        using Sample = decltype(sample);
        if (page.IsPacked())
            CopyPacked<Sample>(run, page.bits);
        else
            CopyWhole<Sample>(run);
    });
}

/// Reads the blocks of a page and puts their samples where they belong in the picture.
class BlockReader
{
public:
    BlockReader(TIFF *tiff, const TiffPage &page, Picture &picture)
        : m_tiff(tiff)
        , m_page(page)
        , m_picture(picture)
        , m_pixels(picture.Data())
    {
    }

    /// Number of the block that failed, or -1.
    qint64 ReadAll();

private:
    bool ReadBlock(qint64 block);
    bool ReadBytes(qint64 block, uchar *bytes, qint64 size);
    void Place(const uchar *block, int left, int top, int rows, int plane);
    /// The block's rows are the picture's rows: no scratch buffer.
    bool IsDirect() const { return !m_page.isTiled && !m_page.IsPacked() && m_page.SamplesInBlock() == m_picture.Channels(); }

    TIFF *m_tiff;
    const TiffPage &m_page;
    const Picture &m_picture;
    uchar *m_pixels;
    std::vector<uchar> m_scratch;
};

qint64 BlockReader::ReadAll()
{
    const qint64 blocks = m_page.BlocksOfPlane() * m_page.PlanesToRead();
    if (!IsDirect())
        m_scratch.resize(size_t(m_page.BlockRowBytes() * m_page.blockHeight));
    for (qint64 block = 0; block < blocks; ++block) {
        if (!ReadBlock(block))
            return block;
    }
    return -1;
}

bool BlockReader::ReadBlock(qint64 block)
{
    const int plane = int(block / m_page.BlocksOfPlane());
    const int inPlane = int(block % m_page.BlocksOfPlane());
    const int blockRow = inPlane / m_page.BlocksAcross();
    const int left = inPlane % m_page.BlocksAcross() * m_page.blockWidth;
    const int top = blockRow * m_page.blockHeight;
    const int rows = m_page.BlockRows(blockRow);
    const qint64 size = m_page.BlockRowBytes() * rows;
    if (IsDirect())
        return ReadBytes(block, m_pixels + top * m_picture.BytesPerRow(), size);
    if (!ReadBytes(block, m_scratch.data(), size))
        return false;
    Place(m_scratch.data(), left, top, std::min(rows, m_page.height - top), plane);
    return true;
}

bool BlockReader::ReadBytes(qint64 block, uchar *bytes, qint64 size)
{
    const tmsize_t got = m_page.isTiled ? TIFFReadEncodedTile(m_tiff, uint32_t(block), bytes, size)
                                        : TIFFReadEncodedStrip(m_tiff, uint32_t(block), bytes, size);
    return got == size;
}

void BlockReader::Place(const uchar *block, int left, int top, int rows, int plane)
{
    const int sampleBytes = BytesPerSample(m_page.type);
    SampleRun run;
    run.sourceStep = m_page.SamplesInBlock();
    run.targetStep = m_picture.Channels();
    run.count = std::min(m_page.blockWidth, m_page.width - left);
    const int firstChannel = m_page.isPlanar ? plane : 0;
    const int endChannel = m_page.isPlanar ? plane + 1 : m_page.channels;
    for (int y = 0; y < rows; ++y) {
        run.source = block + y * m_page.BlockRowBytes();
        uchar *row = m_pixels + (top + y) * m_picture.BytesPerRow() + qint64(left) * m_picture.BytesPerPixel();
        for (int channel = firstChannel; channel < endChannel; ++channel) {
            run.sourceFirst = m_page.isPlanar ? 0 : channel;
            run.target = row + channel * sampleBytes;
            CopySamples(m_page, run);
        }
    }
}

void InvertUnsigned(Picture &picture, int bits)
{
    VisitSampleType(picture.Type(), [&](auto sample) {
        using Sample = decltype(sample);
        if constexpr (std::is_unsigned_v<Sample>) {
            const Sample white = Sample(std::numeric_limits<Sample>::max() >> (8 * sizeof(Sample) - size_t(bits)));
            const qint64 count = picture.ByteCount() / qint64(sizeof(Sample));
            Sample *samples = picture.Samples<Sample>(0);
            for (qint64 i = 0; i < count; ++i)
                samples[i] = Sample(white - samples[i]);
        }
    });
}

/// The colour table of a page, as 8-bit red, green, blue triples.
struct Palette
{
    std::vector<uchar> colours;
    bool isGreyRamp = true; ///< entry i is grey i
};

bool ReadPalette(TIFF *tiff, int bits, Palette &palette)
{
    uint16_t *channels[3] = {};
    if (!TIFFGetField(tiff, TIFFTAG_COLORMAP, &channels[0], &channels[1], &channels[2]))
        return false;
    const int entries = 1 << bits;
    palette.colours.resize(size_t(entries) * 3);
    for (int i = 0; i < entries; ++i) {
        for (int channel = 0; channel < 3; ++channel) {
            const uchar value = uchar(channels[channel][i] >> 8);
            palette.colours[size_t(i) * 3 + size_t(channel)] = value;
            palette.isGreyRamp = palette.isGreyRamp && bits == 8 && value == i;
        }
    }
    return true;
}

template <typename T>
void ApplyPalette(const Picture &indices, const Palette &palette, Picture &picture)
{
    for (int y = 0; y < indices.Height(); ++y) {
        const T *index = indices.Samples<T>(y);
        uchar *target = picture.Row(y);
        for (int x = 0; x < indices.Width(); ++x)
            std::memcpy(target + qint64(x) * 3, &palette.colours[size_t(index[x]) * 3], 3);
    }
}

bool ConvertPalette(TIFF *tiff, const TiffPage &page, Picture &picture, FileFault &fault)
{
    Palette palette;
    if (!ReadPalette(tiff, page.bits, palette))
        return fault.Set(Text::tr("its colour palette is missing"), DamagedAdvice());
    if (palette.isGreyRamp)
        return true;
    const Picture indices = picture;
    picture = Picture(page.width, page.height, 3, SampleType::U8);
    if (page.type == SampleType::U8)
        ApplyPalette<quint8>(indices, palette, picture);
    else
        ApplyPalette<quint16>(indices, palette, picture);
    return true;
}

} // namespace

bool DecodeTiffPage(TiffHandle &handle, const TiffPage &page, Picture &picture, FileFault &fault)
{
    picture.Reshape(page.width, page.height, page.channels, page.type);
    const qint64 failed = BlockReader(handle.Get(), page, picture).ReadAll();
    if (failed >= 0) {
        return fault.Set((page.isTiled ? Text::tr("tile %1 cannot be decoded") : Text::tr("strip %1 cannot be decoded")).arg(failed),
                         DamagedAdvice(), handle.TakeMessages());
    }
    if (page.isMinWhite)
        InvertUnsigned(picture, page.bits);
    return !page.isPalette || ConvertPalette(handle.Get(), page, picture, fault);
}
