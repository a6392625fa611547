// SPDX-License-Identifier: GPL-3.0-or-later
#include "runjournal.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QtEndian>

#include <array>
#include <cmath>
#include <cstring>

namespace {

constexpr char Magic[] = "WBRUN01\n";
constexpr int MagicBytes = 8;
constexpr quint32 LargestHeader = 64 << 10;
constexpr int LengthBytes = 4;
constexpr int RecordBytes = 32;
constexpr quint64 LastingId = ~quint64(0);
constexpr quint64 ChangeId = ~quint64(0) - 4;
constexpr quint64 AutoExposureBit = 1;
constexpr quint64 AutoGainBit = 2;

using Record = std::array<uchar, RecordBytes>;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(RunJournal)
};

Record ToRecord(const FrameStamp &stamp)
{
    Record record;
    qToLittleEndian(stamp.frameId, record.data());
    qToLittleEndian(stamp.cameraTimeNs, record.data() + 8);
    qToLittleEndian(stamp.hostTimeNs, record.data() + 16);
    qToLittleEndian(stamp.checksum, record.data() + 24);
    return record;
}

quint64 ToBits(double number)
{
    quint64 bits = 0;
    std::memcpy(&bits, &number, sizeof(bits));
    return bits;
}

double ToDouble(quint64 bits)
{
    double number = 0;
    std::memcpy(&number, &bits, sizeof(number));
    return std::isfinite(number) ? number : 0;
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

void TakeRecord(const FrameStamp &record, RunJournal::Content *content)
{
    if (record.frameId == LastingId) {
        content->lasting = int(qBound(qint64(0), record.cameraTimeNs, qint64(content->stamps.size())));
    } else if (record.frameId >= ChangeId) {
        SettingsChange change;
        change.isAutoExposure = (record.frameId - ChangeId) & AutoExposureBit;
        change.isAutoGain = (record.frameId - ChangeId) & AutoGainBit;
        change.frame = content->stamps.size();
        change.exposureUs = ToDouble(quint64(record.cameraTimeNs));
        change.gain = ToDouble(quint64(record.hostTimeNs));
        change.framesPerSecond = ToDouble(record.checksum);
        content->facts.changes.append(change);
    } else {
        content->stamps.append(record);
    }
}

bool ReadHeader(RunDisk &disk, RunJournal::Content *content)
{
    char magic[MagicBytes];
    uchar length[LengthBytes];
    if (!disk.Read(magic, MagicBytes) || std::memcmp(magic, Magic, MagicBytes) != 0
        || !disk.Read(length, LengthBytes))
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
    QByteArray text =
        QJsonDocument(QJsonObject{ { "format", int(format) }, { "facts", facts.ToJson() } })
            .toJson(QJsonDocument::Compact);
    uchar length[LengthBytes];
    const int unpadded = MagicBytes + LengthBytes + text.size();
    text.append(QByteArray((RecordBytes - unpadded % RecordBytes) % RecordBytes, ' '));
    qToLittleEndian(quint32(text.size()), length);
    if (!m_disk.Create(PathFor(recording), fault))
        return false;
    m_disk.Lock();
    if (m_disk.Write(Magic, MagicBytes, fault) && m_disk.Write(length, LengthBytes, fault)
        && m_disk.Write(text.constData(), text.size(), fault) && m_disk.Synchronise(fault))
        return true;
    Remove();
    return false;
}

bool RunJournal::TakeOver(const QString &recording, Content *content, FileFault &fault)
{
    if (!m_disk.OpenExisting(PathFor(recording), fault))
        return false;
    if (!m_disk.Lock())
        return fault.Set(Text::tr("it is still being recorded"),
                         Text::tr("Wait until that run has ended."));
    if (!ReadHeader(m_disk, content))
        return fault.Set(Text::tr("the journal beside it makes no sense"),
                         Text::tr("Keep the file and ask for help; its frames may be readable by hand."));
    Record record;
    while (m_disk.Read(record.data(), RecordBytes))
        TakeRecord(FromRecord(record.data()), content);
    return true;
}

bool RunJournal::AppendLasting(int frames, FileFault &fault)
{
    FrameStamp record;
    record.frameId = LastingId;
    record.cameraTimeNs = frames;
    return Append(record, fault);
}

bool RunJournal::AppendChange(const SettingsChange &change, FileFault &fault)
{
    FrameStamp record;
    record.frameId =
        ChangeId + (change.isAutoExposure ? AutoExposureBit : 0) + (change.isAutoGain ? AutoGainBit : 0);
    record.cameraTimeNs = qint64(ToBits(change.exposureUs));
    record.hostTimeNs = qint64(ToBits(change.gain));
    record.checksum = ToBits(change.framesPerSecond);
    return Append(record, fault);
}

bool RunJournal::Append(const FrameStamp &stamp, FileFault &fault)
{
    const Record record = ToRecord(stamp);
    return m_disk.Write(record.data(), RecordBytes, fault);
}

void RunJournal::Forget(const QString &recording) { QFile::remove(PathFor(recording)); }

void RunJournal::Remove()
{
    QFile::remove(m_disk.Path());
    m_disk.Close();
}
