// SPDX-License-Identifier: GPL-3.0-or-later
#include "fitscoordinates.h"

#include <QRegularExpression>

#include <fitsio.h>

namespace {

bool Matches(const QString &key, const char *pattern)
{
    return QRegularExpression(pattern).match(key).hasMatch();
}

/// A range of pixels: which ones hold data, and where on the sensor they were.
bool IsSection(const QString &key) { return Matches(key, "^[A-Z]+SEC$"); }

/// Counted in pixels of the picture along this axis, 1 or 2, from its first pixel; 0 otherwise.
int AxisOfOrigin(const QString &key)
{
    const QRegularExpressionMatch match = QRegularExpression("^(?:CRPIX([12])[A-Z]?|LTV([12]))$").match(key);
    return (match.captured(1) + match.captured(2)).toInt();
}

/// Of the axis along the frames or of one beyond.
bool IsOfOtherAxes(const QString &key) { return Matches(key, "^C[A-Z]+[3-9][A-Z]?$"); }

bool IsCoordinate(const QString &key)
{
    if (Matches(key, "^(LT[VM]\\d(_\\d)?|[AB]P?_(ORDER|DMAX|\\d+_\\d+))$"))
        return true; // the way back to the sensor's pixels; distortion in pixels
    QByteArray card = key.leftJustified(8).toLatin1() + "= 0";
    return fits_get_keyclass(card.data()) == TYP_WCS_KEY && !IsOfOtherAxes(key);
}

void Shift(MetadataEntry &entry, int pixels)
{
    bool isNumber = false;
    const double value = QString(entry.value).replace('D', 'E').toDouble(&isNumber);
    if (isNumber)
        entry.value = QString::number(value - pixels, 'G', 15);
}

} // namespace

QVector<MetadataEntry> FitsMetadataOfRegion(const QVector<MetadataEntry> &metadata, const QSize &frameSize,
                                            const std::optional<QRect> &region)
{
    const QRect whole(QPoint(0, 0), frameSize);
    if (region == whole)
        return metadata;
    QVector<MetadataEntry> left;
    for (MetadataEntry entry : metadata) {
        if (IsSection(entry.key) || (!region && IsCoordinate(entry.key)))
            continue;
        const int axis = region ? AxisOfOrigin(entry.key) : 0;
        if (axis == 1)
            Shift(entry, region->left());
        else if (axis == 2) // the first row is the bottom of the picture
            Shift(entry, whole.bottom() - region->bottom());
        left.append(entry);
    }
    return left;
}
