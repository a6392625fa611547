// SPDX-License-Identifier: GPL-3.0-or-later
#include "rasterpicturewriter.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QImageWriter>

#include <cstring>

namespace {

constexpr double inchesPerMetre = 1 / 0.0254;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(RasterPictureWriter)
};

QImage ShallowImage(const Picture &frame)
{
    QImage image(frame.Size(), frame.Channels() == 1 ? QImage::Format_Grayscale8 : QImage::Format_RGB888);
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(image.scanLine(y), frame.Row(y), size_t(frame.BytesPerRow()));
    return image;
}

QImage DeepImage(const Picture &frame)
{
    if (frame.Channels() == 1) {
        QImage image(frame.Size(), QImage::Format_Grayscale16);
        for (int y = 0; y < image.height(); ++y)
            std::memcpy(image.scanLine(y), frame.Row(y), size_t(frame.BytesPerRow()));
        return image;
    }
    QImage image(frame.Size(), QImage::Format_RGBX64);
    for (int y = 0; y < image.height(); ++y) {
        const quint16 *source = frame.Samples<quint16>(y);
        auto *target = reinterpret_cast<quint16 *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x, source += 3, target += 4) {
            std::copy_n(source, 3, target);
            target[3] = 0xffff;
        }
    }
    return image;
}

/// Several entries of one key, like the HISTORY of a FITS file, become one text of several lines.
void SetTexts(QImage &image, const QVector<MetadataEntry> &metadata)
{
    for (const MetadataEntry &entry : metadata) {
        const QString before = image.text(entry.key);
        image.setText(entry.key, before.isEmpty() ? entry.value : before + '\n' + entry.value);
    }
}

bool WriteFile(const QString &path, const QByteArray &bytes, FileFault &fault)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush())
        return true;
    return fault.Set(file.errorString(), DiskAdvice());
}

} // namespace

RasterPictureWriter::RasterPictureWriter(const QString &path, PictureFormat format, const SaveOptions &options)
    : PictureWriter(path, options)
    , m_format(format)
{
}

bool RasterPictureWriter::Write(const Picture &frame, FileFault &fault)
{
    const bool fits = frame.Type() == SampleType::U8 || (frame.Type() == SampleType::U16 && m_format == PictureFormat::Png);
    if (!fits || Options().frameCount != 1) {
        return fault.Set(Text::tr("%1 cannot hold %2 frames of %3 samples").arg(FormatName(m_format)).arg(Options().frameCount)
                             .arg(SampleTypeName(frame.Type())),
                         Text::tr("Save it as TIFF or FITS, or save a single frame with fewer bits."));
    }
    QImage image = frame.Type() == SampleType::U8 ? ShallowImage(frame) : DeepImage(frame);
    if (image.isNull())
        return fault.Set(Text::tr("there is not enough memory"), MemoryAdvice());
    image.setDotsPerMeterX(qRound(Options().dpiX * inchesPerMetre));
    image.setDotsPerMeterY(qRound(Options().dpiY * inchesPerMetre));
    SetTexts(image, Options().metadata);

    // To memory first: Qt's encoders do not tell a full disk from success.
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, FormatName(m_format).toLower().toLatin1());
    if (m_format == PictureFormat::Jpeg)
        writer.setQuality(Options().jpegQuality);
    if (!writer.write(image))
        return fault.Set(Text::tr("it could not be encoded"), MemoryAdvice(), writer.errorString());
    return WriteFile(TemporaryPath(), bytes, fault);
}

bool RasterPictureWriter::Finish(FileFault &)
{
    return true; // the one frame was the whole file
}
