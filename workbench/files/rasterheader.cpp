// SPDX-License-Identifier: GPL-3.0-or-later
#include "rasterheader.h"

#include <QCoreApplication>
#include <QFile>
#include <QtEndian>

#include <cstdlib>

namespace {

constexpr double metresPerInch = 0.0254;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(RasterHeader)
};

bool SetTruncated(FileFault &fault, const QString &part, qint64 offset)
{
    return fault.Set(Text::tr("it ends in the middle of its %1 (from byte %2)").arg(part).arg(offset), DamagedAdvice());
}

/// `decoded` bytes from `stored`, when one byte can become `ratio`.
bool CheckRatio(const RasterHeader &header, double decoded, qint64 stored, int ratio, FileFault &fault)
{
    constexpr double extraBytes = 4096;
    if (decoded <= double(stored) * ratio + extraBytes)
        return true;
    return fault.Set(Text::tr("its size, %1 x %2 pixels, is more than its %3 bytes of picture data can hold")
                         .arg(header.size.width()).arg(header.size.height()).arg(stored),
                     DamagedAdvice());
}

bool CheckSize(quint64 width, quint64 height, RasterHeader &header, FileFault &fault)
{
    if (width == 0 || height == 0 || width > INT_MAX || height > INT_MAX)
        return fault.Set(Text::tr("its size, %1 x %2 pixels, makes no sense").arg(width).arg(height), DamagedAdvice());
    header.size = QSize(int(width), int(height));
    return true;
}

template <typename T>
T BigEndian(const QByteArray &bytes, int offset)
{
    return qFromBigEndian<T>(bytes.constData() + offset);
}

template <typename T>
T LittleEndian(const QByteArray &bytes, int offset)
{
    return qFromLittleEndian<T>(bytes.constData() + offset);
}

// --- PNG: a chain of chunks, each with its length ---

/// Bits of one pixel; 0 for a combination that PNG does not have.
int PngBitsPerPixel(int depth, int colourType)
{
    switch (colourType) {
    case 0:
    case 3: return depth;
    case 2: return depth * 3;
    case 4: return depth * 2;
    case 6: return depth * 4;
    default: return 0;
    }
}

bool ReadPngHeader(const QByteArray &ihdr, RasterHeader &header, int &bitsPerPixel, FileFault &fault)
{
    if (ihdr.size() < 13)
        return fault.Set(Text::tr("its header makes no sense"), DamagedAdvice());
    const int depth = uchar(ihdr[8]);
    const int colourType = uchar(ihdr[9]);
    bitsPerPixel = PngBitsPerPixel(depth, colourType);
    if (bitsPerPixel == 0 || depth > 16)
        return fault.Set(Text::tr("its colour type %1 with %2 bits makes no sense").arg(colourType).arg(depth), DamagedAdvice());
    header.channels = colourType == 0 || colourType == 4 ? 1 : 3;
    header.type = depth == 16 ? SampleType::U16 : SampleType::U8;
    return CheckSize(BigEndian<quint32>(ihdr, 0), BigEndian<quint32>(ihdr, 4), header, fault);
}

void ReadPngResolution(const QByteArray &phys, RasterHeader &header)
{
    if (phys.size() < 9 || phys[8] != 1)
        return;
    header.dpiX = BigEndian<quint32>(phys, 0) * metresPerInch;
    header.dpiY = BigEndian<quint32>(phys, 4) * metresPerInch;
}

bool ReadPng(QFile &file, RasterHeader &header, FileFault &fault)
{
    constexpr int signatureBytes = 8;
    constexpr int frameBytes = 12; // length, name and check sum of a chunk
    constexpr qint64 shortChunk = 64;
    int bitsPerPixel = 0;
    qint64 dataBytes = 0;
    qint64 offset = signatureBytes;
    while (true) {
        file.seek(offset);
        const QByteArray start = file.read(8);
        if (start.size() < 8)
            return SetTruncated(fault, Text::tr("list of parts"), offset);
        const qint64 length = BigEndian<quint32>(start, 0);
        const QByteArray name = start.mid(4);
        if (length > file.size() - offset - frameBytes)
            return SetTruncated(fault, Text::tr("part %1").arg(QString::fromLatin1(name)), offset);
        const QByteArray content = length <= shortChunk ? file.read(length) : QByteArray();
        if (name == "IHDR" && !ReadPngHeader(content, header, bitsPerPixel, fault))
            return false;
        if (name == "pHYs")
            ReadPngResolution(content, header);
        if (name == "IDAT")
            dataBytes += length;
        if (name == "IEND")
            break;
        offset += frameBytes + length;
    }
    constexpr int deflateRatio = 1032;
    const double rowBytes = 1 + double(header.size.width()) * bitsPerPixel / 8;
    return header.size.isEmpty() ? fault.Set(Text::tr("its header is missing"), DamagedAdvice())
                                 : CheckRatio(header, rowBytes * header.size.height(), dataBytes, deflateRatio, fault);
}

// --- JPEG: markers, and between them coded data in which 0xff is followed by 0 ---

bool IsFrameMarker(int marker)
{
    return marker >= 0xc0 && marker <= 0xcf && marker != 0xc4 && marker != 0xc8 && marker != 0xcc;
}

bool ReadJpegFrame(const QByteArray &segment, RasterHeader &header, FileFault &fault)
{
    if (segment.size() < 8)
        return fault.Set(Text::tr("its header makes no sense"), DamagedAdvice());
    if (segment[2] != 8)
        return fault.Set(Text::tr("its samples of %1 bits are not supported").arg(int(segment[2])), UnsupportedAdvice());
    header.channels = segment[7] == 1 ? 1 : 3;
    return CheckSize(BigEndian<quint16>(segment, 5), BigEndian<quint16>(segment, 3), header, fault);
}

void ReadJpegResolution(const QByteArray &segment, RasterHeader &header)
{
    if (segment.size() < 14 || segment.mid(2, 5) != QByteArray("JFIF\0", 5))
        return;
    constexpr double centimetresPerInch = 2.54;
    const double unitsPerInch = segment[9] == 1 ? 1 : segment[9] == 2 ? centimetresPerInch : 0;
    header.dpiX = BigEndian<quint16>(segment, 10) * unitsPerInch;
    header.dpiY = BigEndian<quint16>(segment, 12) * unitsPerInch;
}

/// First byte after `from` that is a marker's 0xff; the size if there is none.
int NextMarker(const QByteArray &bytes, int from)
{
    for (int i = bytes.indexOf('\xff', from); i >= 0 && i + 1 < bytes.size(); i = bytes.indexOf('\xff', i + 1)) {
        const int code = uchar(bytes[i + 1]);
        const bool isRestart = code >= 0xd0 && code <= 0xd7;
        if (code != 0 && code != 0xff && !isRestart)
            return i;
    }
    return bytes.size();
}

bool ReadJpeg(QFile &file, RasterHeader &header, FileFault &fault)
{
    constexpr int endOfImage = 0xd9;
    file.seek(0);
    const QByteArray bytes = file.readAll();
    int offset = NextMarker(bytes, 2);
    while (offset + 1 < bytes.size() && uchar(bytes[offset + 1]) != endOfImage) {
        const int marker = uchar(bytes[offset + 1]);
        const int length = offset + 4 <= bytes.size() ? BigEndian<quint16>(bytes, offset + 2) : 0;
        if (length < 2 || offset + 2 + length > bytes.size())
            return SetTruncated(fault, Text::tr("part %1").arg(marker, 2, 16), offset);
        const QByteArray segment = bytes.mid(offset + 2, length);
        if (IsFrameMarker(marker) && !ReadJpegFrame(segment, header, fault))
            return false;
        if (marker == 0xe0)
            ReadJpegResolution(segment, header);
        offset = NextMarker(bytes, offset + 2 + length);
    }
    if (header.size.isEmpty())
        return fault.Set(Text::tr("it has no picture"), DamagedAdvice());
    if (offset >= bytes.size())
        return SetTruncated(fault, Text::tr("picture data"), 0);
    // A block of 64 samples takes a bit at least, and colour may have a quarter of the blocks.
    constexpr int jpegRatio = 1100;
    return CheckRatio(header, double(header.size.width()) * header.size.height() * header.channels, bytes.size(), jpegRatio, fault);
}

// --- BMP: one header with fixed places, a palette, rows of whole 4 bytes ---

bool IsGreyPalette(const QByteArray &palette)
{
    for (int i = 0; i + 3 < palette.size(); i += 4) {
        if (palette[i] != palette[i + 1] || palette[i] != palette[i + 2])
            return false;
    }
    return !palette.isEmpty();
}

bool ReadBmp(QFile &file, RasterHeader &header, FileFault &fault)
{
    constexpr int fileHeaderBytes = 14;
    constexpr int infoHeaderBytes = 40;
    constexpr int runLengthRatio = 128;
    file.seek(0);
    const QByteArray head = file.read(fileHeaderBytes + infoHeaderBytes);
    if (head.size() < fileHeaderBytes + infoHeaderBytes)
        return SetTruncated(fault, Text::tr("header"), 0);
    const qint64 pixelOffset = LittleEndian<quint32>(head, 10);
    const quint32 headerBytes = LittleEndian<quint32>(head, 14);
    const int bitsPerPixel = LittleEndian<quint16>(head, 28);
    const quint32 compression = LittleEndian<quint32>(head, 30);
    if (headerBytes < infoHeaderBytes || headerBytes > 1024)
        return fault.Set(Text::tr("it is of an early kind of BMP that is not supported"), UnsupportedAdvice());
    const qint64 height = LittleEndian<qint32>(head, 22); // negative: the top row comes first
    const qint64 width = LittleEndian<qint32>(head, 18);
    if (!CheckSize(width < 0 ? 0 : quint64(width), quint64(std::llabs(height)), header, fault))
        return false;
    header.dpiX = LittleEndian<qint32>(head, 38) * metresPerInch;
    header.dpiY = LittleEndian<qint32>(head, 42) * metresPerInch;
    if (bitsPerPixel <= 8) {
        file.seek(fileHeaderBytes + headerBytes);
        const quint32 used = LittleEndian<quint32>(head, 46);
        const quint32 entries = used == 0 || used > 256 ? 1u << bitsPerPixel : used;
        header.channels = IsGreyPalette(file.read(qint64(entries) * 4)) ? 1 : 3;
    }
    const double rowBytes = double((width * bitsPerPixel + 31) / 32 * 4);
    const qint64 dataBytes = qMax(qint64(0), file.size() - pixelOffset);
    const bool isRunLength = compression == 1 || compression == 2;
    if (!isRunLength && rowBytes * header.size.height() > double(dataBytes)) {
        return fault.Set(Text::tr("a picture of %1 x %2 pixels takes %3 bytes, but the file has only %4 after its header")
                             .arg(width).arg(std::llabs(height)).arg(rowBytes * header.size.height(), 0, 'f', 0).arg(dataBytes),
                         DamagedAdvice());
    }
    return CheckRatio(header, rowBytes * header.size.height(), dataBytes, runLengthRatio, fault);
}

} // namespace

bool ReadRasterHeader(QFile &file, PictureFormat format, RasterHeader &header, FileFault &fault)
{
    header = RasterHeader();
    switch (format) {
    case PictureFormat::Png: return ReadPng(file, header, fault);
    case PictureFormat::Jpeg: return ReadJpeg(file, header, fault);
    default: return ReadBmp(file, header, fault);
    }
}
