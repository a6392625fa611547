// SPDX-License-Identifier: GPL-3.0-or-later
#include "rasterpicturefile.h"

#include <QCoreApplication>
#include <QImage>
#include <QImageReader>

#include <cstring>

namespace {

/// The reader takes the format from us, not from the content: what is checked is what is decoded.
void SetUp(QImageReader &reader, QFile &file, PictureFormat format)
{
    file.seek(0);
    reader.setAutoDetectImageFormat(false);
    reader.setFormat(FormatName(format).toLower().toLatin1());
    reader.setDevice(&file);
}

void CopyRows(const QImage &image, Picture &frame)
{
    for (int y = 0; y < frame.Height(); ++y)
        std::memcpy(frame.Row(y), image.constScanLine(y), size_t(frame.BytesPerRow()));
}

/// Takes the first one or three of the four 16-bit samples of a pixel.
void CopyDeepRows(const QImage &image, Picture &frame)
{
    constexpr int samplesPerPixel = 4;
    for (int y = 0; y < frame.Height(); ++y) {
        const auto *source = reinterpret_cast<const quint16 *>(image.constScanLine(y));
        quint16 *target = frame.Samples<quint16>(y);
        for (int x = 0; x < frame.Width(); ++x, source += samplesPerPixel, target += frame.Channels())
            std::copy_n(source, frame.Channels(), target);
    }
}

void CopyImage(const QImage &image, Picture &frame)
{
    if (frame.Type() == SampleType::U8)
        CopyRows(image.convertToFormat(frame.Channels() == 1 ? QImage::Format_Grayscale8 : QImage::Format_RGB888), frame);
    else if (image.format() == QImage::Format_Grayscale16)
        CopyRows(image, frame);
    else
        CopyDeepRows(image.convertToFormat(QImage::Format_RGBA64), frame);
}

} // namespace

RasterPictureFile::RasterPictureFile(const QString &path, PictureFormat format)
    : PictureFile(path)
    , m_file(path)
{
    MutableInfo().format = format;
}

bool RasterPictureFile::Open(FileFault &fault)
{
    if (!m_file.open(QIODevice::ReadOnly))
        return fault.Set(m_file.errorString(), DamagedAdvice());
    PictureInfo &info = MutableInfo();
    if (!ReadRasterHeader(m_file, info.format, m_header, fault))
        return false;
    QImageReader reader;
    SetUp(reader, m_file, info.format);
    const QStringList keys = reader.textKeys();
    for (const QString &key : keys)
        info.metadata.append({key, reader.text(key), QString(), true});
    info.frames = 1;
    info.size = m_header.size;
    info.channels = m_header.channels;
    info.sampleType = m_header.type;
    info.dpiX = m_header.dpiX;
    info.dpiY = m_header.dpiY;
    m_axis = AxisOfFirst(info.metadata);
    return true;
}

bool RasterPictureFile::Decode(int, Picture &frame, FrameRows *, FileFault &fault)
{
    QImageReader reader;
    SetUp(reader, m_file, Info().format);
    QImage image;
    if (!reader.read(&image) || image.size() != m_header.size)
        return fault.Set(QCoreApplication::translate("RasterPictureFile", "it cannot be decoded"), DamagedAdvice(), reader.errorString());
    frame.Reshape(m_header.size.width(), m_header.size.height(), m_header.channels, m_header.type);
    CopyImage(image, frame);
    return true;
}
