// SPDX-License-Identifier: GPL-3.0-or-later
#include "versionresource.h"

#include <QFile>
#include <QtEndian>

namespace {

constexpr qint64 MaximumSectionSize = 16 * 1024 * 1024;
constexpr int MaximumSections = 96; // what the format's own loader accepts
constexpr int DosHeaderSize = 64;
constexpr int DosHeaderToPeOffset = 60;
constexpr int PeHeaderSize = 24; // signature and file header
constexpr int SectionHeaderSize = 40;
constexpr int StringHeaderSize = 6; // length, value length, type

QByteArray ReadAt(QFile &file, qint64 position, qint64 size)
{
    if (position < 0 || size < 0 || position + size > file.size() || !file.seek(position))
        return QByteArray();
    const QByteArray bytes = file.read(size);
    return bytes.size() == size ? bytes : QByteArray();
}

quint16 Word(const QByteArray &bytes, int offset)
{
    return qFromLittleEndian<quint16>(bytes.constData() + offset);
}

quint32 DoubleWord(const QByteArray &bytes, int offset)
{
    return qFromLittleEndian<quint32>(bytes.constData() + offset);
}

/// UTF-16, little endian, with the closing zero.
QByteArray WideBytes(const QString &text)
{
    QByteArray bytes;
    for (const QChar &character : text) {
        bytes.append(char(character.unicode() & 0xFF));
        bytes.append(char(character.unicode() >> 8));
    }
    return bytes.append(2, '\0');
}

/// The value of the string record whose key stands at `keyOffset`; empty if there is no such record.
QString ValueOfRecord(const QByteArray &information, int keyOffset, int keySize)
{
    const int begin = keyOffset - StringHeaderSize;
    if (begin < 0 || begin % 4 != 0)
        return QString();
    const int end = begin + Word(information, begin);
    const int valueLength = Word(information, begin + 2); // in characters, with the closing zero
    const bool isText = Word(information, begin + 4) == 1;
    const int valueOffset = (keyOffset + keySize + 3) / 4 * 4;
    if (!isText || end > information.size() || valueOffset > end)
        return QString();

    QString value;
    const int last = qMin(valueLength, (end - valueOffset) / 2);
    for (int i = 0; i < last; ++i) {
        const QChar character(Word(information, valueOffset + 2 * i));
        if (character.isNull())
            break;
        value.append(character);
    }
    return value;
}

} // namespace

QByteArray ReadResourceSection(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    const QByteArray dosHeader = ReadAt(file, 0, DosHeaderSize);
    if (!dosHeader.startsWith("MZ"))
        return QByteArray();
    const qint64 peOffset = DoubleWord(dosHeader, DosHeaderToPeOffset);
    const QByteArray peHeader = ReadAt(file, peOffset, PeHeaderSize);
    if (!peHeader.startsWith(QByteArray("PE\0\0", 4)))
        return QByteArray();

    const int sections = qMin<int>(Word(peHeader, 6), MaximumSections);
    const qint64 sectionTable = peOffset + PeHeaderSize + Word(peHeader, 20);
    for (int i = 0; i < sections; ++i) {
        const QByteArray header = ReadAt(file, sectionTable + i * SectionHeaderSize, SectionHeaderSize);
        if (header.startsWith(QByteArray(".rsrc\0", 6)))
            return ReadAt(file, DoubleWord(header, 20),
                          qMin<qint64>(DoubleWord(header, 16), MaximumSectionSize));
    }
    return QByteArray();
}

QString VersionString(const QByteArray &resourceSection, const QString &key)
{
    const int title = resourceSection.indexOf(WideBytes("VS_VERSION_INFO"));
    if (key.isEmpty() || title < StringHeaderSize)
        return QString();
    // Records are aligned relative to the beginning of the version information.
    const int begin = title - StringHeaderSize;
    const QByteArray information = resourceSection.mid(begin, Word(resourceSection, begin));
    const QByteArray keyBytes = WideBytes(key);
    for (int at = information.indexOf(keyBytes); at >= 0; at = information.indexOf(keyBytes, at + 2)) {
        const QString value = ValueOfRecord(information, at, keyBytes.size());
        if (!value.isEmpty())
            return value;
    }
    return QString();
}
