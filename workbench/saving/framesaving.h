// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "capturequeue.h"
#include "framegate.h"
#include "framesavemanager.h"
#include "framesink.h"
#include "orientation.h"
#include "runcounter.h"
#include "runregister.h"
#include "runreceipt.h"
#include "runwriter.h"

#include <atomic>
#include <functional>
#include <memory>

/// What a run begins with.
struct RunOrder
{
    RecordingSettings settings;
    RunFacts facts;          ///< the size as the camera sends it
    Orientation orientation; ///< frames are saved as they are seen
    QString camera;          ///< for the name
    QString path;            ///< empty: the next free name of the pattern
    qint64 ramBytes = -1;    ///< for frames kept in memory; -1 sets no limit
    bool isRecord = false;
};

/// A run: waits for its delay, takes the frames of its schedule out of the camera's thread through a bounded queue, and
/// saves them in a thread of its own, which runs just as long. Start, stop and questions belong to the GUI thread;
/// frames come in the camera's thread and never wait.
class FrameSaving : public FrameSaveManager, public FrameSink
{
    Q_OBJECT

public:
    using WriterMaker = std::function<std::unique_ptr<RunWriter>(RunFormat format, const QString &path)>;

    explicit FrameSaving(const RunRegister &runs, WriterMaker maker = CreateRunWriter,
                         QObject *parent = nullptr);
    ~FrameSaving() override;

    /// False while a run is going on.
    bool StartRun(const RunOrder &order);
    /// From StartRun() until the receipt was delivered.
    bool IsBusy() const { return m_isBusy; }
    /// The run ends with what was captured until now; twice does no harm.
    void StopRun(RunEnd end = RunEnd::Stopped, const QString &reason = QString());
    /// The run ends and leaves nothing.
    void DiscardRun();

    /// What was set anew in mid-run, for the frames that come from now on.
    void ChangeSettings(const SettingsChange &change) { m_gate.AddChange(change); }

    /// Frames that wait for the disk, and the memory they take and may take.
    const CaptureQueue &Queue() const { return m_queue; }
    FrameCounts Counts() const { return m_counter.Counts(); }
    /// Of a run into memory, until it is converted.
    int FramesInRam() const { return m_framesInRam; }
    qint64 BytesInRam() const { return m_ramBytes; }
    /// Of the run, or the last one.
    const RunOrder &Order() const { return m_order; }

    bool IsAutoStop() const override { return m_order.settings.EndsByItself(); }
    bool IsTotalFrameChecked() const override { return m_order.settings.EndsByFrames(); }
    int GetProgressBarMaxValue() const override;
    bool IsRecordMode() const override { return m_order.isRecord; }

    void OnFrame(const CameraFrame &frame) override;
    void OnLost(LossStage stage, quint64 firstId, quint64 frames) override;

signals:
    /// The thread has ended; delivered in the GUI thread after signalSaveThreadRunningChanged(false).
    void signalRunEnded(RunReceipt receipt);

protected:
    void run() override;

private slots:
    void slotFinished();

private:
    class Pace;

    void Reset(const RunOrder &order);
    QString ChoosePath() const;
    bool Begin();
    bool WaitForDelay();
    void OpenGate();
    void TakeFrames();
    void Keep(const CameraFrame &frame);
    void KeepInRam(const CameraFrame &frame);
    bool WriteFrame(const CameraFrame &frame);
    void Convert();
    void Finish();
    void Discard();
    void Fail(const QString &error);
    void AnnounceTime();
    void ForgetRam();
    bool ApplyChanges(quint64 frameId, QString *error);
    RunEnd End(QString *reason) const;
    bool IsDiscarded() const;

    const RunRegister m_register;
    const WriterMaker m_maker;
    bool m_isBusy = false; ///< the GUI thread's

    // The thread's, and the GUI thread's while it does not run.
    RunOrder m_order;
    std::unique_ptr<RunWriter> m_writer;
    QString m_entry;
    std::vector<CameraFrame> m_inRam;
    RunReceipt m_receipt;
    std::unique_ptr<Pace> m_pace;
    qint64 m_startMs = 0; ///< when the gate was opened

    CaptureQueue m_queue;
    RunCounter m_counter;
    FrameGate m_gate{ &m_queue, &m_counter };
    std::atomic<int> m_framesInRam{ 0 };
    std::atomic<qint64> m_ramBytes{ 0 };

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isStopped = false;
    bool m_isDiscarded = false;
    RunEnd m_end = RunEnd::Complete;
    QString m_reason;
};
