// SPDX-License-Identifier: GPL-3.0-or-later
#include "fitslayout.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

constexpr int mostAxes = 9;
/// A file is made of blocks; the library reads whole ones only.
constexpr qint64 blockBytes = 2880;

QString Translate(const char *text)
{
    return QCoreApplication::translate("FitsLayout", text);
}

struct Axes
{
    int bitpix = 0;
    int count = 0;
    LONGLONG sizes[mostAxes] = {};

    /// As a floating point number: a damaged header can claim more than 64 bits hold.
    double Samples() const
    {
        double samples = 1;
        for (int i = 0; i < count; ++i)
            samples *= double(sizes[i]);
        return samples;
    }
    int SampleBytes() const { return std::abs(bitpix) / 8; }
};

struct TypeRow
{
    int bitpix;
    double zero;
    SampleType type;
    int libraryType;
};

// Integers that stay integers: as stored, or with the offset that stands for the other sign.
const TypeRow integerTable[] = {
    {BYTE_IMG, 0, SampleType::U8, TBYTE},
    {BYTE_IMG, -128, SampleType::S8, TSBYTE},
    {SHORT_IMG, 0, SampleType::S16, TSHORT},
    {SHORT_IMG, 32768, SampleType::U16, TUSHORT},
    {LONG_IMG, 0, SampleType::S32, TINT},
    {LONG_IMG, 2147483648.0, SampleType::U32, TUINT},
};

double NumberOf(fitsfile *fits, const char *key, double otherwise)
{
    int status = 0;
    double value = otherwise;
    fits_write_errmark();
    fits_read_key(fits, TDOUBLE, key, &value, nullptr, &status);
    fits_clear_errmark();
    return status == 0 ? value : otherwise;
}

void SetSampleType(fitsfile *fits, int bitpix, FitsLayout &layout)
{
    const double zero = NumberOf(fits, "BZERO", 0);
    const double scale = NumberOf(fits, "BSCALE", 1);
    const auto row = std::find_if(std::begin(integerTable), std::end(integerTable), [&](const TypeRow &candidate) {
        return candidate.bitpix == bitpix && candidate.zero == zero && scale == 1;
    });
    if (row != std::end(integerTable)) {
        layout.type = row->type;
        layout.libraryType = row->libraryType;
        return;
    }
    // A 32-bit integer does not fit into the 24 bits of a float.
    const bool isDouble = bitpix == LONG_IMG || bitpix == LONGLONG_IMG || bitpix == DOUBLE_IMG;
    layout.type = isDouble ? SampleType::F64 : SampleType::F32;
    layout.libraryType = isDouble ? TDOUBLE : TFLOAT;
    layout.marksUndefined = bitpix > 0 || layout.isCompressed;
}

bool SetSize(const Axes &axes, FitsLayout &layout, FileFault &fault)
{
    const double frames = axes.Samples() / double(axes.sizes[0]) / double(axes.count > 1 ? axes.sizes[1] : 1);
    if (axes.sizes[0] > INT_MAX / 8 || (axes.count > 1 && axes.sizes[1] > INT_MAX / 8) || frames > INT_MAX) {
        return fault.Set(Translate("its size, %1 x %2 pixels in %3 frames, is beyond any picture")
                             .arg(axes.sizes[0]).arg(axes.sizes[1]).arg(frames, 0, 'g', 3),
                         DamagedAdvice());
    }
    layout.width = int(axes.sizes[0]);
    layout.height = axes.count > 1 ? int(axes.sizes[1]) : 1; // a spectrum is a picture of one row
    layout.frames = int(frames);
    return true;
}

/// Decoded bytes that one stored byte can become. PLIO writes runs of up to 4095 samples in two
/// bytes, HCOMPRESS an empty tile in a few bytes.
double LargestRatio(fitsfile *fits)
{
    char method[FLEN_VALUE] = "";
    int status = 0;
    fits_write_errmark();
    fits_read_key(fits, TSTRING, "ZCMPTYPE", method, nullptr, &status);
    fits_clear_errmark();
    const QString name = method;
    if (name.startsWith("RICE"))
        return 260; // five bits for a block of 32 equal samples
    if (name.startsWith("GZIP"))
        return 1032;
    return 8192;
}

bool CheckCompressed(fitsfile *fits, const Axes &axes, qint64 dataBytes, const FitsLayout &layout, FileFault &fault)
{
    double tileSamples = 1;
    for (int i = 0; i < axes.count; ++i) {
        const double size = NumberOf(fits, qPrintable(QString("ZTILE%1").arg(i + 1)), i == 0 ? double(axes.sizes[0]) : 1);
        if (!(size >= 1))
            return fault.Set(Translate("its compressed tiles have no size"), DamagedAdvice());
        tileSamples *= size;
    }
    constexpr double extraBytes = 65536; // small pictures in a tile larger than they are
    const double possible = double(dataBytes) * LargestRatio(fits) + extraBytes;
    if (axes.Samples() * axes.SampleBytes() <= possible && tileSamples * axes.SampleBytes() <= possible)
        return true;
    return fault.Set(Translate("its size, %1 x %2 pixels in %3 frames, is more than its %4 compressed bytes can hold")
                         .arg(layout.width).arg(layout.height).arg(layout.frames).arg(dataBytes),
                     DamagedAdvice());
}

bool CheckPlain(const Axes &axes, qint64 dataBytes, FitsLayout &layout, FileFault &fault)
{
    const double frameBytes = double(layout.FrameSamples()) * axes.SampleBytes();
    const double whole = std::floor(double(dataBytes) / frameBytes);
    if (whole < 1) {
        return fault.Set(Translate("a frame of %1 x %2 pixels takes %3 bytes, but the file has only %4 in whole blocks after its header")
                             .arg(layout.width).arg(layout.height).arg(frameBytes, 0, 'f', 0).arg(dataBytes),
                         DamagedAdvice());
    }
    if (whole < layout.frames) {
        layout.missingFrames = layout.frames - int(whole);
        layout.frames = int(whole);
    }
    return true;
}

} // namespace

bool ReadFitsLayout(fitsfile *fits, qint64 fileSize, FitsLayout &layout, FileFault &fault)
{
    layout = FitsLayout();
    int status = 0;
    Axes axes;
    fits_get_img_paramll(fits, mostAxes, &axes.bitpix, &axes.count, axes.sizes, &status);
    LONGLONG dataStart = 0;
    LONGLONG dataEnd = 0;
    fits_get_hduaddrll(fits, nullptr, &dataStart, &dataEnd, &status);
    if (status != 0 || axes.count < 1 || axes.count > mostAxes
        || std::any_of(axes.sizes, axes.sizes + axes.count, [](LONGLONG size) { return size < 1; }))
        return fault.Set(Translate("its header describes no picture"), DamagedAdvice());

    layout.isCompressed = fits_is_compressed_image(fits, &status) != 0;
    SetSampleType(fits, axes.bitpix, layout);
    if (!SetSize(axes, layout, fault))
        return false;
    const qint64 dataBytes = std::max(qint64(0), std::min(fileSize, qint64(dataEnd)) - qint64(dataStart)) / blockBytes * blockBytes;
    return layout.isCompressed ? CheckCompressed(fits, axes, dataBytes, layout, fault) : CheckPlain(axes, dataBytes, layout, fault);
}
