// SPDX-License-Identifier: GPL-3.0-or-later
#include "stackorder.h"

#include <QCoreApplication>
#include <QXmlStreamReader>

namespace {

QString ChannelName() { return QCoreApplication::translate("StackOrder", "channel"); }
QString SliceName() { return QCoreApplication::translate("StackOrder", "slice"); }
QString TimeName() { return QCoreApplication::translate("StackOrder", "time"); }

} // namespace

bool IsImageJDescription(const QString &description)
{
    return description.startsWith("ImageJ=");
}

bool IsOmeDescription(const QString &description)
{
    return description.contains("<OME") && description.contains("http://www.openmicroscopy.org/Schemas/");
}

QString ImageJValue(const QString &description, const QString &key)
{
    const QStringList lines = description.split('\n');
    for (const QString &line : lines) {
        if (line.startsWith(key + '='))
            return line.mid(key.size() + 1).trimmed();
    }
    return QString();
}

StackOrder StackOrder::FromImageJ(const QString &description, int frames)
{
    StackOrder order;
    const auto size = [&](const char *key) { return qMax(1, ImageJValue(description, key).toInt()); };
    order.Append(ChannelName(), size("channels"));
    order.Append(SliceName(), size("slices"));
    order.Append(TimeName(), size("frames"));
    order.ClearUnlessFits(frames);
    return order;
}

StackOrder StackOrder::FromOme(const QString &xml, int frames)
{
    StackOrder order;
    QXmlStreamReader reader(xml);
    QString dimensions;
    int sizeC = 1;
    int sizeZ = 1;
    int sizeT = 1;
    QStringList channels;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("Pixels")) {
            const QXmlStreamAttributes attributes = reader.attributes();
            dimensions = attributes.value("DimensionOrder").toString();
            sizeC = qMax(1, attributes.value("SizeC").toInt());
            sizeZ = qMax(1, attributes.value("SizeZ").toInt());
            sizeT = qMax(1, attributes.value("SizeT").toInt());
        } else if (reader.isStartElement() && reader.name() == QLatin1String("Channel")) {
            channels << reader.attributes().value("Name").toString();
        } else if (reader.isEndElement() && reader.name() == QLatin1String("Pixels")) {
            break; // further pictures of the file have an order of their own
        }
    }
    for (const QChar axis : dimensions) {
        if (axis == 'C')
            order.Append(ChannelName(), sizeC, channels);
        else if (axis == 'Z')
            order.Append(SliceName(), sizeZ);
        else if (axis == 'T')
            order.Append(TimeName(), sizeT);
    }
    order.ClearUnlessFits(frames);
    return order;
}

QString StackOrder::Describe(int frame) const
{
    QStringList parts;
    for (const Axis &axis : m_axes) {
        const int position = frame % axis.size;
        frame /= axis.size;
        if (axis.size == 1)
            continue;
        QString part = QCoreApplication::translate("StackOrder", "%1 %2 of %3").arg(axis.name).arg(position + 1).arg(axis.size);
        const QString label = axis.labels.value(position);
        if (!label.isEmpty())
            part += QString(" (%1)").arg(label);
        parts << part;
    }
    return parts.join(", ");
}

void StackOrder::Append(const QString &name, int size, const QStringList &labels)
{
    m_axes.append({name, size, labels});
}

void StackOrder::ClearUnlessFits(int frames)
{
    double product = 1;
    for (const Axis &axis : qAsConst(m_axes))
        product *= axis.size;
    if (product != frames)
        m_axes.clear();
}
