// SPDX-License-Identifier: GPL-3.0-or-later
#include "runjournal.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QtEndian>

#include <array>
#include <cstring>

namespace {

constexpr char Magic[] = "WBRUN01\n";
constexpr int MagicBytes = 8;
constexpr quint32 LargestHeader = 64 << 10;
constexpr int RecordBytes = 32;

using Record = std::array<uchar, RecordBytes>;

QString Translate(const char *text) { return QCoreApplication::translate("RunJournal", text); }

Record ToRecord(const FrameStamp &stamp)
{
    Record record;
    qToLittleEndian(stamp.frameId, record.data());
    qToLittleEndian(stamp.cameraTimeNs, record.data() + 8);
    qToLittleEndian(stamp.hostTimeNs, record.data() + 16);
    qToLittleEndian(stamp.checksum, record.data() + 24);
    return record;
}

FrameStamp FromRecord(const uchar *record)
{
    FrameStamp stamp;
    stamp.frameId = qFromLittleEndian<quint64>(record);
    stamp.cameraTimeNs = qFromLittleEndian<qint64>(record + 8);
    stamp.hostTimeNs = qFromLittleEndian<qint64>(record + 16);
    stamp.checksum = qFromLittleEndian<quint64>(record + 24);
    return stamp;
}

bool ReadHeader(RunDisk &disk, RunJournal::Content *content)
{
    char magic[MagicBytes];
    uchar length[4];
    if (!disk.Read(magic, MagicBytes) || std::memcmp(magic, Magic, MagicBytes) != 0 || !disk.Read(length, 4))
        return false;
    const quint32 size = qFromLittleEndian<quint32>(length);
    if (size > LargestHeader)
        return false;
    QByteArray text(int(size), Qt::Uninitialized);
    if (!disk.Read(text.data(), size))
        return false;
    const QJsonObject json = QJsonDocument::fromJson(text).object();
    const int format = json["format"].toInt(-1);
    if (format < int(RunFormat::Tiff) || format > int(RunFormat::Png))
        return false;
    content->format = RunFormat(format);
    return RunFacts::FromJson(json["facts"].toObject(), &content->facts);
}

} // namespace

bool RunJournal::Create(const QString &recording, RunFormat format, const RunFacts &facts, FileFault &fault)
{
    const QByteArray text =
        QJsonDocument(QJsonObject{ { "format", int(format) }, { "facts", facts.ToJson() } })
            .toJson(QJsonDocument::Compact);
    uchar length[4];
    qToLittleEndian(quint32(text.size()), length);
    if (!m_disk.Create(PathFor(recording), fault))
        return false;
    m_disk.Lock();
    return m_disk.Write(Magic, MagicBytes, fault) && m_disk.Write(length, 4, fault)
           && m_disk.Write(text.constData(), text.size(), fault);
}

bool RunJournal::TakeOver(const QString &recording, Content *content, FileFault &fault)
{
    if (!m_disk.OpenExisting(PathFor(recording), fault))
        return false;
    if (!m_disk.Lock())
        return fault.Set(Translate("it is still being recorded"),
                         Translate("Wait until that run has ended."));
    if (!ReadHeader(m_disk, content))
        return fault.Set(Translate("the journal beside it makes no sense"),
                         Translate("Keep the file and ask for help; its frames may be readable by hand."));
    Record record;
    while (m_disk.Read(record.data(), RecordBytes))
        content->stamps.append(FromRecord(record.data()));
    return true;
}

bool RunJournal::Append(const FrameStamp &stamp, FileFault &fault)
{
    const Record record = ToRecord(stamp);
    return m_disk.Write(record.data(), RecordBytes, fault);
}

void RunJournal::Remove()
{
    QFile::remove(m_disk.Path());
    m_disk.Close();
}
