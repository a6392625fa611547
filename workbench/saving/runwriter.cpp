// SPDX-License-Identifier: GPL-3.0-or-later
#include "runwriter.h"

#include "fitsrunwriter.h"
#include "pngrunwriter.h"
#include "runchecksum.h"
#include "runsummary.h"
#include "tiffrunwriter.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cstring>

namespace {

QString Translate(const char *text) { return QCoreApplication::translate("RunWriter", text); }

bool Report(bool done, const QString &path, const FileFault &fault, QString *error)
{
    if (!done)
        *error = WriteFaultText(path, fault);
    return done;
}

} // namespace

RunWriter::RunWriter(const QString &path, RunFormat format)
    : m_path(path)
    , m_format(format)
{
}

bool RunWriter::Begin(const RunFacts &facts, QString *error)
{
    m_facts = facts;
    FileFault fault;
    if (!CheckName(fault) || !m_journal.Create(m_path, m_format, facts, fault))
        return Report(false, m_path, fault, error);
    if (CreateData(fault))
        return true;
    m_journal.Remove();
    return Report(false, m_path, fault, error);
}

bool RunWriter::CheckName(FileFault &fault) const
{
    if (!QFileInfo::exists(m_path))
        return true;
    return fault.Set(Translate("a file of that name is there already"),
                     Translate("Choose another name; recordings never replace a file."));
}

bool RunWriter::Resume(QString *error)
{
    FileFault fault;
    RunJournal::Content content;
    if (!m_journal.TakeOver(m_path, &content, fault))
        return Report(false, m_path, fault, error);
    m_facts = content.facts;
    m_stamps = content.stamps;
    int frames = m_stamps.size();
    if (!ReopenData(&frames, fault))
        return Report(false, m_path, fault, error);
    m_stamps.resize(frames);
    return Report(CutTo(frames, fault), m_path, fault, error);
}

const uchar *RunWriter::Packed(const CameraFrame &frame)
{
    const qint64 rowBytes = qint64(frame.width) * BytesPerPixel(frame.layout);
    if (frame.strideBytes == rowBytes)
        return frame.pixels.get();
    m_packed.resize(size_t(rowBytes) * size_t(frame.height));
    for (int y = 0; y < frame.height; ++y)
        std::memcpy(m_packed.data() + y * rowBytes, frame.Row(y), size_t(rowBytes));
    return m_packed.data();
}

bool RunWriter::Write(const CameraFrame &frame, QString *error)
{
    FileFault fault;
    if (QSize(frame.width, frame.height) != m_facts.frameSize || frame.layout != m_facts.layout) {
        fault.Set(Translate("a frame of another size or pixel format came (%1 x %2, %3)")
                      .arg(frame.width)
                      .arg(frame.height)
                      .arg(PixelLayoutName(frame.layout)),
                  Translate("Change the camera's format between recordings only."));
        return Report(false, m_path, fault, error);
    }
    const uchar *samples = Packed(frame);
    const FrameStamp stamp{ frame.frameId, frame.cameraTimeNs, frame.hostTimeNs,
                            RunChecksum::OfFrame(samples, m_facts.FrameBytes()) };
    if (AppendFrame(samples, stamp, fault) && m_journal.Append(stamp, fault)) {
        m_stamps.append(stamp);
        return true;
    }
    FileFault cutFault; // the first reason is what the user needs
    CutTo(m_stamps.size(), cutFault);
    return Report(false, m_path, fault, error);
}

bool RunWriter::Finish(RunOutcome *outcome, QString *error)
{
    FileFault fault;
    if (!CompleteWhatFits(outcome, fault) || !Place(fault))
        return Report(false, m_path, fault, error);
    m_hasSummary = WriteRunSummary(RunSummaryPath(m_path), m_facts, *outcome, m_stamps, DataFiles());
    m_journal.Remove();
    return true;
}

/// The directories and tables at the end of a file take some room. On a full disk the last frames give it; any other
/// fault leaves all frames for the repair.
bool RunWriter::CompleteWhatFits(RunOutcome *outcome, FileFault &fault)
{
    for (int fewer = 1; !Complete(*outcome, fault); fewer *= 2) {
        if (m_stamps.isEmpty() || !fault.isDiskFull)
            return false;
        const int kept = qMax(0, m_stamps.size() - fewer);
        FileFault cutFault;
        if (!CutTo(kept, cutFault))
            return false;
        for (; m_stamps.size() > kept; m_stamps.removeLast()) {
            outcome->lostIds.append(m_stamps.last().frameId);
            --outcome->counts.saved;
            ++outcome->counts.lostAt[size_t(LossStage::Disk)];
        }
    }
    return true;
}

void RunWriter::Discard()
{
    RemoveData();
    m_journal.Remove();
}

QStringList RunWriter::Files() const
{
    QStringList files = DataFiles();
    if (m_hasSummary)
        files << RunSummaryPath(m_path);
    return files;
}

std::unique_ptr<RunWriter> CreateRunWriter(RunFormat format, const QString &path)
{
    switch (format) {
    case RunFormat::Fits:
        return std::make_unique<FitsRunWriter>(path);
    case RunFormat::Png:
        return std::make_unique<PngRunWriter>(path);
    case RunFormat::Tiff:
        break;
    }
    return std::make_unique<TiffRunWriter>(path);
}

QString RunSuffix(RunFormat format)
{
    switch (format) {
    case RunFormat::Fits:
        return "fits";
    case RunFormat::Png:
        return "png";
    case RunFormat::Tiff:
        break;
    }
    return "tif";
}
