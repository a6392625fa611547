// SPDX-License-Identifier: GPL-3.0-or-later
#include "tiffdescription.h"

#include "picture.h"
#include "spectralmetadata.h"
#include "stackorder.h"
#include "tiffmetadata.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <iterator>

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

QString WithLines(const QString &text, const QVector<MetadataEntry> &entries)
{
    QStringList lines;
    if (!text.isEmpty())
        lines << text;
    for (const MetadataEntry &entry : entries)
        lines << entry.key + '=' + entry.value + (entry.comment.isEmpty() ? QString() : " / " + entry.comment);
    return lines.join('\n');
}

/// In an annotation of its own; `xml` is that of a whole OME description.
QString WithSpectralAnnotation(const QString &xml, const QVector<MetadataEntry> &spectral)
{
    if (xml.isEmpty() || spectral.isEmpty())
        return WithLines(xml, spectral);
    QString annotation = "<MapAnnotation ID=\"Annotation:Spectrum\" Namespace=\"workbench/spectrum\"><Value>";
    for (const MetadataEntry &entry : spectral)
        annotation += QString("<M K=\"%1\">%2</M>").arg(entry.key, entry.value.toHtmlEscaped());
    annotation += "</Value></MapAnnotation>";
    const int others = xml.lastIndexOf("</StructuredAnnotations>");
    if (others >= 0)
        return QString(xml).insert(others, annotation);
    const int end = xml.lastIndexOf("</OME>");
    return end < 0 ? xml : QString(xml).insert(end, "<StructuredAnnotations>" + annotation + "</StructuredAnnotations>");
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
    const QString old = WithoutSpectralMetadata(DescriptionOf(metadata));
    QVector<MetadataEntry> spectral;
    std::copy_if(metadata.begin(), metadata.end(), std::back_inserter(spectral), IsSpectralMetadata);
    if (IsImageJDescription(old))
        return WithLines(ImageJDescription(old, frameCount), spectral);
    if (IsOmeDescription(old))
        return WithSpectralAnnotation(OmeDescription(old, frame, frameCount), spectral);
    QVector<MetadataEntry> others;
    std::copy_if(metadata.begin(), metadata.end(), std::back_inserter(others),
                 [](const MetadataEntry &entry) { return TiffTextTag(entry.key) == 0; });
    return WithLines(old, others);
}
