// SPDX-License-Identifier: GPL-3.0-or-later
#include "runfacts.h"

#include <QCoreApplication>
#include <QJsonArray>

namespace {

constexpr int LargestSide = 1 << 20;

QString Translate(const char *text) { return QCoreApplication::translate("RunFacts", text); }

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
        { Translate("Camera"), QString("%1 %2").arg(vendor, model).trimmed() },
        { Translate("Serial number"), serial },
        { Translate("Firmware"), firmware },
        { Translate("Start"), start.toString(Qt::ISODateWithMs) },
        { Translate("Exposure"), Translate("%1 us").arg(exposureUs, 0, 'g', 12) },
        { Translate("Gain"), QString::number(gain) },
        { Translate("Frame rate"), Translate("%1 frames/s").arg(framesPerSecond, 0, 'g', 6) },
        { Translate("Region"), Translate("%1 x %2 from (%3, %4)")
                                   .arg(region.width())
                                   .arg(region.height())
                                   .arg(region.x())
                                   .arg(region.y()) },
        { Translate("Binning"), SizeText(binning) },
        { Translate("Frame size"), SizeText(frameSize) },
        { Translate("Pixel format"), PixelLayoutName(layout) },
        { Translate("Bit depth"), Translate("%1 bit").arg(BitDepth()) },
    };
    if (pixelSizeUm > 0)
        lines.append({ Translate("Pixel size"), Translate("%1 um").arg(pixelSizeUm) });
    lines.append({ Translate("Recorded by"), software });
    return lines;
}

QJsonObject RunFacts::ToJson() const
{
    return {
        { "vendor", vendor },
        { "model", model },
        { "serial", serial },
        { "firmware", firmware },
        { "exposureUs", exposureUs },
        { "gain", gain },
        { "framesPerSecond", framesPerSecond },
        { "region", QJsonArray{ region.x(), region.y(), region.width(), region.height() } },
        { "binning", QJsonArray{ binning.width(), binning.height() } },
        { "frameSize", QJsonArray{ frameSize.width(), frameSize.height() } },
        { "layout", PixelLayoutName(layout) },
        { "pixelSizeUm", pixelSizeUm },
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
    facts->gain = json["gain"].toDouble();
    facts->framesPerSecond = json["framesPerSecond"].toDouble();
    const QJsonArray region = json["region"].toArray();
    facts->region = QRect(region[0].toInt(), region[1].toInt(), region[2].toInt(), region[3].toInt());
    const QJsonArray binning = json["binning"].toArray();
    facts->binning = QSize(binning[0].toInt(1), binning[1].toInt(1));
    const QJsonArray size = json["frameSize"].toArray();
    facts->frameSize = QSize(size[0].toInt(), size[1].toInt());
    facts->pixelSizeUm = json["pixelSizeUm"].toDouble();
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
        return Translate("complete");
    case RunEnd::Stopped:
        return Translate("stopped by the user");
    case RunEnd::CameraLost:
        return Translate("the camera was lost");
    case RunEnd::Fault:
        return Translate("ended by a fault");
    case RunEnd::Repaired:
        return Translate("the program had ended in mid-run; repaired later");
    }
    return QString();
}
