// SPDX-License-Identifier: GPL-3.0-or-later
#include "framesaving.h"

#include "seenframe.h"

#include <chrono>
#include <utility>

namespace {

constexpr int TakeTimeoutMs = 50;
constexpr qint64 AnnounceMs = 50; ///< counts are not told more often
constexpr qint64 MsPerSecond = 1000;
constexpr qint64 BytesPerMB = 1 << 20;

qint64 SteadyMs()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

/// Why a run that was not discarded has no frame; empty when it was stopped before one could come.
QString NothingText(const RunOutcome &outcome)
{
    if (outcome.counts.Lost() > 0)
        return FrameSaving::tr("No whole frame came from the camera: %1 were lost on the way.")
            .arg(outcome.counts.Lost());
    return outcome.end == RunEnd::Stopped ? QString() : FrameSaving::tr("No frame came from the camera.");
}

} // namespace

/// Lets an announcement through when the one before is long enough ago.
class FrameSaving::Pace
{
public:
    bool IsDue()
    {
        const qint64 now = SteadyMs();
        if (now - m_lastMs < AnnounceMs)
            return false;
        m_lastMs = now;
        return true;
    }
    /// A second has passed since the last one that was told; -1 is none.
    bool IsNewSecond(qint64 second)
    {
        const bool isNew = second != m_second;
        m_second = second;
        return isNew;
    }

private:
    qint64 m_lastMs = 0;
    qint64 m_second = -1;
};

FrameSaving::FrameSaving(const RunRegister &runs, WriterMaker maker, QObject *parent)
    : FrameSaveManager(parent)
    , m_register(runs)
    , m_maker(std::move(maker))
{
    setObjectName("FrameSaving");
    qRegisterMetaType<RunReceipt>();
    connect(this, SIGNAL(finished()), this, SLOT(slotFinished()), Qt::QueuedConnection);
}

FrameSaving::~FrameSaving()
{
    StopRun();
    wait();
}

int FrameSaving::GetProgressBarMaxValue() const
{
    return IsTotalFrameChecked() ? m_order.settings.FrameLimit() : m_order.settings.seconds;
}

bool FrameSaving::StartRun(const RunOrder &order)
{
    if (m_isBusy)
        return false;
    m_isBusy = true;
    wait(); // the thread of the run before may be on its last lines
    Reset(order);
    start();
    emit signalSaveThreadRunningChanged(true);
    return true;
}

void FrameSaving::Reset(const RunOrder &order)
{
    m_order = order;
    m_order.settings = order.settings.Valid();
    m_receipt = RunReceipt();
    ForgetRam();
    m_pace = std::make_unique<Pace>();
    m_counter.Reset();
    m_gate.Reset();
    m_queue.Open(m_order.settings.queueMB * BytesPerMB);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isStopped = false;
    m_isDiscarded = false;
    m_end = RunEnd::Complete;
    m_reason.clear();
}

void FrameSaving::ForgetRam()
{
    m_inRam.clear();
    m_framesInRam = 0;
    m_ramBytes = 0;
}

void FrameSaving::StopRun(RunEnd end, const QString &reason)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_isStopped && m_end == RunEnd::Complete) {
        m_end = end;
        m_reason = reason;
    }
    m_isStopped = true;
    m_gate.Close(SteadyMs());
    m_changed.notify_all();
}

void FrameSaving::DiscardRun()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isDiscarded = true;
    }
    StopRun();
}

/// In the camera's thread.
void FrameSaving::OnFrame(const CameraFrame &frame) { m_gate.TakeFrame(frame, SteadyMs()); }

/// In the camera's thread.
void FrameSaving::OnLost(LossStage stage, quint64 firstId, quint64 frames)
{
    m_gate.TakeLoss(stage, firstId, frames);
}

void FrameSaving::run()
{
    if (!Begin())
        return;
    if (!WaitForDelay()) {
        Discard();
        return;
    }
    OpenGate();
    TakeFrames();
    emit signalUpdateTotalTime(-1);
    if (m_order.settings.toRam)
        Convert();
    if (IsDiscarded() || m_writer->FramesWritten() == 0)
        Discard();
    else
        Finish();
}

QString FrameSaving::ChoosePath() const
{
    if (!m_order.path.isEmpty())
        return m_order.path;
    const NamePattern::Values values{ m_order.camera, m_order.facts.start, m_order.facts.exposureUs,
                                      m_order.facts.gain };
    return NamePattern(m_order.settings.pattern)
        .NextFree(m_order.settings.Folder(), RunSuffix(m_order.settings.format), values);
}

/// A folder that can't be written is found before anybody waits for the delay.
bool FrameSaving::Begin()
{
    m_order.facts.frameSize = m_order.orientation.Map(m_order.facts.frameSize);
    m_order.facts.intervalMs = m_order.settings.intervalMs;
    m_order.facts.start = QDateTime::currentDateTimeUtc().addMSecs(m_order.settings.DelayMs());
    const QString path = ChoosePath();
    m_writer = m_maker(m_order.settings.format, path);
    QString error;
    if (m_writer->Begin(m_order.facts, &error)) {
        m_register.Add(path, &m_entry);
        return true;
    }
    Fail(error);
    m_writer.reset();
    return false;
}

/// False when the run was stopped meanwhile.
bool FrameSaving::WaitForDelay()
{
    const qint64 delayMs = m_order.settings.DelayMs();
    const qint64 startMs = SteadyMs();
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_isStopped && SteadyMs() - startMs < delayMs) {
        lock.unlock();
        const qint64 second = (SteadyMs() - startMs) / MsPerSecond;
        if (m_pace->IsNewSecond(second))
            emit signalUpdateDelayTime(int(second));
        lock.lock();
        const qint64 restMs =
            qMax(qint64(1), qMin(delayMs, (second + 1) * MsPerSecond) - (SteadyMs() - startMs));
        m_changed.wait_for(lock, std::chrono::milliseconds(restMs), [this] { return m_isStopped; });
    }
    const bool goesOn = !m_isStopped;
    lock.unlock();
    if (delayMs > 0)
        emit signalUpdateDelayTime(-1);
    m_pace->IsNewSecond(-1);
    return goesOn;
}

void FrameSaving::OpenGate()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_startMs = SteadyMs();
    if (!m_isStopped)
        m_gate.Open(m_order.settings, m_startMs);
}

void FrameSaving::TakeFrames()
{
    while (!m_queue.IsFinished() && !IsDiscarded()) {
        AnnounceTime();
        const CameraFrame frame = m_queue.Take(TakeTimeoutMs);
        if (!frame.IsNull())
            Keep(frame);
        m_gate.CloseWhenOver(SteadyMs());
    }
    AnnounceTime();
    const int kept = int(m_order.settings.toRam ? m_inRam.size() : size_t(m_writer->FramesWritten()));
    emit m_order.settings.toRam ? signalUpdateRAMSaveFrames(kept) : signalUpdateSaveNumber(kept);
}

void FrameSaving::AnnounceTime()
{
    const qint64 second = (SteadyMs() - m_startMs) / MsPerSecond;
    if (m_pace->IsNewSecond(second))
        emit signalUpdateTotalTime(int(second));
}

void FrameSaving::Keep(const CameraFrame &frame)
{
    if (m_order.settings.toRam)
        KeepInRam(frame);
    else if (WriteFrame(frame) && m_pace->IsDue())
        emit signalUpdateSaveNumber(m_writer->FramesWritten());
}

void FrameSaving::KeepInRam(const CameraFrame &frame)
{
    if (m_order.ramBytes >= 0 && m_ramBytes + frame.ByteCount() > m_order.ramBytes) {
        m_counter.AddLost(LossStage::Memory, frame.frameId);
        StopRun(RunEnd::Fault, tr("the memory is full"));
        return;
    }
    m_ramBytes += frame.ByteCount();
    m_inRam.push_back(frame);
    ++m_framesInRam;
    if (m_pace->IsDue())
        emit signalUpdateRAMSaveFrames(int(m_inRam.size()));
}

/// After a fault the frames that follow are lost too; those before it are kept.
bool FrameSaving::WriteFrame(const CameraFrame &frame)
{
    QString error;
    if (m_receipt.error.isEmpty() && ApplyChanges(frame.frameId, &error)
        && m_writer->Write(SeenFrame(frame, m_order.orientation), &error)) {
        m_counter.AddSaved();
        return true;
    }
    m_counter.AddLost(LossStage::Disk, frame.frameId);
    if (!error.isEmpty())
        Fail(error);
    return false;
}

/// Those that were made before this frame was captured.
bool FrameSaving::ApplyChanges(quint64 frameId, QString *error)
{
    for (const SettingsChange &change : m_gate.TakeChangesBefore(frameId)) {
        if (!m_writer->ChangeSettings(change, error))
            return false;
    }
    return true;
}

void FrameSaving::Fail(const QString &error)
{
    m_receipt.error = error;
    StopRun(RunEnd::Fault, error);
}

void FrameSaving::Convert()
{
    const int total = int(m_inRam.size());
    emit signalSetTotalSaveNumber(total);
    for (int i = 0; i < total; ++i) {
        if (IsDiscarded())
            break;
        WriteFrame(std::exchange(m_inRam[size_t(i)], CameraFrame())); // its memory is free again
        if (m_pace->IsDue() || i + 1 == total)
            emit signalUpdateSenExtractNumber(i + 1);
    }
    ForgetRam();
}

RunEnd FrameSaving::End(QString *reason) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    *reason = m_reason;
    return m_end;
}

bool FrameSaving::IsDiscarded() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_isDiscarded;
}

void FrameSaving::Finish()
{
    m_receipt.outcome.end = End(&m_receipt.outcome.reason);
    m_receipt.outcome.counts = m_counter.Counts();
    m_receipt.outcome.lostIds = m_counter.LostIds();
    QString error;
    if (m_writer->Finish(&m_receipt.outcome, &error)) {
        m_receipt.files = m_writer->Files();
        m_receipt.warning = m_writer->Warning();
        m_register.Remove(m_entry);
    } else if (m_receipt.error.isEmpty()) {
        m_receipt.error = error; // the unfinished file is repaired at the next start
    }
    m_receipt.facts = m_writer->Facts();
    m_receipt.stamps = m_writer->Stamps();
    m_writer.reset();
}

/// Nothing is to be saved, or there is nothing.
void FrameSaving::Discard()
{
    m_gate.Close(SteadyMs());
    m_receipt.outcome.end = End(&m_receipt.outcome.reason);
    m_receipt.outcome.counts = m_counter.Counts();
    m_receipt.outcome.counts.saved = 0;
    m_receipt.facts = m_writer->Facts();
    m_receipt.outcome.lostIds = m_counter.LostIds();
    if (m_receipt.error.isEmpty() && !IsDiscarded())
        m_receipt.error = NothingText(m_receipt.outcome);
    m_writer->Discard();
    m_register.Remove(m_entry);
    m_writer.reset();
    ForgetRam();
}

void FrameSaving::slotFinished()
{
    m_isBusy = false;
    emit signalSaveThreadRunningChanged(false);
    emit signalRunEnded(m_receipt);
}
