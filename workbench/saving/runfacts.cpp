// SPDX-License-Identifier: GPL-3.0-or-later
#include "runfacts.h"

#include "spectralmetadata.h"

#include <QCoreApplication>
#include <QJsonArray>

#include <algorithm>

namespace {

constexpr int LargestSide = 1 << 20;
constexpr int ListedChanges = 50;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(RunFacts)
};

/// "12500", or "500 to 12500" of what changed in the run.
QString RangeText(double start, const QVector<SettingsChange> &changes, double SettingsChange::*value)
{
    double least = start;
    double most = start;
    for (const SettingsChange &change : changes) {
        least = qMin(least, change.*value);
        most = qMax(most, change.*value);
    }
    const QString text = QString::number(least, 'g', 12);
    return least < most ? Text::tr("%1 to %2").arg(text).arg(most, 0, 'g', 12) : text;
}

QString SettingText(const QString &value, bool isAuto)
{
    return isAuto ? Text::tr("automatic, %1").arg(value) : value;
}

bool IsAny(bool start, const QVector<SettingsChange> &changes, bool SettingsChange::*flag)
{
    return start
           || std::any_of(changes.cbegin(), changes.cend(),
                          [flag](const SettingsChange &change) { return change.*flag; });
}

void AddChanges(const QVector<SettingsChange> &changes, QVector<std::pair<QString, QString>> *lines)
{
    for (const SettingsChange &change : changes.mid(0, ListedChanges))
        lines->append(
            { Text::tr("From about frame %1 on").arg(change.frame + 1),
              Text::tr("exposure %1, gain %2, %3 frames/s")
                  .arg(SettingText(Text::tr("%1 us").arg(change.exposureUs, 0, 'g', 12), change.isAutoExposure),
                       SettingText(QString::number(change.gain), change.isAutoGain))
                  .arg(change.framesPerSecond, 0, 'g', 6) });
    if (changes.size() > ListedChanges)
        lines->append({ Text::tr("Later changes"), QString::number(changes.size() - ListedChanges) });
}

QJsonArray ToArray(const QVector<MetadataEntry> &entries)
{
    QJsonArray array;
    for (const MetadataEntry &entry : entries)
        array.append(QJsonArray{ entry.key, entry.value, entry.comment, entry.isText });
    return array;
}

/// What is kept comes from outside: nothing else goes into the file's header.
QVector<MetadataEntry> CalibrationFrom(const QJsonArray &array)
{
    QVector<MetadataEntry> entries;
    for (const QJsonValue &value : array) {
        const QJsonArray parts = value.toArray();
        const MetadataEntry entry{ parts[0].toString(), parts[1].toString(), parts[2].toString(), parts[3].toBool() };
        if (IsSpectralMetadata(entry))
            entries << entry;
    }
    return entries;
}

QString SizeText(const QSize &size) { return QString("%1 x %2").arg(size.width()).arg(size.height()); }

bool LayoutFromName(const QString &name, PixelLayout *layout)
{
    for (const PixelLayout candidate :
         { PixelLayout::Mono8, PixelLayout::Mono12, PixelLayout::Mono16, PixelLayout::Rgb8 }) {
        if (PixelLayoutName(candidate) != name)
            continue;
        *layout = candidate;
        return true;
    }
    return false;
}

} // namespace

QVector<std::pair<QString, QString>> RunFacts::Lines() const
{
    QVector<std::pair<QString, QString>> lines{
        { Text::tr("Camera"), QString("%1 %2").arg(vendor, model).trimmed() },
        { Text::tr("Serial number"), serial },
        { Text::tr("Firmware"), firmware },
        { Text::tr("Start"), start.toString(Qt::ISODateWithMs) },
        { Text::tr("Exposure"),
          SettingText(Text::tr("%1 us").arg(RangeText(exposureUs, changes, &SettingsChange::exposureUs)),
                      IsAny(isAutoExposure, changes, &SettingsChange::isAutoExposure)) },
        { Text::tr("Gain"), SettingText(RangeText(gain, changes, &SettingsChange::gain),
                                         IsAny(isAutoGain, changes, &SettingsChange::isAutoGain)) },
        { Text::tr("Frame rate"),
          Text::tr("%1 frames/s").arg(RangeText(framesPerSecond, changes, &SettingsChange::framesPerSecond)) },
        { Text::tr("Region"), Text::tr("%1 x %2 from (%3, %4)")
                                   .arg(region.width())
                                   .arg(region.height())
                                   .arg(region.x())
                                   .arg(region.y()) },
        { Text::tr("Binning"), SizeText(binning) },
        { Text::tr("Frame size"), SizeText(frameSize) },
        { Text::tr("Pixel format"), PixelLayoutName(layout) },
        { Text::tr("Bit depth"), Text::tr("%1 bit").arg(BitDepth()) },
    };
    if (intervalMs > 0)
        lines.append({ Text::tr("Time-lapse"), Text::tr("one frame each %1 ms").arg(intervalMs) });
    if (pixelSizeUm > 0)
        lines.append({ Text::tr("Pixel size"), Text::tr("%1 um").arg(pixelSizeUm) });
    lines.append({ Text::tr("Recorded by"), software });
    AddChanges(changes, &lines);
    return lines;
}

RunFacts RunFacts::At(int frame) const
{
    RunFacts facts = *this;
    facts.changes.clear();
    for (const SettingsChange &change : changes) {
        if (change.frame > frame)
            break;
        facts.exposureUs = change.exposureUs;
        facts.isAutoExposure = change.isAutoExposure;
        facts.gain = change.gain;
        facts.isAutoGain = change.isAutoGain;
        facts.framesPerSecond = change.framesPerSecond;
    }
    return facts;
}

QJsonObject RunFacts::ToJson() const
{
    return {
        { "vendor", vendor },
        { "model", model },
        { "serial", serial },
        { "firmware", firmware },
        { "exposureUs", exposureUs },
        { "isAutoExposure", isAutoExposure },
        { "gain", gain },
        { "isAutoGain", isAutoGain },
        { "framesPerSecond", framesPerSecond },
        { "intervalMs", intervalMs },
        { "region", QJsonArray{ region.x(), region.y(), region.width(), region.height() } },
        { "binning", QJsonArray{ binning.width(), binning.height() } },
        { "frameSize", QJsonArray{ frameSize.width(), frameSize.height() } },
        { "layout", PixelLayoutName(layout) },
        { "pixelSizeUm", pixelSizeUm },
        { "calibration", ToArray(calibration) },
        { "start", start.toString(Qt::ISODateWithMs) },
        { "software", software },
    };
}

bool RunFacts::FromJson(const QJsonObject &json, RunFacts *facts)
{
    facts->vendor = json["vendor"].toString();
    facts->model = json["model"].toString();
    facts->serial = json["serial"].toString();
    facts->firmware = json["firmware"].toString();
    facts->exposureUs = json["exposureUs"].toDouble();
    facts->isAutoExposure = json["isAutoExposure"].toBool();
    facts->gain = json["gain"].toDouble();
    facts->isAutoGain = json["isAutoGain"].toBool();
    facts->intervalMs = json["intervalMs"].toInt();
    facts->framesPerSecond = json["framesPerSecond"].toDouble();
    const QJsonArray region = json["region"].toArray();
    facts->region = QRect(region[0].toInt(), region[1].toInt(), region[2].toInt(), region[3].toInt());
    const QJsonArray binning = json["binning"].toArray();
    facts->binning = QSize(binning[0].toInt(1), binning[1].toInt(1));
    const QJsonArray size = json["frameSize"].toArray();
    facts->frameSize = QSize(size[0].toInt(), size[1].toInt());
    facts->pixelSizeUm = json["pixelSizeUm"].toDouble();
    facts->calibration = CalibrationFrom(json["calibration"].toArray());
    facts->start = QDateTime::fromString(json["start"].toString(), Qt::ISODateWithMs);
    facts->software = json["software"].toString();
    const bool hasSize = facts->frameSize.width() > 0 && facts->frameSize.height() > 0
                         && facts->frameSize.width() <= LargestSide
                         && facts->frameSize.height() <= LargestSide;
    return hasSize && LayoutFromName(json["layout"].toString(), &facts->layout);
}

QString RunOutcome::EndText() const
{
    switch (end) {
    case RunEnd::Complete:
        return Text::tr("complete");
    case RunEnd::Stopped:
        return Text::tr("stopped by the user");
    case RunEnd::CameraLost:
        return Text::tr("the camera was lost");
    case RunEnd::Fault:
        return Text::tr("ended by a fault");
    case RunEnd::Repaired:
        return Text::tr("the program had ended in mid-run; repaired later");
    }
    return QString();
}
