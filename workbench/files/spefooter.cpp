// SPDX-License-Identifier: GPL-3.0-or-later
#include "spefooter.h"

#include "filefault.h"

#include <QCoreApplication>
#include <QXmlStreamReader>

#include <cmath>
#include <limits>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(SpeFooter)
};

/// Real data blocks refer to two or three calibrations.
QStringList ReferencesOf(const QXmlStreamAttributes &attributes)
{
    constexpr int mostLetters = 1024;
    return attributes.value("calibrations").left(mostLetters).toString().split(',', Qt::SkipEmptyParts);
}

/// "nm,nm,…", or "nm,error nm,error …" of which the first of each pair counts.
QVector<double> ReadWavelengths(const QString &text, bool withErrors)
{
    QVector<double> values;
    const QStringList items = withErrors ? text.split(QChar(' '), Qt::SkipEmptyParts) : text.split(',', Qt::SkipEmptyParts);
    values.reserve(items.size());
    for (const QString &item : items) {
        bool isNumber = false;
        const double value = item.section(',', 0, 0).trimmed().toDouble(&isNumber);
        if (!isNumber || !std::isfinite(value))
            return {};
        values << value;
    }
    return values;
}

SpeSensorRegion ReadMapping(const QXmlStreamAttributes &attributes)
{
    constexpr int most = 1000000000; // two of them can be added
    const auto number = [&](const char *name) { return qBound(-most, attributes.value(name).toInt(), most); };
    return { QRect(number("x"), number("y"), number("width"), number("height")),
             QSize(qMax(1, number("xBinning")), qMax(1, number("yBinning"))) };
}

/// A column of a binned region stands for several of the sensor: their mean.
QVector<double> ValuesOfRegion(const QVector<double> &ofSensor, const SpeSensorRegion &mapping, int width)
{
    const qint64 first = mapping.pixels.x();
    const int binning = mapping.binning.width();
    if (first < 0 || width <= 0 || first + qint64(width) * binning > ofSensor.size())
        return {};
    QVector<double> values(width);
    for (int i = 0; i < width; ++i) {
        double sum = 0;
        for (int k = 0; k < binning; ++k)
            sum += ofSensor[int(first) + i * binning + k];
        values[i] = sum / binning;
    }
    return values;
}

bool ReadPixelFormat(const QString &name, SampleType &type)
{
    const QHash<QString, SampleType> types = {{"MonochromeUnsigned16", SampleType::U16},
                                              {"MonochromeUnsigned32", SampleType::U32},
                                              {"MonochromeFloating32", SampleType::F32}};
    type = types.value(name, SampleType::U8);
    return types.contains(name);
}

bool ReadFrameBlock(const QXmlStreamAttributes &attributes, SpeLayout &layout, SpeCalibrations &calibrations,
                    FileFault &fault)
{
    const QString format = attributes.value("pixelFormat").toString();
    if (!ReadPixelFormat(format, layout.type))
        return fault.Set(Text::tr("its samples (%1) are of a kind that is not supported").arg(format), UnsupportedAdvice());
    const qint64 count = attributes.value("count").toLongLong();
    layout.frames = int(qBound(qint64(0), count, qint64(std::numeric_limits<int>::max())));
    layout.frameStride = attributes.value("stride").toLongLong();
    calibrations.ofFrame = ReferencesOf(attributes);
    return true;
}

void ReadRegionBlock(const QXmlStreamAttributes &attributes, qint64 &offset, SpeLayout &layout,
                     SpeCalibrations &calibrations)
{
    SpeRegion region;
    region.width = attributes.value("width").toInt();
    region.height = attributes.value("height").toInt();
    region.offset = offset;
    // A stride beyond reason is found when the regions are checked.
    offset = qBound(qint64(-1), attributes.value("stride").toLongLong(), std::numeric_limits<qint64>::max() / 2 - offset)
        + offset;
    layout.regions << region;
    calibrations.ofRegions << ReferencesOf(attributes);
}

/// Facts of the experiment, by where they stand in it.
void ReadFact(const QString &path, const QString &text, SpeLayout &layout)
{
    static const struct { const char *path; const char *key; const char *unit; } facts[] = {
        {"/Camera/ShutterTiming/ExposureTime", "ExposureTime", "ms"},
        {"/Camera/Sensor/Temperature/Reading", "SensorTemperature", "°C"},
        {"/Camera/Adc/AnalogGain", "AnalogGain", ""},
        {"/Spectrometer/Grating/CenterWavelength", "CenterWavelength", "nm"},
        {"/Spectrometer/Grating/Selected", "Grating", ""},
    };
    for (const auto &fact : facts) {
        if (!path.endsWith(fact.path) || text.trimmed().isEmpty())
            continue;
        bool isNumber = false;
        text.toDouble(&isNumber);
        layout.metadata.append({fact.key, text.trimmed(), fact.unit, !isNumber});
    }
}

} // namespace

bool ReadSpeFooter(const QByteArray &xml, SpeLayout &layout, SpeCalibrations &calibrations, FileFault &fault)
{
    constexpr int deepest = 64;
    constexpr int mostRegions = 4096;
    QXmlStreamReader reader(xml);
    QStringList path;
    QString mappingId;
    QString text; ///< of the innermost element
    qint64 regionOffset = 0;
    while (!reader.atEnd() && path.size() < deepest && layout.regions.size() < mostRegions) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement: {
            const QXmlStreamAttributes attributes = reader.attributes();
            path << reader.name().toString();
            text.clear();
            const QString id = attributes.value("id").toString();
            if (path.last() == "DataBlock" && attributes.value("type") == QLatin1String("Frame")) {
                if (!ReadFrameBlock(attributes, layout, calibrations, fault))
                    return false;
            } else if (path.last() == "DataBlock" && attributes.value("type") == QLatin1String("Region")) {
                ReadRegionBlock(attributes, regionOffset, layout, calibrations);
            } else if (path.last() == "SensorMapping") {
                calibrations.mappings[id] = ReadMapping(attributes);
            } else if (path.last() == "WavelengthMapping") {
                mappingId = id;
                calibrations.lasers[id] = attributes.value("laserLine").toDouble();
            }
            break;
        }
        case QXmlStreamReader::Characters:
            text += reader.text();
            break;
        case QXmlStreamReader::EndElement:
            if (path.size() > 1 && path[path.size() - 2] == QLatin1String("WavelengthMapping"))
                calibrations.wavelengths[mappingId] = ReadWavelengths(text, path.last() == "WavelengthError");
            else
                ReadFact('/' + path.join('/'), text, layout);
            text.clear();
            path.removeLast();
            break;
        default:
            break;
        }
    }
    if (reader.hasError())
        return fault.Set(Text::tr("its description (XML at the end) breaks off or is damaged in line %1").arg(reader.lineNumber()),
                         DamagedAdvice(), reader.errorString());
    if (layout.regions.isEmpty() || layout.frameStride <= 0)
        return fault.Set(Text::tr("its description (XML at the end) tells of no frames"), DamagedAdvice());
    return true;
}

void CalibrateRegions(const SpeCalibrations &calibrations, SpeLayout &layout)
{
    for (int i = 0; i < layout.regions.size(); ++i) {
        SpeRegion &region = layout.regions[i];
        SpeSensorRegion mapping;
        QString list; // the last one counts
        for (const QString &id : calibrations.ofFrame + calibrations.ofRegions[i]) {
            mapping = calibrations.mappings.value(id, mapping);
            if (calibrations.wavelengths.contains(id))
                list = id;
        }
        if (mapping.pixels.isValid())
            region.onSensor = mapping;
        if (list.isEmpty())
            continue;
        region.axis.values = ValuesOfRegion(calibrations.wavelengths[list], mapping, region.width);
        region.axis.unit = region.axis.IsEmpty() ? SpectralUnit::Pixel : SpectralUnit::Nanometre;
        region.axis.laserNm = calibrations.lasers.value(list);
        if (region.axis.IsEmpty())
            layout.Warn(Text::tr("its list of wavelengths does not fit its columns and is left out"));
    }
}
