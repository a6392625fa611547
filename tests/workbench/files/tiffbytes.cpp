// SPDX-License-Identifier: GPL-3.0-or-later
#include "tiffbytes.h"

#include <QtEndian>

namespace {

constexpr quint16 asciiType = 2;
constexpr quint16 longType = 4;
constexpr quint16 imageDescription = 270;

} // namespace

TiffBytes::TiffBytes(bool isBigEndian)
    : m_isBigEndian(isBigEndian)
{
    m_bytes = (isBigEndian ? "MM" : "II") + Number16(42) + Number32(0);
}

quint32 TiffBytes::Append(const QByteArray &bytes)
{
    const quint32 offset = quint32(m_bytes.size());
    m_bytes += bytes;
    return offset;
}

quint32 TiffBytes::AppendPage(const TiffTags &tags, const QByteArray &description)
{
    QMap<quint16, QByteArray> entries;
    for (auto tag = tags.begin(); tag != tags.end(); ++tag) {
        QByteArray values;
        for (const quint32 value : tag.value())
            values += Number32(value);
        const QByteArray place = tag.value().size() == 1 ? values : Number32(Append(values));
        entries[tag.key()] = Number16(tag.key()) + Number16(longType) + Number32(quint32(tag.value().size())) + place;
    }
    if (!description.isEmpty()) {
        const quint32 text = Append(description + '\0');
        entries[imageDescription] = Number16(imageDescription) + Number16(asciiType) + Number32(quint32(description.size() + 1)) + Number32(text);
    }
    const quint32 offset = quint32(m_bytes.size());
    LinkLastPage(offset);
    m_bytes += Number16(quint16(entries.size()));
    for (const QByteArray &entry : qAsConst(entries))
        m_bytes += entry;
    m_linkPlace = m_bytes.size();
    m_bytes += Number32(0);
    return offset;
}

void TiffBytes::LinkLastPage(quint32 next)
{
    m_bytes.replace(m_linkPlace, 4, Number32(next));
}

TiffTags TiffBytes::GreyPage(int width, int height, int bits, quint32 offset)
{
    return {{ImageWidth, {quint32(width)}},
            {ImageLength, {quint32(height)}},
            {BitsPerSample, {quint32(bits)}},
            {Compression, {1}},
            {Photometric, {1}},
            {StripOffsets, {offset}},
            {SamplesPerPixel, {1}},
            {RowsPerStrip, {quint32(height)}},
            {StripByteCounts, {quint32((width * bits + 7) / 8 * height)}}};
}

QByteArray TiffBytes::Number16(quint16 value) const
{
    QByteArray bytes(2, '\0');
    m_isBigEndian ? qToBigEndian(value, bytes.data()) : qToLittleEndian(value, bytes.data());
    return bytes;
}

QByteArray TiffBytes::Number32(quint32 value) const
{
    QByteArray bytes(4, '\0');
    m_isBigEndian ? qToBigEndian(value, bytes.data()) : qToLittleEndian(value, bytes.data());
    return bytes;
}
