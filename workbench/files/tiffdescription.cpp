// SPDX-License-Identifier: GPL-3.0-or-later
#include "tiffdescription.h"

#include "picture.h"
#include "stackorder.h"
#include "tiffmetadata.h"

#include <QRegularExpression>
#include <QStringList>

namespace {

/// Lines of an ImageJ description that tell how many frames there are and in which order.
bool TellsOfFrames(const QString &line)
{
    static const QStringList keys{"images", "channels", "slices", "frames", "hyperstack", "mode"};
    return keys.contains(line.section('=', 0, 0));
}

QString ImageJDescription(const QString &old, int frameCount)
{
    if (qMax(1, ImageJValue(old, "images").toInt()) == frameCount)
        return old;
    QStringList lines;
    for (const QString &line : old.split('\n')) {
        if (!TellsOfFrames(line))
            lines << line;
    }
    if (frameCount > 1)
        lines.insert(1, QString("images=%1\nslices=%1").arg(frameCount));
    return lines.join('\n');
}

QString OmeSampleType(SampleType type)
{
    switch (type) {
    case SampleType::U8: return "uint8";
    case SampleType::S8: return "int8";
    case SampleType::U16: return "uint16";
    case SampleType::S16: return "int16";
    case SampleType::U32: return "uint32";
    case SampleType::S32: return "int32";
    case SampleType::F32: return "float";
    case SampleType::F64: break;
    }
    return "double";
}

QString OmeDescription(QString xml, const Picture &frame, int frameCount)
{
    if (frame.Channels() != 1 || StackOrder::FromOme(xml, frameCount).IsEmpty())
        return QString();
    const auto replace = [&](const char *attribute, const QString &value) {
        xml.replace(QRegularExpression(QString("(<(?:\\w+:)?Pixels[^>]*\\s%1=\")[^\"]*\"").arg(attribute)), "\\1" + value + '"');
    };
    replace("SizeX", QString::number(frame.Width()));
    replace("SizeY", QString::number(frame.Height()));
    replace("Type", OmeSampleType(frame.Type()));
    return xml;
}

} // namespace

QString DescriptionForSaving(const QVector<MetadataEntry> &metadata, const Picture &frame, int frameCount)
{
    const QString old = DescriptionOf(metadata);
    if (IsImageJDescription(old))
        return ImageJDescription(old, frameCount);
    if (IsOmeDescription(old))
        return OmeDescription(old, frame, frameCount);
    QStringList lines;
    if (!old.isEmpty())
        lines << old;
    for (const MetadataEntry &entry : metadata) {
        if (TiffTextTag(entry.key) == 0)
            lines << entry.key + '=' + entry.value + (entry.comment.isEmpty() ? QString() : " / " + entry.comment);
    }
    return lines.join('\n');
}
