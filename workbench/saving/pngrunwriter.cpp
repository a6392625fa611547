// SPDX-License-Identifier: GPL-3.0-or-later
#include "pngrunwriter.h"

#include "runsummary.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>

#include <cstdio>
#include <cstring>
#include <utility>

namespace {

/// Of 0 to 100: little compression, for speed.
constexpr int PngQuality = 90;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(PngRunWriter)
};

QString UnfinishedName(const QString &path) { return path + ".part"; }

/// Qt takes a keyword with a space for a part of the text.
QString Keyword(QString name) { return name.remove(' '); }

QImage::Format ImageFormat(const RunFacts &facts)
{
    if (facts.Channels() == 3)
        return QImage::Format_RGB888;
    return facts.BitsPerSample() == 16 ? QImage::Format_Grayscale16 : QImage::Format_Grayscale8;
}

} // namespace

PngRunWriter::PngRunWriter(const QString &path)
    : RunWriter(path, RunFormat::Png)
{
}

QString PngRunWriter::FramePath(const QString &path, int frame)
{
    const QFileInfo info(path);
    return QString("%1/%2_%3.png")
        .arg(info.path(), info.completeBaseName())
        .arg(frame + 1, 6, 10, QChar('0'));
}

bool PngRunWriter::CheckName(FileFault &fault) const
{
    const QFileInfo first(FramePath(Path(), 0));
    if (!first.exists())
        return true;
    return fault.Set(Text::tr("a sequence of that name is there already"),
                     Text::tr("Choose another name; recordings never replace a file."));
}

/// There is nothing to make before the first frame.
bool PngRunWriter::CreateData(FileFault &) { return true; }

bool PngRunWriter::ReopenData(int *frames, FileFault &)
{
    int whole = 0;
    while (whole < *frames && QFileInfo::exists(FramePath(Path(), whole)))
        ++whole;
    *frames = whole;
    m_placed = whole;
    return true;
}

bool PngRunWriter::AppendFrame(const uchar *samples, const FrameStamp &stamp, FileFault &fault)
{
    const QSize size = Facts().frameSize;
    QImage image(samples, size.width(), size.height(), size.width() * BytesPerPixel(Facts().layout),
                 ImageFormat(Facts()));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, "png");
    writer.setQuality(PngQuality);
    for (const auto &line : Facts().At(FramesWritten()).Lines())
        writer.setText(Keyword(line.first), line.second);
    for (const MetadataEntry &entry : Facts().calibration)
        writer.setText(entry.key, entry.value);
    writer.setText("FrameId", QString::number(stamp.frameId));
    writer.setText("CameraTime", QString("%1 ns").arg(stamp.cameraTimeNs));
    writer.setText("HostTime", QString("%1 ns").arg(stamp.hostTimeNs));
    if (!writer.write(image))
        return fault.Set(Text::tr("frame %1 could not be compressed").arg(FramesWritten() + 1),
                         MemoryAdvice(), writer.errorString());
    const QString path = FramePath(Path(), m_placed);
    RunDisk disk;
    if (!disk.Create(UnfinishedName(path), fault) || !disk.Write(bytes.constData(), bytes.size(), fault)
        || !RunDisk::Rename(UnfinishedName(path), path, fault))
        return false;
    ++m_placed;
    m_notSynced << path;
    return true;
}

/// What a torn file claims about its size is compared before memory is taken for it.
bool PngRunWriter::ReadBack(int frame, uchar *samples)
{
    QImageReader reader(FramePath(Path(), frame), "png");
    if (reader.size() != Facts().frameSize)
        return false;
    const QImage stored = reader.read();
    if (stored.isNull())
        return false;
    const QImage image = stored.convertToFormat(ImageFormat(Facts()));
    const size_t rowBytes = size_t(image.width()) * size_t(BytesPerPixel(Facts().layout));
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(samples + size_t(y) * rowBytes, image.constScanLine(y), rowBytes);
    return true;
}

bool PngRunWriter::MoveFrame(int from, int to, FileFault &fault)
{
    QFile::remove(FramePath(Path(), to)); // torn, or moved on already
    return RunDisk::Rename(FramePath(Path(), from), FramePath(Path(), to), fault);
}

std::function<int()> PngRunWriter::DataSync()
{
    return [paths = std::exchange(m_notSynced, {})] {
        FileFault fault;
        for (const QString &path : paths) {
            RunDisk disk;
            const int failed = disk.OpenExisting(path, fault) ? disk.DataSync()() : 0;
            if (failed != 0)
                return failed;
        }
        if (!paths.isEmpty())
            RunDisk::MakeNamesLasting(paths.first());
        return 0;
    };
}

bool PngRunWriter::CutTo(int frames, FileFault &)
{
    QFile::remove(UnfinishedName(FramePath(Path(), m_placed)));
    for (; m_placed > frames; --m_placed)
        QFile::remove(FramePath(Path(), m_placed - 1));
    return true;
}

/// The first file of the sequence also tells how the run ended, which nobody knew when it was written.
bool PngRunWriter::AddLedger(const RunOutcome &outcome, FileFault &fault) const
{
    const QString path = FramePath(Path(), 0);
    const QImage stored(path);
    QImage image = stored.convertToFormat(ImageFormat(Facts()));
    for (const QString &keyword : stored.textKeys())
        image.setText(keyword, stored.text(keyword));
    for (const auto &line : OutcomeLines(Facts(), outcome, Stamps()))
        image.setText(Keyword(line.first), line.second);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    RunDisk disk;
    if (stored.isNull() || !image.save(&buffer, "png", PngQuality))
        return fault.Set(Text::tr("its first frame could not be read again"), DiskAdvice());
    const bool isWritten = disk.Create(UnfinishedName(path), fault)
                           && disk.Write(bytes.constData(), bytes.size(), fault) && disk.Synchronise(fault);
    if (isWritten
        && ::rename(QFile::encodeName(UnfinishedName(path)).constData(), QFile::encodeName(path).constData())
               == 0)
        return true;
    QFile::remove(UnfinishedName(path));
    return isWritten ? fault.Set(qt_error_string(), DiskAdvice()) : false;
}

bool PngRunWriter::Complete(const RunOutcome &outcome, FileFault &fault)
{
    if (FramesWritten() > 0 && !AddLedger(outcome, fault))
        return false;
    for (int frame = 0; frame < FramesWritten(); ++frame) {
        RunDisk disk;
        if (!disk.OpenExisting(FramePath(Path(), frame), fault) || !disk.Synchronise(fault))
            return false;
    }
    return true;
}

/// The files have their names already.
bool PngRunWriter::Place(FileFault &) { return true; }

void PngRunWriter::RemoveData()
{
    FileFault fault;
    CutTo(0, fault);
}

QStringList PngRunWriter::DataFiles() const
{
    QStringList files;
    for (int frame = 0; frame < FramesWritten(); ++frame)
        files << FramePath(Path(), frame);
    return files;
}
