// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumcsv.h"

#include "peakfinder.h"

#include <QStringList>

#include <algorithm>

namespace {

/// Names of keys, units and columns are for programs: they stay English.
struct Column
{
    QString name;
    const Spectrum *spectrum;
};

QString Number(double value) { return QString::number(value, 'g', 12); }

/// Whatever the value holds stays in its line.
QString Comment(const QString &key, const QString &value) { return QString("# %1: %2").arg(key, value.simplified()); }

QString RowsText(const RowBand &band) { return QString("%1 to %2").arg(band.top).arg(band.bottom - 1); }

QString UnitName(SpectralUnit unit)
{
    switch (unit) {
    case SpectralUnit::Nanometre: return "nm";
    case SpectralUnit::Wavenumber: return "1/cm";
    case SpectralUnit::RamanShift: return "1/cm, Raman shift";
    case SpectralUnit::Pixel: break;
    }
    return "pixel";
}

QString QuantityName(SpectrumQuantity quantity)
{
    switch (quantity) {
    case SpectrumQuantity::Transmission: return "transmission";
    case SpectrumQuantity::Absorbance: return "absorbance";
    case SpectrumQuantity::Counts: break;
    }
    return "counts";
}

void AddOrigin(const ExportedSpectrum &spectrum, QStringList *lines)
{
    const SpectrumProduct &product = spectrum.product;
    *lines << Comment("source", spectrum.source);
    if (product.takenMs > 0)
        *lines << Comment("date", QDateTime::fromMSecsSinceEpoch(product.takenMs, Qt::UTC).toString(Qt::ISODateWithMs));
    *lines << Comment("exported", spectrum.when.toUTC().toString(Qt::ISODateWithMs)) << Comment("frame", QString::number(product.frameId))
           << Comment("picture", QString("%1 x %2 pixels").arg(product.frameSize.width()).arg(product.frameSize.height()));
    if (product.band.bottom > product.band.top)
        *lines << Comment(product.raw.place.isHorizontal ? "rows" : "columns", RowsText(product.band));
    for (size_t track = 0; track < product.trackBands.size(); ++track)
        *lines << Comment(QString("rows of track %1").arg(track + 1), RowsText(product.trackBands[track]));
    if (product.HasSpectrum())
        *lines << Comment("corrections", product.corrections.Record());
    if (product.corrected.Count() > 0)
        *lines << Comment("corrected values", QuantityName(product.corrections.Quantity()));
}

void AddCalibration(const ExportedSpectrum &spectrum, QStringList *lines)
{
    *lines << Comment("axis", UnitName(spectrum.axis.Unit()));
    if (!spectrum.axis.IsOwn()) {
        *lines << Comment("calibration", spectrum.axis.IsCalibrated() ? "from the file" : "none");
        return;
    }
    const SpectralCalibration &calibration = spectrum.axis.Fitting();
    *lines << Comment("calibration", QString("polynomial of degree %1, wavelength in air [nm] of the pixel, counted from 0, lowest power first")
                                         .arg(calibration.Degree()));
    QStringList powers;
    for (const double coefficient : calibration.PixelCoefficients())
        powers << QString::number(coefficient, 'g', 17);
    *lines << Comment("coefficients", powers.join(' '))
           << Comment("residual", QString("%1 pixels rms").arg(spectrum.residualPixels, 0, 'g', 4));
    for (const CalibrationPoint &point : spectrum.points)
        *lines << Comment("line", QString("pixel %1 is %2 nm %3")
                                          .arg(Number(spectrum.axis.PixelHere(point.pixel)), Number(point.nm), point.line)
                                      + (point.isSaturated ? " saturated" : ""));
}

/// In the values as they were before they were smoothed, as for the marks of the plot.
void AddPeaks(const QString &key, const Spectrum &spectrum, const CalibratedAxis &axis, QStringList *lines)
{
    const std::vector<double> &values = spectrum.unsmoothed.empty() ? spectrum.values : spectrum.unsmoothed;
    for (const SpectralPeak &peak : FindPeaks(values, PeakRules(), spectrum.saturated)) {
        QString text = QString("pixel %1").arg(peak.position, 0, 'f', 2);
        if (axis.Unit() != SpectralUnit::Pixel)
            text += QString(" is %1 %2").arg(axis.At(peak.position), 0, 'g', 7).arg(UnitName(axis.Unit()));
        text += QString(", height %1, width %2 pixels").arg(peak.height, 0, 'g', 5).arg(peak.width, 0, 'f', 2);
        *lines << Comment(key, peak.isSaturated ? text + ", saturated" : text);
    }
}

void AddPeaks(const ExportedSpectrum &spectrum, QStringList *lines)
{
    const SpectrumProduct &product = spectrum.product;
    AddPeaks("peak", product.corrected.Count() > 0 ? product.corrected : product.raw, spectrum.axis, lines);
    for (size_t track = 0; track < product.tracks.size(); ++track)
        AddPeaks(QString("peak of track %1").arg(track + 1), product.tracks[track], spectrum.axis, lines);
}

QVector<Column> ColumnsOf(const SpectrumProduct &product)
{
    QVector<Column> columns;
    if (product.raw.Count() > 0)
        columns << Column{"raw", &product.raw};
    if (product.corrected.Count() > 0)
        columns << Column{"corrected", &product.corrected};
    for (size_t track = 0; track < product.tracks.size(); ++track)
        columns << Column{QString("track%1").arg(track + 1), &product.tracks[track]};
    return columns;
}

/// Empty where nobody knows.
QString SaturationText(const QVector<const Spectrum *> &spectra, int pixel)
{
    QString text;
    for (const Spectrum *spectrum : spectra) {
        if (size_t(pixel) < spectrum->saturated.size() && text != "1")
            text = QString::number(int(spectrum->saturated[size_t(pixel)]));
    }
    return text;
}

/// The binned spectrum has one, raw or corrected; each track has its own.
QVector<QVector<const Spectrum *>> SaturationColumns(const SpectrumProduct &product)
{
    QVector<QVector<const Spectrum *>> columns;
    if (product.raw.Count() > 0 || product.corrected.Count() > 0)
        columns << QVector<const Spectrum *>{&product.raw, &product.corrected};
    for (const Spectrum &track : product.tracks)
        columns << QVector<const Spectrum *>{&track};
    return columns;
}

QStringList SaturationNames(const SpectrumProduct &product)
{
    QStringList names;
    if (product.raw.Count() > 0 || product.corrected.Count() > 0)
        names << "saturated";
    for (size_t track = 0; track < product.tracks.size(); ++track)
        names << QString("saturated%1").arg(track + 1);
    return names;
}

} // namespace

QByteArray SpectrumCsv(const ExportedSpectrum &spectrum)
{
    QStringList lines;
    AddOrigin(spectrum, &lines);
    AddCalibration(spectrum, &lines);
    AddPeaks(spectrum, &lines);
    const QVector<Column> columns = ColumnsOf(spectrum.product);
    QStringList names{"pixel", "axis"};
    int count = 0;
    for (const Column &column : columns) {
        names << column.name;
        count = std::max(count, column.spectrum->Count());
    }
    const QVector<QVector<const Spectrum *>> flags = SaturationColumns(spectrum.product);
    lines << (names + SaturationNames(spectrum.product)).join(',');
    for (int pixel = 0; pixel < count; ++pixel) {
        QStringList cells{QString::number(pixel), Number(spectrum.axis.At(pixel))};
        for (const Column &column : columns)
            cells << (pixel < column.spectrum->Count() ? Number(column.spectrum->values[size_t(pixel)]) : QString());
        for (const QVector<const Spectrum *> &column : flags)
            cells << SaturationText(column, pixel);
        lines << cells.join(',');
    }
    return (lines.join('\n') + '\n').toUtf8();
}
