// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectralmetadata.h"

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(SpectralMetadata)
};

constexpr char UnitKey[] = "SPECUNIT";
constexpr char SideKey[] = "SPECSIDE";
constexpr char WidthKey[] = "SPECWID";
constexpr char OriginKey[] = "SPECORIG";
constexpr char LaserKey[] = "SPECLAS";
constexpr char DegreeKey[] = "SPECDEG";
constexpr char CoefficientKey[] = "SPECC";
constexpr int MostDegree = 9;
/// Of a card of FITS, whose text has 68 letters.
constexpr int ValuesInCard = 4;

constexpr char Keys[] = "(SPEC(?:UNIT|SIDE|WID|ORIG|LAS|DEG|C[0-9])|SPL[0-9]{5})";

/// In an OME description.
const QRegularExpression &AnnotationPattern()
{
    static const QRegularExpression pattern(QString("<M K=\"%1\">([^<]*)</M>").arg(Keys));
    return pattern;
}

/// In any other: "key=value / comment".
const QRegularExpression &LinePattern()
{
    static const QRegularExpression pattern(QString("^%1=([^\\n]*?)(?: / [^\\n]*)?(?:\\n|\\z)").arg(Keys), QRegularExpression::MultilineOption);
    return pattern;
}

struct UnitName
{
    SpectralUnit unit;
    const char *name;
};

constexpr UnitName Units[] = {{SpectralUnit::Nanometre, "nm"}, {SpectralUnit::Wavenumber, "1/cm"}, {SpectralUnit::RamanShift, "Raman 1/cm"}};

QString NameOf(SpectralUnit unit)
{
    for (const UnitName &candidate : Units) {
        if (candidate.unit == unit)
            return candidate.name;
    }
    return QString();
}

SpectralUnit UnitOf(const QString &name)
{
    for (const UnitName &candidate : Units) {
        if (name == candidate.name)
            return candidate.unit;
    }
    return SpectralUnit::Pixel;
}

/// What a file says of a side, and what it says about its calibration.
struct SideTexts
{
    const char *name;
    const char *unitComment;
    const char *widthComment;
    const char *degreeComment;
};

const SideTexts &TextsOf(SpectralSide side)
{
    static const SideTexts columns{ "columns", "what the columns mean",
                                    "columns that the calibration holds for",
                                    "polynomial of the column, counted from 0" };
    static const SideTexts rows{ "rows", "what the rows mean", "rows that the calibration holds for",
                                 "polynomial of the row, from 0 at the top" };
    return side == SpectralSide::Columns ? columns : rows;
}

bool SideOf(const QString &name, SpectralSide *side)
{
    for (const SpectralSide candidate : { SpectralSide::Columns, SpectralSide::Rows }) {
        if (name != TextsOf(candidate).name)
            continue;
        *side = candidate;
        return true;
    }
    return false;
}

QString ListCard(int index) { return QString("SPL%1").arg(index, 5, 10, QChar('0')); }

MetadataEntry TextEntry(const QString &key, const QString &value, const char *comment) { return {key, value, comment, true}; }

MetadataEntry NumberEntry(const QString &key, double value, const char *comment)
{
    return {key, QString::number(value, 'G', 17), comment, false};
}

/// Unit, side, and how many pixels it holds for.
QVector<MetadataEntry> FirstEntries(SpectralUnit unit, SpectralSide side, int width)
{
    const SideTexts &texts = TextsOf(side);
    return { TextEntry(UnitKey, NameOf(unit), texts.unitComment),
             TextEntry(SideKey, texts.name, "that have a value each"),
             NumberEntry(WidthKey, width, texts.widthComment) };
}

using Values = QHash<QString, QString>;

QVector<double> Polynomial(const Values &values, int width)
{
    const int degree = values.value(DegreeKey).toInt();
    if (degree < 1 || degree > MostDegree)
        return {};
    double coefficients[MostDegree + 1] = {};
    for (int power = 0; power <= degree; ++power)
        coefficients[power] = values.value(CoefficientKey + QString::number(power)).toDouble();
    QVector<double> results(width, 0.0);
    for (int pixel = 0; pixel < width; ++pixel) {
        for (int power = degree; power >= 0; --power)
            results[pixel] = results[pixel] * pixel + coefficients[power];
    }
    return results;
}

QVector<double> Listed(const Values &values, int width)
{
    QVector<double> results;
    for (int card = 0; values.contains(ListCard(card)) && results.size() < width; ++card) {
        for (const QString &text : values.value(ListCard(card)).split(','))
            results << text.toDouble();
    }
    return results;
}

} // namespace

QVector<MetadataEntry> SpectralMetadata(const SpectralRecord &record)
{
    const int degree = record.coefficients.size() - 1;
    if (degree < 1 || degree > MostDegree || record.width <= 0)
        return {};
    QVector<MetadataEntry> entries = FirstEntries(record.unit, record.side, record.width);
    entries << TextEntry(OriginKey, record.origin, "")
            << NumberEntry(DegreeKey, degree, TextsOf(record.side).degreeComment);
    for (int power = 0; power <= degree; ++power)
        entries << NumberEntry(CoefficientKey + QString::number(power), record.coefficients[power], "");
    return entries;
}

QVector<MetadataEntry> SpectralMetadata(const SpectralAxis &axis)
{
    if (axis.IsEmpty())
        return {};
    QVector<MetadataEntry> entries = FirstEntries(axis.unit, axis.side, axis.values.size());
    if (axis.laserNm != 0)
        entries << NumberEntry(LaserKey, axis.laserNm, "[nm] line of the laser");
    for (int first = 0; first < axis.values.size(); first += ValuesInCard) {
        QStringList numbers;
        for (const double value : axis.values.mid(first, ValuesInCard))
            numbers << QString::number(value, 'g', 12);
        entries << TextEntry(ListCard(first / ValuesInCard), numbers.join(','), "");
    }
    return entries;
}

bool IsSpectralMetadata(const MetadataEntry &entry)
{
    static const QRegularExpression pattern(QString("^%1$").arg(Keys));
    return pattern.match(entry.key).hasMatch();
}

QVector<MetadataEntry> SpectralMetadataOfText(const QString &description)
{
    QVector<MetadataEntry> entries;
    for (const QRegularExpression &pattern : {AnnotationPattern(), LinePattern()}) {
        QRegularExpressionMatchIterator matches = pattern.globalMatch(description);
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            entries.append({match.captured(1), match.captured(2), QString(), true});
        }
    }
    return entries;
}

QString WithoutSpectralMetadata(const QString &description)
{
    return QString(description).remove(AnnotationPattern()).remove(LinePattern());
}

SpectralAxis AxisOfMetadata(const QVector<MetadataEntry> &metadata, const QSize &size, QString *fault)
{
    constexpr int mostLettersOfAFile = 20;
    Values values;
    for (const MetadataEntry &entry : metadata) {
        if (IsSpectralMetadata(entry))
            values.insert(entry.key, entry.value);
    }
    SpectralAxis axis;
    axis.unit = UnitOf(values.value(UnitKey));
    if (axis.unit == SpectralUnit::Pixel)
        return SpectralAxis();
    if (values.contains(SideKey) && !SideOf(values[SideKey], &axis.side)) {
        *fault =
            Text::tr(
                "its calibration is that of \u201c%1\u201d (SPECSIDE), which are neither columns nor rows, and is left out")
                .arg(values[SideKey].left(mostLettersOfAFile));
        return SpectralAxis();
    }
    const int width = PixelsOf(axis.side, size);
    if (width <= 0 || values.value(WidthKey).toDouble() != width)
        return SpectralAxis();
    axis.laserNm = values.value(LaserKey).toDouble();
    axis.values = values.contains(DegreeKey) ? Polynomial(values, width) : Listed(values, width);
    int turn = 0;
    if (axis.values.size() == width && IsSteady(axis.values, &turn))
        return axis;
    *fault = Text::tr("its calibration is damaged and is left out");
    return SpectralAxis();
}
