// SPDX-License-Identifier: GPL-3.0-or-later
#include "specalibration.h"

#include "spetext.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QtEndian>

#include <cmath>

namespace {

constexpr int mostPowers = 6;
constexpr double nanometresPerCentimetre = 1e7;

enum UnitCode
{
    NoUnitCode = 0,
    PixelCode = 1,
    UserCode = 3,
    NanometreCode = 4,
    WavenumberCode = 5,
    RamanCode = 6
};

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(SpeCalibration)
};

} // namespace

SpeCalibration::SpeCalibration(const QByteArray &bytes)
    : m_bytes(bytes)
{
}

double SpeCalibration::Number(int offset) const
{
    return qFromLittleEndian<double>(m_bytes.constData() + offset);
}

/// The one of the unit that is shown, unless there is one that was written later.
QString SpeCalibration::Label() const
{
    constexpr int isThere = 200;
    const QString later = Byte(320) == isThere ? SpeText(m_bytes, 321, 81) : QString();
    return !later.isEmpty() || Byte(16) != UserCode ? later : SpeText(m_bytes, 18, 40);
}

/// "Wavelength [Å]", "Raman shift (cm-1)" or "micron".
SpeCalibration::Unit SpeCalibration::UnitOfLabel(const QString &label)
{
    static const QRegularExpression brackets("[\\[(]([^\\])]*)[\\])]");
    static const struct
    {
        QRegularExpression pattern;
        Unit unit;
    } known[] = {
        { QRegularExpression("^(nm|nanomet(er|re)s?)$"), { SpectralUnit::Nanometre, 1 } },
        { QRegularExpression("^(å|a|[aå]ngstr[oö]ms?)$"), { SpectralUnit::Nanometre, 0.1 } },
        { QRegularExpression("^([uµμ]m|microns?|micromet(er|re)s?)$"), { SpectralUnit::Nanometre, 1000 } },
        { QRegularExpression("^(1/cm|cm\\^?-1|wavenumbers?)$"), { SpectralUnit::Wavenumber, 1 } },
    };
    const QString small = label.toLower();
    const QRegularExpressionMatch inBrackets = brackets.match(small);
    QString name = inBrackets.hasMatch() ? inBrackets.captured(1) : small;
    name.remove(' ');
    for (const auto &candidate : known) {
        if (!candidate.pattern.match(name).hasMatch())
            continue;
        const bool isShift = candidate.unit.unit == SpectralUnit::Wavenumber && small.contains("raman");
        return isShift ? Unit{ SpectralUnit::RamanShift, 1 } : candidate.unit;
    }
    return Unit();
}

SpeCalibration::Unit SpeCalibration::UnitOfPolynomial() const
{
    switch (Byte(100)) {
    case NanometreCode:
        return { SpectralUnit::Nanometre, 1 };
    case WavenumberCode:
        return { SpectralUnit::Wavenumber, 1 };
    case RamanCode:
        return { SpectralUnit::RamanShift, 1 };
    case UserCode:
        return UnitOfLabel(Label());
    default:
        return Unit();
    }
}

/// Coefficients beyond the order may be left from an older fit.
double SpeCalibration::Value(int pixel) const
{
    double value = 0;
    for (int power = Byte(101); power >= 0; --power)
        value = value * pixel + Number(263 + 8 * power);
    return value;
}

SpectralAxis SpeCalibration::Axis(int width, QString *fault) const
{
    constexpr int mostLettersOfAFile = 40;
    const int code = Byte(100);
    const int order = Byte(101);
    if (!IsValid() || code == NoUnitCode || code == PixelCode)
        return SpectralAxis();
    const Unit unit = UnitOfPolynomial();
    if (unit.unit == SpectralUnit::Pixel) {
        *fault =
            Text::tr(
                "its calibration is in a unit that is not known (\u201c%1\u201d, code %2) and is left out")
                .arg(Label().left(mostLettersOfAFile), QString::number(code));
        return SpectralAxis();
    }
    if (order < 1 || order >= mostPowers) {
        *fault =
            Text::tr(
                "its calibration is a polynomial of degree %1, where 1 to %2 are possible, and is left out")
                .arg(order)
                .arg(mostPowers - 1);
        return SpectralAxis();
    }
    SpectralAxis axis;
    axis.unit = unit.unit;
    const double laserNm = Number(311);
    axis.laserNm = std::isnormal(laserNm) && laserNm > 0 ? laserNm : 0;
    const bool wantsShift =
        Byte(16) == RamanCode && unit.unit != SpectralUnit::RamanShift && axis.laserNm != 0;
    axis.values.resize(width);
    for (int i = 0; i < width; ++i) {
        const double value = unit.factor * Value(i + 1);
        const double wavenumber =
            unit.unit == SpectralUnit::Nanometre ? nanometresPerCentimetre / value : value;
        axis.values[i] = wantsShift ? nanometresPerCentimetre / axis.laserNm - wavenumber : value;
    }
    if (wantsShift)
        axis.unit = SpectralUnit::RamanShift;
    return axis;
}
