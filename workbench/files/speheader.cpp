// SPDX-License-Identifier: GPL-3.0-or-later
#include "speheader.h"

#include <cmath>

namespace {

/// The calibration of the x direction, 489 bytes.
constexpr int calibrationOffset = 3000;
constexpr int mostPowers = 6;
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
