// SPDX-License-Identifier: GPL-3.0-or-later
#include "omedescription.h"

#include "runsummary.h"

#include <QFileInfo>
#include <QXmlStreamWriter>

namespace {

const QString Namespace = "http://www.openmicroscopy.org/Schemas/OME/2016-06";
constexpr double NsPerSecond = 1e9;
constexpr double UsPerSecond = 1e6;

QString Number(double value) { return QString::number(value, 'g', 15); }

void WriteInstrument(QXmlStreamWriter &xml, const RunFacts &facts)
{
    xml.writeStartElement("Instrument");
    xml.writeAttribute("ID", "Instrument:0");
    xml.writeEmptyElement("Detector");
    xml.writeAttribute("ID", "Detector:0:0");
    xml.writeAttribute("Type", "Other");
    xml.writeAttribute("Manufacturer", facts.vendor);
    xml.writeAttribute("Model", facts.model);
    xml.writeAttribute("SerialNumber", facts.serial);
    xml.writeEndElement();
}

void WriteChannel(QXmlStreamWriter &xml, const RunFacts &facts)
{
    xml.writeStartElement("Channel");
    xml.writeAttribute("ID", "Channel:0:0");
    xml.writeAttribute("SamplesPerPixel", QString::number(facts.Channels()));
    xml.writeEmptyElement("DetectorSettings");
    xml.writeAttribute("ID", "Detector:0:0");
    xml.writeAttribute("Gain", Number(facts.gain));
    xml.writeEndElement();
}

void WritePlanes(QXmlStreamWriter &xml, const RunFacts &facts, const QVector<FrameStamp> &stamps)
{
    for (int frame = 0; frame < stamps.size(); ++frame) {
        xml.writeEmptyElement("Plane");
        xml.writeAttribute("TheZ", "0");
        xml.writeAttribute("TheC", "0");
        xml.writeAttribute("TheT", QString::number(frame));
        xml.writeAttribute(
            "DeltaT", Number(double(stamps[frame].cameraTimeNs - stamps.first().cameraTimeNs) / NsPerSecond));
        const RunFacts now = facts.At(frame);
        if (now.isAutoExposure)
            continue; // what the camera chose for this frame is not known
        xml.writeAttribute("ExposureTime", Number(now.exposureUs / UsPerSecond));
        xml.writeAttribute("ExposureTimeUnit", "s");
    }
}

void WritePixels(QXmlStreamWriter &xml, const RunFacts &facts, const QVector<FrameStamp> &stamps)
{
    xml.writeStartElement("Pixels");
    xml.writeAttribute("ID", "Pixels:0");
    xml.writeAttribute("DimensionOrder", "XYCZT");
    xml.writeAttribute("Type", facts.BitsPerSample() == 16 ? "uint16" : "uint8");
    xml.writeAttribute("SignificantBits", QString::number(facts.BitDepth()));
    xml.writeAttribute("Interleaved", facts.Channels() == 3 ? "true" : "false");
    xml.writeAttribute("BigEndian", Q_BYTE_ORDER == Q_BIG_ENDIAN ? "true" : "false");
    xml.writeAttribute("SizeX", QString::number(facts.frameSize.width()));
    xml.writeAttribute("SizeY", QString::number(facts.frameSize.height()));
    xml.writeAttribute("SizeC", QString::number(facts.Channels()));
    xml.writeAttribute("SizeZ", "1");
    xml.writeAttribute("SizeT", QString::number(stamps.size()));
    if (facts.pixelSizeUm > 0) {
        for (const char *side : { "PhysicalSizeX", "PhysicalSizeY" })
            xml.writeAttribute(side, Number(facts.pixelSizeUm));
        for (const char *unit : { "PhysicalSizeXUnit", "PhysicalSizeYUnit" })
            xml.writeAttribute(unit, QString::fromUtf8("\xc2\xb5m"));
    }
    if (facts.framesPerSecond > 0) {
        xml.writeAttribute("TimeIncrement", Number(1.0 / facts.framesPerSecond));
        xml.writeAttribute("TimeIncrementUnit", "s");
    }
    WriteChannel(xml, facts);
    xml.writeEmptyElement("TiffData");
    xml.writeAttribute("IFD", "0");
    xml.writeAttribute("PlaneCount", QString::number(stamps.size()));
    WritePlanes(xml, facts, stamps);
    xml.writeEndElement();
}

void WriteEntry(QXmlStreamWriter &xml, const QString &key, const QString &value)
{
    xml.writeStartElement("M");
    xml.writeAttribute("K", key);
    xml.writeCharacters(value);
    xml.writeEndElement();
}

void WriteAnnotations(QXmlStreamWriter &xml, const RunFacts &facts, const RunOutcome &outcome,
                      const QVector<FrameStamp> &stamps)
{
    xml.writeStartElement("StructuredAnnotations");
    xml.writeStartElement("MapAnnotation");
    xml.writeAttribute("ID", "Annotation:0");
    xml.writeAttribute("Namespace", "workbench/recording");
    xml.writeStartElement("Value");
    for (const auto &line : facts.Lines())
        WriteEntry(xml, line.first, line.second);
    for (const auto &line : OutcomeLines(facts, outcome, stamps))
        WriteEntry(xml, line.first, line.second);
    xml.writeEndElement();
    xml.writeEndElement();

    if (!facts.calibration.isEmpty()) {
        xml.writeStartElement("MapAnnotation");
        xml.writeAttribute("ID", "Annotation:Spectrum");
        xml.writeAttribute("Namespace", "workbench/spectrum");
        xml.writeStartElement("Value");
        for (const MetadataEntry &entry : facts.calibration)
            WriteEntry(xml, entry.key, entry.value);
        xml.writeEndElement();
        xml.writeEndElement();
    }

    xml.writeStartElement("MapAnnotation");
    xml.writeAttribute("ID", "Annotation:1");
    xml.writeAttribute("Namespace", "workbench/frames");
    xml.writeStartElement("Value");
    for (int frame = 0; frame < stamps.size(); ++frame) {
        const FrameStamp &stamp = stamps[frame];
        WriteEntry(xml, QString::number(frame),
                   QString("frame id %1; camera time %2 ns; host time %3 ns")
                       .arg(stamp.frameId)
                       .arg(stamp.cameraTimeNs)
                       .arg(stamp.hostTimeNs));
    }
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeEndElement();
}

} // namespace

QByteArray OmeDescription(const RunFacts &facts, const RunOutcome &outcome, const QVector<FrameStamp> &stamps,
                          const QString &path)
{
    QByteArray text;
    QXmlStreamWriter xml(&text);
    xml.writeStartDocument();
    xml.writeStartElement("OME");
    xml.writeDefaultNamespace(Namespace);
    xml.writeNamespace("http://www.w3.org/2001/XMLSchema-instance", "xsi");
    xml.writeAttribute("http://www.w3.org/2001/XMLSchema-instance", "schemaLocation",
                       Namespace + ' ' + Namespace + "/ome.xsd");
    xml.writeAttribute("Creator", facts.software);
    WriteInstrument(xml, facts);
    xml.writeStartElement("Image");
    xml.writeAttribute("ID", "Image:0");
    xml.writeAttribute("Name", QFileInfo(path).completeBaseName());
    xml.writeTextElement("AcquisitionDate", facts.start.toUTC().toString("yyyy-MM-ddTHH:mm:ss.zzz"));
    xml.writeEmptyElement("InstrumentRef");
    xml.writeAttribute("ID", "Instrument:0");
    WritePixels(xml, facts, stamps);
    for (const char *annotation : { "Annotation:0", "Annotation:1" }) {
        xml.writeEmptyElement("AnnotationRef");
        xml.writeAttribute("ID", annotation);
    }
    xml.writeEndElement();
    WriteAnnotations(xml, facts, outcome, stamps);
    xml.writeEndElement();
    xml.writeEndDocument();
    return text;
}
