// SPDX-License-Identifier: GPL-3.0-or-later
#include "programfile.h"

#include <QtEndian>

namespace {

void AppendWord(QByteArray *bytes, int value)
{
    bytes->append(char(value & 0xFF)).append(char(value >> 8 & 0xFF));
}

} // namespace

QByteArray Wide(const QString &text)
{
    QByteArray bytes;
    for (const QChar &character : text)
        AppendWord(&bytes, character.unicode());
    AppendWord(&bytes, 0);
    return bytes;
}

namespace {

QByteArray Padded(QByteArray bytes)
{
    while (bytes.size() % 4 != 0)
        bytes.append('\0');
    return bytes;
}

/// A record of the version information: length, value length, type, key, value, children.
QByteArray Record(const QString &key, int valueLength, int type, const QByteArray &value,
                  const QByteArray &children)
{
    QByteArray content;
    AppendWord(&content, valueLength);
    AppendWord(&content, type);
    content += Wide(key);
    // Two bytes of length come first, so the padding is reckoned with them.
    content = Padded(QByteArray(2, '\0') + content).mid(2);
    content += value;
    if (!children.isEmpty())
        content = Padded(QByteArray(2, '\0') + content).mid(2) + children;
    QByteArray record;
    AppendWord(&record, content.size() + 2);
    return record + content;
}

} // namespace

QByteArray StringRecord(const QString &key, const QString &value)
{
    return Padded(Record(key, value.size() + 1, 1, Wide(value), QByteArray()));
}

QByteArray VersionInformation(const QByteArray &strings)
{
    const QByteArray table = Record("040904b0", 0, 1, QByteArray(), strings);
    const QByteArray stringInfo = Record("StringFileInfo", 0, 1, QByteArray(), table);
    return Record("VS_VERSION_INFO", 52, 0, QByteArray(52, '\x5A'), stringInfo);
}

QByteArray ProgramFile(const QByteArray &sectionName, const QByteArray &section)
{
    QByteArray file(0x200, '\0');
    file.replace(0, 2, "MZ");
    qToLittleEndian<quint32>(0x80, file.data() + 60);
    file.replace(0x80, 4, QByteArray("PE\0\0", 4));
    qToLittleEndian<quint16>(1, file.data() + 0x80 + 6);     // sections
    qToLittleEndian<quint16>(0xE0, file.data() + 0x80 + 20); // size of the optional header
    const int header = 0x80 + 24 + 0xE0;
    file.replace(header, sectionName.size(), sectionName);
    qToLittleEndian<quint32>(section.size(), file.data() + header + 16);
    qToLittleEndian<quint32>(file.size(), file.data() + header + 20);
    return file + section;
}
