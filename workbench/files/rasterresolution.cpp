// SPDX-License-Identifier: GPL-3.0-or-later
#include "rasterresolution.h"

#include <QCoreApplication>
#include <QFile>
#include <QtEndian>

#include <zlib.h>

#include <cmath>
#include <limits>

namespace {

constexpr double inchesPerMetre = 1 / 0.0254;
constexpr qint64 copyBytes = 1 << 20;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CopyWithResolution)
};

template <typename Number>
QByteArray BigEndian(Number number)
{
    QByteArray bytes(int(sizeof(Number)), '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

quint32 PerMetre(double dpi)
{
    return quint32(std::lround(dpi * inchesPerMetre));
}

bool SetDamaged(FileFault &fault)
{
    return fault.Set(Text::tr("its header makes no sense"), DamagedAdvice());
}

bool Put(QFile &to, const QByteArray &bytes, FileFault &fault)
{
    return to.write(bytes) == bytes.size() ? true : fault.Set(to.errorString(), DiskAdvice());
}

/// `count` bytes, or all that are left when it is negative.
bool CopyBytes(QFile &from, QFile &to, qint64 count, FileFault &fault)
{
    while (count != 0) {
        const QByteArray block = from.read(count < 0 ? copyBytes : std::min(count, copyBytes));
        if (block.isEmpty())
            return count < 0 ? true : SetDamaged(fault);
        if (!Put(to, block, fault))
            return false;
        if (count > 0)
            count -= block.size();
    }
    return true;
}

QByteArray PngChunk(const QByteArray &name, const QByteArray &content)
{
    const QByteArray summed = name + content;
    const auto sum = quint32(::crc32(0, reinterpret_cast<const Bytef *>(summed.constData()), uInt(summed.size())));
    return BigEndian(quint32(content.size())) + summed + BigEndian(sum);
}

/// The chunk stands in front of the first one of the picture's data.
bool CopyPng(QFile &from, QFile &to, double dpi, FileFault &fault)
{
    constexpr qint64 signatureBytes = 8;
    constexpr qint64 sumBytes = 4;
    if (!CopyBytes(from, to, signatureBytes, fault))
        return false;
    const QByteArray resolution = BigEndian(PerMetre(dpi)) + BigEndian(PerMetre(dpi)) + '\1';
    for (bool isWritten = false; !from.atEnd();) {
        const QByteArray start = from.read(8);
        if (start.size() < 8)
            return SetDamaged(fault);
        const qint64 length = qFromBigEndian<quint32>(start.constData());
        const QByteArray name = start.mid(4);
        if (name == "pHYs") {
            from.seek(from.pos() + length + sumBytes);
            continue;
        }
        if (name == "IDAT" && !isWritten) {
            isWritten = true;
            if (!Put(to, PngChunk("pHYs", resolution), fault))
                return false;
        }
        if (!Put(to, start, fault) || !CopyBytes(from, to, length + sumBytes, fault))
            return false;
    }
    return true;
}

/// The JFIF header stands first, or is put there.
bool CopyJpeg(QFile &from, QFile &to, double dpi, FileFault &fault)
{
    constexpr int startBytes = 2;
    constexpr int headerBytes = 18; // its marker, its length and what is in it
    const auto wholeDpi = quint16(std::lround(dpi));
    const QByteArray resolution = '\1' + BigEndian(wholeDpi) + BigEndian(wholeDpi);
    QByteArray start = from.read(startBytes);
    QByteArray header = from.peek(headerBytes);
    if (header.size() == headerBytes && header.startsWith("\xff\xe0") && header.mid(4, 5) == QByteArray("JFIF\0", 5)) {
        header.replace(11, resolution.size(), resolution);
        from.seek(startBytes + headerBytes);
    } else {
        header = QByteArray("\xff\xe0\0\x10JFIF\0\1\1", 11) + resolution + QByteArray("\0\0", 2);
    }
    return Put(to, start + header, fault) && CopyBytes(from, to, -1, fault);
}

bool CopyBmp(QFile &from, QFile &to, double dpi, FileFault &fault)
{
    constexpr int resolutionAt = 38;
    constexpr int headerSizeAt = 14;
    constexpr quint32 headerSize = 40; // an older, shorter one has no resolution
    QByteArray header = from.read(resolutionAt + 8);
    if (header.size() < resolutionAt + 8)
        return SetDamaged(fault);
    if (qFromLittleEndian<quint32>(header.constData() + headerSizeAt) < headerSize)
        return fault.Set(Text::tr("this old kind of BMP has no place for a resolution"),
                         Text::tr("Save the picture as TIFF or PNG first."));
    for (const int at : {resolutionAt, resolutionAt + 4})
        qToLittleEndian(PerMetre(dpi), header.data() + at);
    return Put(to, header, fault) && CopyBytes(from, to, -1, fault);
}

} // namespace

bool CopyWithResolution(QFile &from, QFile &to, PictureFormat format, double dpi, FileFault &fault)
{
    constexpr double mostJpegDpi = std::numeric_limits<quint16>::max();
    switch (format) {
    case PictureFormat::Png:
        return CopyPng(from, to, dpi, fault);
    case PictureFormat::Jpeg:
        if (dpi > mostJpegDpi)
            return fault.Set(Text::tr("a JPEG file holds at most %1 pixels an inch").arg(mostJpegDpi),
                             Text::tr("Choose a lower resolution."));
        return CopyJpeg(from, to, dpi, fault);
    case PictureFormat::Bmp:
        return CopyBmp(from, to, dpi, fault);
    default:
        return fault.Set(Text::tr("this format has no place for a resolution"), UnsupportedAdvice());
    }
}
