// SPDX-License-Identifier: GPL-3.0-or-later
#include "tiffmetadata.h"

#include "stackorder.h"

#include <QRegularExpression>

#include <cmath>

namespace {

constexpr double micrometresPerInch = 25400;
constexpr double centimetresPerInch = 2.54;

const char descriptionKey[] = "ImageDescription";

struct TextTag
{
    ttag_t tag;
    const char *key;
};

const TextTag textTags[] = {
    {TIFFTAG_IMAGEDESCRIPTION, descriptionKey},
    {TIFFTAG_DATETIME, "DateTime"},
    {TIFFTAG_SOFTWARE, "Software"},
    {TIFFTAG_MAKE, "Make"},
    {TIFFTAG_MODEL, "Model"},
    {TIFFTAG_ARTIST, "Artist"},
    {TIFFTAG_COPYRIGHT, "Copyright"},
    {TIFFTAG_HOSTCOMPUTER, "HostComputer"},
    {TIFFTAG_DOCUMENTNAME, "DocumentName"},
    {TIFFTAG_PAGENAME, "PageName"},
};

double OmePixelSize(const QString &xml, const char *axis)
{
    const QRegularExpression size(QString("PhysicalSize%1=\"([0-9.eE+-]+)\"").arg(axis));
    const QRegularExpression unit(QString("PhysicalSize%1Unit=\"([^\"]*)\"").arg(axis));
    const QRegularExpressionMatch unitMatch = unit.match(xml);
    if (unitMatch.hasMatch() && !IsMicrometre(unitMatch.captured(1)))
        return 0;
    return size.match(xml).captured(1).toDouble();
}

double Sensible(double dpi)
{
    return std::isfinite(dpi) && dpi > 0 ? dpi : 0;
}

} // namespace

QVector<MetadataEntry> ReadTiffTexts(TIFF *tiff)
{
    QVector<MetadataEntry> entries;
    for (const TextTag &text : textTags) {
        char *value = nullptr;
        if (TIFFGetField(tiff, text.tag, &value) && value)
            entries.append({text.key, QString::fromUtf8(value), QString(), true});
    }
    return entries;
}

QString DescriptionOf(const QVector<MetadataEntry> &metadata)
{
    for (const MetadataEntry &entry : metadata) {
        if (entry.key == descriptionKey)
            return entry.value;
    }
    return QString();
}

ttag_t TiffTextTag(const QString &key)
{
    for (const TextTag &text : textTags) {
        if (key == text.key)
            return text.tag;
    }
    return 0;
}

bool IsMicrometre(const QString &unit)
{
    // ImageJ writes the sign as six letters, and there are two signs that look alike.
    return unit == "micron" || unit == "um" || unit == "\\u00B5m" || unit == "\u00b5m" || unit == "\u03bcm";
}

void ReadTiffResolution(TIFF *tiff, const QString &description, double &dpiX, double &dpiY)
{
    dpiX = dpiY = 0;
    if (IsOmeDescription(description)) {
        dpiX = Sensible(micrometresPerInch / OmePixelSize(description, "X"));
        dpiY = Sensible(micrometresPerInch / OmePixelSize(description, "Y"));
        return;
    }
    float x = 0;
    float y = 0;
    uint16_t unit = RESUNIT_INCH;
    if (!TIFFGetField(tiff, TIFFTAG_XRESOLUTION, &x) || !TIFFGetField(tiff, TIFFTAG_YRESOLUTION, &y))
        return;
    TIFFGetFieldDefaulted(tiff, TIFFTAG_RESOLUTIONUNIT, &unit);
    double unitsPerInch = 0; // no unit: the numbers only tell the shape of a pixel
    if (IsMicrometre(ImageJValue(description, "unit")))
        unitsPerInch = micrometresPerInch;
    else if (unit == RESUNIT_INCH)
        unitsPerInch = 1;
    else if (unit == RESUNIT_CENTIMETER)
        unitsPerInch = centimetresPerInch;
    dpiX = Sensible(double(x) * unitsPerInch);
    dpiY = Sensible(double(y) * unitsPerInch);
}
