// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictureformat.h"

#include <QFileInfo>

namespace {

struct FormatRow
{
    PictureFormat format;
    const char *name;
    const char *suffixes;
};

const FormatRow formatTable[] = {
    {PictureFormat::Tiff, "TIFF", "tif tiff btf tf8"},
    {PictureFormat::Fits, "FITS", "fits fit fts"},
    {PictureFormat::Png, "PNG", "png"},
    {PictureFormat::Jpeg, "JPEG", "jpg jpeg jpe"},
    {PictureFormat::Bmp, "BMP", "bmp dib"},
    {PictureFormat::Spe, "SPE", "spe"},
};

const FormatRow *RowOf(PictureFormat format)
{
    for (const FormatRow &row : formatTable) {
        if (row.format == format)
            return &row;
    }
    return nullptr;
}

} // namespace

PictureFormat FormatOfContent(const QByteArray &firstBytes)
{
    const auto startsWith = [&](const char *magic, int size) { return firstBytes.startsWith(QByteArray::fromRawData(magic, size)); };
    if (startsWith("II*\0", 4) || startsWith("MM\0*", 4) || startsWith("II+\0", 4) || startsWith("MM\0+", 4))
        return PictureFormat::Tiff;
    if (startsWith("SIMPLE  =", 9))
        return PictureFormat::Fits;
    if (startsWith("\x89PNG\r\n\x1a\n", 8))
        return PictureFormat::Png;
    if (startsWith("\xff\xd8\xff", 3))
        return PictureFormat::Jpeg;
    // "BM" alone begins many a text; a real header has four zero bytes at 6.
    if (startsWith("BM", 2) && firstBytes.mid(6, 4) == QByteArray(4, '\0'))
        return PictureFormat::Bmp;
    constexpr int speMarkOffset = 2996;
    if (firstBytes.mid(speMarkOffset, 4) == QByteArray::fromHex("67452301"))
        return PictureFormat::Spe;
    return PictureFormat::Unknown;
}

PictureFormat FormatOfName(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    for (const FormatRow &row : formatTable) {
        if (FormatSuffixes(row.format).contains(suffix))
            return row.format;
    }
    return PictureFormat::Unknown;
}

QString FormatName(PictureFormat format)
{
    const FormatRow *row = RowOf(format);
    return row ? QString(row->name) : QString();
}

QStringList OpenableSuffixes()
{
    QStringList suffixes;
    for (const FormatRow &row : formatTable)
        suffixes += FormatSuffixes(row.format);
    return suffixes;
}

QStringList FormatSuffixes(PictureFormat format)
{
    const FormatRow *row = RowOf(format);
    return row ? QString(row->suffixes).split(' ') : QStringList();
}
