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

constexpr int SyncPeriodMs = 1000;
constexpr int MostNames = 1000;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(RunWriter)
};

bool Report(bool done, const QString &path, const FileFault &fault, QString *error)
{
    if (!done)
        *error = WriteFaultText(path, fault);
    return done;
}

} // namespace

RunWriter::RunWriter(const QString &path, RunFormat format)
    : m_path(path)
    , m_unfinished(UnfinishedRunPath(path))
    , m_format(format)
{
    m_syncer.setMaxThreadCount(1);
}

bool RunWriter::Begin(const RunFacts &facts, QString *error)
{
    m_facts = facts;
    FileFault fault;
    if (!CheckName(fault) || !m_journal.Create(m_path, m_format, facts, fault))
        return Report(false, m_path, fault, error);
    if (CreateData(fault)) {
        RunDisk::MakeNamesLasting(m_path);
        m_sinceSync.start();
        return true;
    }
    m_journal.Remove();
    return Report(false, m_path, fault, error);
}

bool RunWriter::CheckName(FileFault &fault) const
{
    if (!QFileInfo::exists(m_path))
        return true;
    return fault.Set(Text::tr("a file of that name is there already"),
                     Text::tr("Choose another name; recordings never replace a file."));
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
    return Report(DropTornFrames(qMin(content.lasting, frames), fault) && CutTo(m_stamps.size(), fault), m_path,
                  fault, error);
}

/// Frames and their records may have come to the disk in any order.
bool RunWriter::DropTornFrames(int lasting, FileFault &fault)
{
    if (m_stamps.size() == lasting)
        return true;
    std::vector<uchar> samples(size_t(m_facts.FrameBytes()));
    const QVector<FrameStamp> written = m_stamps;
    for (int frame = lasting; frame < written.size(); ++frame) {
        const int place = frame - m_torn.size();
        if (!ReadBack(frame, samples.data())
            || RunChecksum::OfFrame(samples.data(), m_facts.FrameBytes()) != written[frame].checksum) {
            m_torn.append(written[frame]);
            ForgetStamp(place);
        } else if (place < frame && !MoveFrame(frame, place, fault)) {
            return false;
        }
    }
    return true;
}

void RunWriter::ForgetStamp(int frame)
{
    m_stamps.removeAt(frame);
    for (SettingsChange &change : m_facts.changes) {
        if (change.frame > frame)
            --change.frame;
    }
}

bool RunWriter::ChangeSettings(SettingsChange change, QString *error)
{
    change.frame = m_stamps.size();
    FileFault fault;
    if (!m_journal.AppendChange(change, fault))
        return Report(false, m_path, fault, error);
    if (!m_facts.changes.isEmpty() && m_facts.changes.last().frame == change.frame)
        m_facts.changes.removeLast();
    m_facts.changes.append(change);
    return true;
}

/// Without waiting for the disk: what its cache takes at once may come faster than it can be written.
bool RunWriter::SyncNowAndThen(FileFault &fault)
{
    if (const int failed = m_syncError)
        return RunDisk::SetSystemFault(fault, failed);
    const int lasting = m_lasting;
    if (lasting > m_marked && !m_journal.AppendLasting(lasting, fault))
        return false;
    m_marked = lasting;
    if (m_isSyncing || m_sinceSync.elapsed() < SyncPeriodMs)
        return true;
    m_isSyncing = true;
    m_sinceSync.start();
    m_syncer.start([this, frames = m_stamps.size(), data = DataSync(), journal = m_journal.DataSync()] {
        int failed = data();
        if (failed == 0)
            failed = journal();
        if (failed == 0)
            m_lasting = frames;
        m_syncError = failed;
        m_isSyncing = false;
    });
    return true;
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

bool RunWriter::MayTake(const CameraFrame &frame, FileFault &fault) const
{
    if (m_stamps.size() >= MostFrames())
        return fault.Set(Text::tr("a recording holds %1 frames at most").arg(MostFrames()),
                         Text::tr("The frames before are kept; go on with another recording."));
    if (QSize(frame.width, frame.height) == m_facts.frameSize && frame.layout == m_facts.layout)
        return true;
    return fault.Set(Text::tr("a frame of another size or pixel format came (%1 x %2, %3)")
                         .arg(frame.width)
                         .arg(frame.height)
                         .arg(PixelLayoutName(frame.layout)),
                     Text::tr("Change the camera's format between recordings only."));
}

bool RunWriter::Write(const CameraFrame &frame, QString *error)
{
    FileFault fault;
    if (!MayTake(frame, fault))
        return Report(false, m_path, fault, error);
    const uchar *samples = Packed(frame);
    const FrameStamp stamp{ frame.frameId, frame.cameraTimeNs, frame.hostTimeNs,
                            RunChecksum::OfFrame(samples, m_facts.FrameBytes()) };
    if (SyncNowAndThen(fault) && AppendFrame(samples, stamp, fault) && m_journal.Append(stamp, fault)) {
        m_stamps.append(stamp);
        return true;
    }
    FileFault cutFault; // the first reason is what the user needs
    CutTo(m_stamps.size(), cutFault);
    return Report(false, m_path, fault, error);
}

bool RunWriter::Finish(RunOutcome *outcome, QString *error)
{
    m_syncer.waitForDone();
    FileFault fault;
    // The system tells a failed write only once: which frames it took is found by the repair, which reads them back.
    if (const int failed = m_syncError)
        return Report(RunDisk::SetSystemFault(fault, failed), m_path, fault, error);
    if (!CompleteWhatFits(outcome, fault) || !PlaceUnderFreeName(fault))
        return Report(false, m_path, fault, error);
    RunDisk::MakeNamesLasting(m_path);
    m_summary = WriteRunSummary(m_path, m_facts, *outcome, m_stamps, DataFiles(), fault);
    if (m_summary.isEmpty())
        m_warning = WriteFaultText(m_path, fault);
    m_journal.Remove();
    return true;
}

/// The name was free at the beginning; a recording of hours is not to hang on its being free still.
bool RunWriter::PlaceUnderFreeName(FileFault &fault)
{
    const QFileInfo asked(m_path);
    for (int number = 2; !Place(fault); ++number) {
        if (!fault.isNameTaken || number > MostNames)
            return false;
        m_path = QString("%1/%2_%3.%4")
                     .arg(asked.path(), asked.completeBaseName())
                     .arg(number)
                     .arg(asked.suffix());
    }
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
            outcome->lostIds.append({ m_stamps.last().frameId, 1 });
            --outcome->counts.saved;
            ++outcome->counts.lostAt[size_t(LossStage::Disk)];
        }
    }
    return true;
}

void RunWriter::Discard()
{
    m_syncer.waitForDone();
    RemoveData();
    m_journal.Remove();
}

QStringList RunWriter::Files() const
{
    QStringList files = DataFiles();
    if (!m_summary.isEmpty())
        files << m_summary;
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

QString UnfinishedRunPath(const QString &path) { return path + ".part"; }

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
