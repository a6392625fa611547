// SPDX-License-Identifier: GPL-3.0-or-later
#include "tiffpicturewriter.h"

#include "stackorder.h"
#include "tiffdescription.h"
#include "tiffmetadata.h"

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <fcntl.h>

namespace {

constexpr double micrometresPerInch = 25400;
/// Leaves room in the 4 GB of a classic file for the page descriptions.
constexpr double largestClassicBytes = 4.0e9;
/// Large enough for few calls, small enough that a reader needs little memory for a part of a page.
constexpr qint64 stripBytes = 256 * 1024;

uint16_t SampleFormat(SampleType type)
{
    switch (type) {
    case SampleType::U8:
    case SampleType::U16:
    case SampleType::U32: return SAMPLEFORMAT_UINT;
    case SampleType::S8:
    case SampleType::S16:
    case SampleType::S32: return SAMPLEFORMAT_INT;
    case SampleType::F32:
    case SampleType::F64: break;
    }
    return SAMPLEFORMAT_IEEEFP;
}

uint32_t RowsPerStrip(const Picture &frame)
{
    return uint32_t(qBound(qint64(1), stripBytes / frame.BytesPerRow(), qint64(frame.Height())));
}

} // namespace

TiffPictureWriter::TiffPictureWriter(const QString &path, const SaveOptions &options)
    : PictureWriter(path, options)
{
}

bool TiffPictureWriter::Open(const Picture &frame, FileFault &fault)
{
    m_description = DescriptionForSaving(Options().metadata, frame, Options().frameCount);
    const QByteArray name = QFile::encodeName(TemporaryPath());
    const int fd = ::open(name.constData(), O_RDWR | O_CLOEXEC);
    if (fd < 0)
        return fault.Set(qt_error_string(errno), DiskAdvice());
    const bool bigTiff = double(frame.ByteCount()) * Options().frameCount > largestClassicBytes;
    if (!m_tiff.OpenForWriting(fd, name, bigTiff))
        return fault.Set(QCoreApplication::translate("TiffPictureWriter", "the file could not be begun"), DiskAdvice(), m_tiff.TakeMessages());
    return true;
}

bool TiffPictureWriter::Write(const Picture &frame, FileFault &fault)
{
    if (!m_tiff.Get() && !Open(frame, fault))
        return false;
    SetLayout(frame);
    if (WriteStrips(frame) && TIFFWriteDirectory(m_tiff.Get()) == 1)
        return true;
    return fault.Set(QCoreApplication::translate("TiffPictureWriter", "frame %1 could not be written").arg(FramesWritten() + 1), DiskAdvice(),
                     m_tiff.TakeMessages());
}

bool TiffPictureWriter::Finish(FileFault &fault)
{
    if (m_tiff.Close())
        return true;
    return fault.Set(QCoreApplication::translate("TiffPictureWriter", "the end of the file could not be written"), DiskAdvice(),
                     m_tiff.TakeMessages());
}

void TiffPictureWriter::SetLayout(const Picture &frame)
{
    TIFF *tiff = m_tiff.Get();
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, uint32_t(frame.Width()));
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, uint32_t(frame.Height()));
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, 8 * BytesPerSample(frame.Type()));
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, frame.Channels());
    TIFFSetField(tiff, TIFFTAG_SAMPLEFORMAT, SampleFormat(frame.Type()));
    TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, frame.Channels() == 3 ? PHOTOMETRIC_RGB : PHOTOMETRIC_MINISBLACK);
    TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, RowsPerStrip(frame));
    TIFFSetField(tiff, TIFFTAG_COMPRESSION, Options().compress ? COMPRESSION_ADOBE_DEFLATE : COMPRESSION_NONE);
    if (Options().compress)
        TIFFSetField(tiff, TIFFTAG_PREDICTOR, IsFloat(frame.Type()) ? PREDICTOR_FLOATINGPOINT : PREDICTOR_HORIZONTAL);
    SetResolution(m_description);
    if (FramesWritten() > 0)
        return;
    if (!m_description.isEmpty())
        TIFFSetField(tiff, TIFFTAG_IMAGEDESCRIPTION, m_description.toUtf8().constData());
    for (const MetadataEntry &entry : Options().metadata) {
        const ttag_t tag = TiffTextTag(entry.key);
        if (tag != 0 && tag != TIFFTAG_IMAGEDESCRIPTION)
            TIFFSetField(tiff, tag, entry.value.toUtf8().constData());
    }
}

void TiffPictureWriter::SetResolution(const QString &description)
{
    if (Options().dpiX <= 0 || Options().dpiY <= 0)
        return;
    const bool perMicrometre = IsImageJDescription(description) && IsMicrometre(ImageJValue(description, "unit"));
    const double unit = perMicrometre ? micrometresPerInch : 1;
    TIFFSetField(m_tiff.Get(), TIFFTAG_RESOLUTIONUNIT, perMicrometre ? RESUNIT_NONE : RESUNIT_INCH);
    TIFFSetField(m_tiff.Get(), TIFFTAG_XRESOLUTION, Options().dpiX / unit);
    TIFFSetField(m_tiff.Get(), TIFFTAG_YRESOLUTION, Options().dpiY / unit);
}

bool TiffPictureWriter::WriteStrips(const Picture &frame)
{
    const int rowsPerStrip = int(RowsPerStrip(frame));
    // The predictor changes what it is given, so libtiff gets a copy of a strip.
    std::vector<uchar> strip;
    for (int top = 0, index = 0; top < frame.Height(); top += rowsPerStrip, ++index) {
        const qint64 bytes = frame.BytesPerRow() * std::min(rowsPerStrip, frame.Height() - top);
        strip.assign(frame.Row(top), frame.Row(top) + bytes);
        if (TIFFWriteEncodedStrip(m_tiff.Get(), uint32_t(index), strip.data(), bytes) != bytes)
            return false;
    }
    return true;
}
