// SPDX-License-Identifier: GPL-3.0-or-later
#include "fitslayout.h"

#include "fitsheader.h"

#include <QCoreApplication>
#include <QVector>

#include <algorithm>
#include <cmath>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(FitsLayout)
};

bool IsCompressed(const FitsHeader &header)
{
    return header.Text("XTENSION") == "BINTABLE" && header.IsTrue("ZIMAGE");
}

/// The cards of a compressed picture have a Z before the name that they have in a plain one.
QString PictureKey(const FitsHeader &header, const char *key)
{
    return IsCompressed(header) ? QString("Z") + key : QString(key);
}

/// As floating point numbers: a damaged header can claim more than 64 bits hold.
QVector<double> SizesOf(const FitsHeader &header)
{
    constexpr double mostAxes = 999;
    QVector<double> sizes(int(qBound(0.0, header.Number(PictureKey(header, "NAXIS"), 0), mostAxes)));
    for (int axis = 0; axis < sizes.size(); ++axis)
        sizes[axis] = std::floor(header.Number(PictureKey(header, "NAXIS") + QString::number(axis + 1), 0));
    return sizes;
}

struct TypeRow
{
    int storedBits;
    double zero;
    SampleType type;
};

// Samples that stay what they are: as stored, or with the offset that stands for the other sign.
const TypeRow directTable[] = {
    {8, 0, SampleType::U8},      {8, -128, SampleType::S8},
    {16, 0, SampleType::S16},    {16, 32768, SampleType::U16},
    {32, 0, SampleType::S32},    {32, 2147483648.0, SampleType::U32},
    {-32, 0, SampleType::F32},   {-64, 0, SampleType::F64},
};

bool SetSampleType(const FitsHeader &header, FitsLayout &layout, FileFault &fault)
{
    const double bits = header.Number(PictureKey(header, "BITPIX"), 0);
    static const QVector<double> knownBits{8, 16, 32, 64, -32, -64};
    if (!knownBits.contains(bits))
        return fault.Set(Text::tr("its samples of %1 bits make no sense").arg(bits), DamagedAdvice());
    layout.storedBits = int(bits);
    layout.zero = header.Number("BZERO", 0);
    layout.scale = header.Number("BSCALE", 1);
    const auto row = std::find_if(std::begin(directTable), std::end(directTable), [&](const TypeRow &candidate) {
        return candidate.storedBits == layout.storedBits && candidate.zero == layout.zero && layout.scale == 1;
    });
    layout.isDirect = row != std::end(directTable);
    // A 32-bit integer does not fit into the 24 bits of a float.
    const bool isDouble = layout.storedBits == 32 || std::abs(layout.storedBits) == 64;
    layout.type = layout.isDirect ? row->type : isDouble ? SampleType::F64 : SampleType::F32;
    return true;
}

bool SetSize(const QVector<double> &sizes, FitsLayout &layout, FileFault &fault)
{
    const double width = sizes[0];
    const double height = sizes.size() > 1 ? sizes[1] : 1; // a spectrum is a picture of one row
    double frames = 1;
    for (int axis = 2; axis < sizes.size(); ++axis)
        frames *= sizes[axis];
    constexpr double largestSide = 1 << 28; // keeps products of two in 64 bits
    if (width < 1 || height < 1 || frames < 1 || width > largestSide || height > largestSide || frames > INT_MAX) {
        return fault.Set(Text::tr("its size, %1 x %2 pixels in %3 frames, makes no sense").arg(width).arg(height).arg(frames),
                         DamagedAdvice());
    }
    layout.width = int(width);
    layout.height = int(height);
    layout.frames = int(frames);
    return true;
}

bool CheckCompressed(double dataBytes, const FitsLayout &layout, FileFault &fault)
{
    // Five bits for a block of 32 equal samples (RICE), 258 bytes from two bits (GZIP).
    constexpr double largestRatio = 1032;
    if (double(layout.FrameSamples()) * layout.frames * layout.StoredBytes() <= dataBytes * largestRatio)
        return true;
    return fault.Set(Text::tr("its size, %1 x %2 pixels in %3 frames, is more than its %4 compressed bytes can hold")
                         .arg(layout.width).arg(layout.height).arg(layout.frames).arg(dataBytes, 0, 'f', 0),
                     DamagedAdvice());
}

bool CheckPlain(double dataBytes, FitsLayout &layout, FileFault &fault)
{
    const double frameBytes = double(layout.FrameSamples()) * layout.StoredBytes();
    const double whole = std::floor(dataBytes / frameBytes);
    if (whole < 1) {
        return fault.Set(Text::tr("a frame of %1 x %2 pixels takes %3 bytes, but the file has only %4 after its header")
                             .arg(layout.width).arg(layout.height).arg(frameBytes, 0, 'f', 0).arg(dataBytes, 0, 'f', 0),
                         DamagedAdvice());
    }
    if (whole < layout.frames) {
        layout.missingFrames = layout.frames - int(whole);
        layout.frames = int(whole);
    }
    return true;
}

} // namespace

bool IsFitsPicture(const FitsHeader &header)
{
    const QString extension = header.Text("XTENSION");
    const bool isImage = extension.isEmpty() || extension == "IMAGE";
    return (isImage && header.Number("NAXIS", 0) >= 1) || IsCompressed(header);
}

bool ReadFitsLayout(const FitsHeader &header, qint64 fileSize, FitsLayout &layout, FileFault &fault)
{
    layout = FitsLayout();
    layout.isCompressed = IsCompressed(header);
    const QVector<double> sizes = SizesOf(header);
    if (sizes.isEmpty())
        return fault.Set(Text::tr("its header describes no picture"), DamagedAdvice());
    if (!SetSampleType(header, layout, fault) || !SetSize(sizes, layout, fault))
        return false;
    const double dataBytes = std::max(0.0, std::min(header.DataBytes(), double(fileSize - header.DataOffset())));
    return layout.isCompressed ? CheckCompressed(dataBytes, layout, fault) : CheckPlain(dataBytes, layout, fault);
}
