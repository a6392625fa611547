// SPDX-License-Identifier: GPL-3.0-or-later
#include "speheader.h"

#include <algorithm>
#include <cmath>

namespace {

/// The calibration of the x direction, 489 bytes.
constexpr int calibrationOffset = 3000;
constexpr int mostPowers = 6;
/// Six numbers each: first and last column, columns that became one, and the same of the rows.
constexpr int regionsOffset = 1512;
constexpr int regionBytes = 12;
constexpr double nanometresPerCentimetre = 1e7;

enum UnitCode { NanometreCode = 4, WavenumberCode = 5, RamanCode = 6 };

SpectralUnit UnitOf(int code)
{
    switch (code) {
    case NanometreCode: return SpectralUnit::Nanometre;
    case WavenumberCode: return SpectralUnit::Wavenumber;
    case RamanCode: return SpectralUnit::RamanShift;
    default: return SpectralUnit::Pixel;
    }
}

} // namespace

SpeHeader::SpeHeader(const QByteArray &bytes)
    : m_bytes(bytes)
{
}

QString SpeHeader::Text(int offset, int size) const
{
    const QByteArray field = m_bytes.mid(offset, size);
    return QString::fromLatin1(field.left(field.indexOf('\0') < 0 ? size : field.indexOf('\0'))).trimmed();
}

/// An experiment may have more of them than the list has room for.
int SpeHeader::Regions() const
{
    const int inList = Number<qint16>(1510);
    const int inExperiment = Number<qint16>(1488);
    return std::max(1, inList < mostRegionsTold ? inList : std::max(inList, inExperiment));
}

SpeSensorRegion SpeHeader::Region(int index) const
{
    const auto number = [this, index](int place) { return int(Number<quint16>(regionsOffset + regionBytes * index + 2 * place)); };
    const QPoint first(number(0), number(3)); // from 1, both ends within
    const QPoint last(number(1), number(4));
    const QSize binning(number(2), number(5));
    const int columns = Number<quint16>(6); // of the detector; 0 when the file does not say
    const int rows = Number<quint16>(18);
    const bool isWithin = (columns == 0 || last.x() <= columns) && (rows == 0 || last.y() <= rows);
    if (first.x() < 1 || first.y() < 1 || last.x() < first.x() || last.y() < first.y() || binning.isEmpty() || !isWithin)
        return SpeSensorRegion();
    return {QRect(first - QPoint(1, 1), last - QPoint(1, 1)), binning};
}

SpectralAxis SpeHeader::Axis() const
{
    const auto byteAt = [this](int offset) { return int(Number<quint8>(calibrationOffset + offset)); };
    const bool isValid = byteAt(98) == 1;
    const int order = byteAt(101);
    SpectralAxis axis;
    axis.unit = UnitOf(byteAt(100));
    if (!isValid || axis.unit == SpectralUnit::Pixel || order < 1 || order >= mostPowers)
        return SpectralAxis();
    axis.laserNm = Number<double>(calibrationOffset + 311);
    const bool wantsRaman = UnitOf(byteAt(16)) == SpectralUnit::RamanShift && axis.unit == SpectralUnit::Nanometre
        && std::isnormal(axis.laserNm);

    axis.values.resize(Width());
    for (int i = 0; i < axis.values.size(); ++i) {
        // Coefficients beyond the order may be left from an older fit. Pixels count from 1.
        double value = 0;
        for (int power = order; power >= 0; --power)
            value = value * (i + 1) + Number<double>(calibrationOffset + 263 + 8 * power);
        axis.values[i] = wantsRaman ? nanometresPerCentimetre * (1 / axis.laserNm - 1 / value) : value;
    }
    if (wantsRaman)
        axis.unit = SpectralUnit::RamanShift;
    return axis;
}
