// SPDX-License-Identifier: GPL-3.0-or-later
#include "framesaving.h"
#include "guardedtest.h"
#include "openpicture.h"
#include "runchecksum.h"
#include "runestimate.h"
#include "runsample.h"
#include "tiffrunwriter.h"

#include <QDir>
#include <QFile>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <cerrno>
#include <cstring>
#include <thread>

namespace {

constexpr QSize Size(32, 16);
constexpr int FrameBytes = 32 * 16;
constexpr int MsToWait = 20000;

/// A disk that writes a frame only when the test lets it, and may fail.
class SlowDisk : public RunWriter
{
public:
    SlowDisk(const QString &path, QSemaphore *permits, int failsAt, bool isGone = false)
        : RunWriter(path, RunFormat::Tiff)
        , m_permits(permits)
        , m_failsAt(failsAt)
        , m_isGone(isGone)
    {
    }

protected:
    bool CreateData(FileFault &) override { return true; }
    bool ReopenData(int *, FileFault &) override { return true; }
    bool AppendFrame(const uchar *, const FrameStamp &, FileFault &fault) override
    {
        m_permits->acquire();
        return FramesWritten() != m_failsAt || fault.Set("the disk is full", "Free some space.");
    }
    bool CutTo(int, FileFault &) override { return true; }
    bool ReadBack(int, uchar *) override { return true; }
    bool MoveFrame(int, int, FileFault &) override { return true; }
    std::function<int()> DataSync() override
    {
        return [isGone = m_isGone] { return isGone ? EIO : 0; };
    }
    bool Complete(const RunOutcome &, FileFault &fault) override
    {
        return !m_isGone || fault.Set("the disk does not answer", "Check that it is still connected.");
    }
    bool Place(FileFault &) override { return true; }
    void RemoveData() override {}

private:
    QSemaphore *m_permits;
    const int m_failsAt;
    const bool m_isGone; ///< from the failure on
};

/// Writes a TIFF, each frame when the test lets it.
class SlowTiff : public TiffRunWriter
{
public:
    SlowTiff(const QString &path, QSemaphore *permits)
        : TiffRunWriter(path)
        , m_permits(permits)
    {
    }

protected:
    bool AppendFrame(const uchar *samples, const FrameStamp &stamp, FileFault &fault) override
    {
        m_permits->acquire();
        return TiffRunWriter::AppendFrame(samples, stamp, fault);
    }

private:
    QSemaphore *m_permits;
};

} // namespace

/// What a signal of the saving thread said, taken over in the test's thread (a QSignalSpy takes it in the sender's).
class Said : public QObject
{
    Q_OBJECT

public:
    Said(FrameSaving *saving, const char *signal)
    {
        connect(saving, signal, this, SLOT(slotTake(int)), Qt::QueuedConnection);
    }

    QVector<int> values;

private slots:
    void slotTake(int value) { values << value; }
};

/// A run from its order to its receipt. Frames come from a thread of the test's.
class FrameSavingTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_folder = std::make_unique<QTemporaryDir>();
        m_order = RunOrder();
        m_order.facts = RunSample::Facts(Size, PixelLayout::Mono8);
        m_order.path = m_folder->filePath("run.tif");
        m_order.settings.mode = RecordingSettings::Mode::Count;
        m_order.settings.frames = 5;
        Make(CreateRunWriter);
    }

    void cleanup() override
    {
        m_ended.reset();
        m_saving.reset();
        m_folder.reset();
        EndGuard();
    }

    void savesTheNumberOfFramesAskedFor()
    {
        QSignalSpy running(m_saving.get(), SIGNAL(signalSaveThreadRunningChanged(bool)));
        Said saved(m_saving.get(), SIGNAL(signalUpdateSaveNumber(int)));
        Said time(m_saving.get(), SIGNAL(signalUpdateTotalTime(int)));
        QVERIFY(m_saving->StartRun(m_order));
        QCOMPARE(running.count(), 1);
        QVERIFY(m_saving->IsAutoStop() && m_saving->IsTotalFrameChecked());
        QCOMPARE(m_saving->GetProgressBarMaxValue(), 5);
        SendUntilEnded();
        const RunReceipt receipt = Receipt();
        QCOMPARE(receipt.error, QString());
        QVERIFY(receipt.IsWhole());
        QCOMPARE(receipt.outcome.counts.captured, quint64(5));
        QCOMPARE(receipt.outcome.counts.saved, quint64(5));
        CompareFile(receipt, 0, 5);
        QCOMPARE(running.count(), 2);
        QCOMPARE(running.at(1).at(0).toBool(), false);
        QCOMPARE(saved.values.last(), 5);
        QCOMPARE(time.values.last(), -1);
        QVERIFY(!m_saving->isRunning());
    }

    void savesUntilItIsStopped()
    {
        m_order.settings.mode = RecordingSettings::Mode::UntilStopped;
        QVERIFY(m_saving->StartRun(m_order));
        QVERIFY(!m_saving->IsAutoStop());
        SendWhenTaken(7);
        m_saving->StopRun();
        m_saving->StopRun(); // twice
        const RunReceipt receipt = Receipt();
        QCOMPARE(receipt.outcome.end, RunEnd::Stopped);
        QCOMPARE(receipt.outcome.counts.saved, quint64(7));
        CompareFile(receipt, 0, 7);
    }

    void keepsFramesInMemoryAndThenConvertsThem()
    {
        m_order.settings.toRam = true;
        Said ram(m_saving.get(), SIGNAL(signalUpdateRAMSaveFrames(int)));
        Said total(m_saving.get(), SIGNAL(signalSetTotalSaveNumber(int)));
        Said converted(m_saving.get(), SIGNAL(signalUpdateSenExtractNumber(int)));
        QVERIFY(m_saving->StartRun(m_order));
        SendUntilEnded();
        const RunReceipt receipt = Receipt();
        CompareFile(receipt, 0, 5);
        QCOMPARE(ram.values.last(), 5);
        QCOMPARE(total.values.size(), 1);
        QCOMPARE(total.values.first(), 5);
        QCOMPARE(converted.values.last(), 5);
    }

    void aFullMemoryEndsTheRunAndKeepsWhatItHas()
    {
        m_order.settings.toRam = true;
        m_order.ramBytes = 3 * FrameBytes;
        QVERIFY(m_saving->StartRun(m_order));
        SendUntilEnded();
        const RunReceipt receipt = Receipt();
        QCOMPARE(receipt.outcome.end, RunEnd::Fault);
        QCOMPARE(receipt.outcome.reason, QString("the memory is full"));
        QCOMPARE(receipt.outcome.counts.LostAt(LossStage::SaveQueue), quint64(0));
        QVERIFY(receipt.outcome.counts.LostAt(LossStage::Memory) >= 1);
        QVERIFY2(receipt.Text().contains("the memory was full)"), qPrintable(receipt.Text()));
        CompareFile(receipt, 0, 3);
    }

    /// What the estimate says before the run is what the run takes.
    void whatFitsIntoTheMemoryIsRecorded_data()
    {
        QTest::addColumn<qint64>("frames");
        QTest::newRow("as many as fit") << qint64(6);
        QTest::newRow("one more") << qint64(7);
    }

    void whatFitsIntoTheMemoryIsRecorded()
    {
        QFETCH(qint64, frames);
        RunResources resources;
        resources.freeMemoryBytes = (qint64(256) << 20) + 6 * FrameBytes; // 256 MiB stay free
        m_order.settings.toRam = true;
        m_order.settings.frames = int(frames);
        m_order.ramBytes = resources.MemoryForFrames();
        const RunEstimate estimate = RunEstimate::Make(m_order.settings, FrameBytes, 100, resources);
        QCOMPARE(estimate.framesThatFit, qint64(6));
        QVERIFY(m_saving->StartRun(m_order));
        SendUntilEnded();
        const RunReceipt receipt = Receipt();
        QCOMPARE(receipt.IsWhole(), frames == 6);
        QCOMPARE(estimate.warning.isEmpty(), frames == 6);
        CompareFile(receipt, 0, 6);
    }

    void waitsForItsDelay()
    {
        m_order.settings.delay.milliseconds = 300;
        Said delay(m_saving.get(), SIGNAL(signalUpdateDelayTime(int)));
        QVERIFY(m_saving->StartRun(m_order));
        QVERIFY(!m_saving->StartRun(m_order));                             // start pressed during the delay
        m_saving->OnFrame(RunSample::Frame(Size, PixelLayout::Mono8, 50)); // comes too early
        QTRY_VERIFY_WITH_TIMEOUT(!delay.values.isEmpty() && delay.values.last() == -1, MsToWait);
        QCOMPARE(delay.values.first(), 0);
        SendUntilEnded();
        CompareFile(Receipt(), 0, 5);
    }

    void stoppedDuringTheDelayItLeavesNothing()
    {
        m_order.settings.delay.minutes = 5;
        Said delay(m_saving.get(), SIGNAL(signalUpdateDelayTime(int)));
        QVERIFY(m_saving->StartRun(m_order));
        QTRY_VERIFY_WITH_TIMEOUT(!delay.values.isEmpty(), MsToWait);
        m_saving->StopRun();
        const RunReceipt receipt = Receipt();
        QCOMPARE(receipt.files, QStringList());
        QCOMPARE(receipt.error, QString());
        QCOMPARE(FilesLeft(), QStringList());
    }

    void discardedItLeavesNothing_data()
    {
        QTest::addColumn<bool>("toRam");
        QTest::newRow("disk") << false;
        QTest::newRow("memory") << true;
    }

    void discardedItLeavesNothing()
    {
        QFETCH(bool, toRam);
        m_order.settings.mode = RecordingSettings::Mode::UntilStopped;
        m_order.settings.toRam = toRam;
        QVERIFY(m_saving->StartRun(m_order));
        SendWhenTaken(3);
        m_saving->DiscardRun();
        QCOMPARE(Receipt().files, QStringList());
        QCOMPARE(FilesLeft(), QStringList());
    }

    void aSlowDiskLosesFramesAndSaysWhich()
    {
        QSemaphore permits;
        Make([&](RunFormat, const QString &path) { return std::make_unique<SlowDisk>(path, &permits, -1); });
        const QSize large(2048, 1024); // 2 MiB; 16 MB hold eight of them
        m_order.facts = RunSample::Facts(large, PixelLayout::Mono8);
        m_order.settings.mode = RecordingSettings::Mode::UntilStopped;
        m_order.settings.queueMB = RecordingSettings::LeastQueueMB;
        QVERIFY(m_saving->StartRun(m_order));
        const CameraFrame first = RunSample::Frame(large, PixelLayout::Mono8, 0);
        QVERIFY(SendUntilTaken(first));
        QTRY_COMPARE_WITH_TIMEOUT(m_saving->Queue().Count(), 0,
                                  MsToWait); // the writer has it and waits for the disk
        for (int i = 1; i <= 11; ++i) {
            CameraFrame frame = first;
            frame.frameId += quint64(i);
            m_saving->OnFrame(frame);
        }
        QCOMPARE(m_saving->Counts().LostAt(LossStage::SaveQueue), quint64(3));
        permits.release(100);
        m_saving->StopRun();
        const RunReceipt receipt = Receipt();
        QCOMPARE(receipt.outcome.counts.captured, quint64(12));
        QCOMPARE(receipt.outcome.counts.saved, quint64(9));
        QCOMPARE(receipt.outcome.lostIds.size(), 1);
        QCOMPARE(receipt.outcome.lostIds.first().first, quint64(109));
        QCOMPARE(receipt.outcome.lostIds.first().count, quint64(3));
        QVERIFY2(receipt.Text().contains("Frame ids missing: 109-111\n"), qPrintable(receipt.Text()));
        QVERIFY(!receipt.IsWhole());
        QVERIFY2(receipt.Text().contains("Frames lost: 3 (3 the disk was too slow and the queue full)"),
                 qPrintable(receipt.Text()));
    }

    void theLossOfASlowDiskStandsInTheFile()
    {
        QSemaphore permits;
        Make([&](RunFormat, const QString &path) { return std::make_unique<SlowTiff>(path, &permits); });
        const QSize large(2048, 1024); // 2 MiB; 16 MB hold eight of them
        m_order.facts = RunSample::Facts(large, PixelLayout::Mono8);
        m_order.settings.mode = RecordingSettings::Mode::UntilStopped;
        m_order.settings.queueMB = RecordingSettings::LeastQueueMB;
        QVERIFY(m_saving->StartRun(m_order));
        CameraFrame frame = RunSample::Frame(large, PixelLayout::Mono8, 0);
        QVERIFY(SendUntilTaken(frame));
        QTRY_COMPARE_WITH_TIMEOUT(m_saving->Queue().Count(), 0, MsToWait);
        for (int i = 1; i <= 10; ++i) {
            ++frame.frameId;
            m_saving->OnFrame(frame);
        }
        permits.release(100);
        m_saving->StopRun();
        const RunReceipt receipt = Receipt();
        QString error;
        const auto file = OpenPicture(receipt.files.first(), error);
        QVERIFY2(file, qPrintable(error));
        QCOMPARE(file->Info().frames, 9);
        QString all;
        for (const MetadataEntry &entry : file->Info().metadata)
            all += entry.key + '=' + entry.value + '\n';
        QVERIFY2(all.contains("2 the disk was too slow and the queue full") && all.contains("109-110"), qPrintable(all));
        QFile summary(receipt.files.last());
        QVERIFY(summary.open(QIODevice::ReadOnly));
        QVERIFY(summary.readAll().contains("Frames lost: 2 (2 the disk was too slow and the queue full)\n"));
    }

    void aFullDiskEndsTheRunWithTheFramesBefore()
    {
        QSemaphore permits(100);
        Make([&](RunFormat, const QString &path) { return std::make_unique<SlowDisk>(path, &permits, 2); });
        QVERIFY(m_saving->StartRun(m_order));
        SendUntilEnded();
        const RunReceipt receipt = Receipt();
        QVERIFY2(receipt.error.contains("the disk is full"), qPrintable(receipt.error));
        QCOMPARE(receipt.outcome.end, RunEnd::Fault);
        QCOMPARE(receipt.outcome.counts.saved, quint64(2));
        QCOMPARE(receipt.outcome.counts.saved + receipt.outcome.counts.LostAt(LossStage::Disk),
                 receipt.outcome.counts.captured);
        QVERIFY(receipt.outcome.counts.LostAt(LossStage::Disk) >= 1);
    }

    /// Its unfinished file is noted for the repair, when the disk is back.
    void aDiskThatIsGoneEndsTheRunAndIsRemembered()
    {
        QSemaphore permits(100);
        Make([&](RunFormat, const QString &path) {
            return std::make_unique<SlowDisk>(path, &permits, 2, true);
        });
        QVERIFY(m_saving->StartRun(m_order));
        SendUntilEnded();
        const RunReceipt receipt = Receipt();
        QCOMPARE(receipt.files, QStringList());
        QVERIFY(!receipt.IsWhole());
        QVERIFY(!receipt.error.isEmpty());
        QCOMPARE(RunRegister(m_folder->filePath("register")).Entries().size(), 1);
        QVERIFY(!m_saving->IsBusy());
    }

    /// The cache takes frames long after the disk is gone.
    void aDiskThatTakesNoMoreEndsTheRun()
    {
        QSemaphore permits(1000000);
        Make([&](RunFormat, const QString &path) {
            return std::make_unique<SlowDisk>(path, &permits, -1, true);
        });
        m_order.settings.mode = RecordingSettings::Mode::UntilStopped;
        QVERIFY(m_saving->StartRun(m_order));
        QVERIFY(QTest::qWaitFor(
            [&] {
                m_saving->OnFrame(RunSample::Frame(Size, PixelLayout::Mono8, 0));
                return !m_saving->isRunning();
            },
            MsToWait));
        const RunReceipt receipt = Receipt();
        QVERIFY2(receipt.error.contains("the disk does not answer"), qPrintable(receipt.error));
        QCOMPARE(receipt.outcome.end, RunEnd::Fault);
        QVERIFY(receipt.outcome.counts.LostAt(LossStage::Disk) >= 1);
        QCOMPARE(RunRegister(m_folder->filePath("register")).Entries().size(), 1);
    }

    /// Frames and losses of a time-lapse whose link is bad for some intervals.
    void intervalsOfATimeLapseThatNothingCameInAreLost()
    {
        CaptureQueue queue;
        queue.Open(1 << 20);
        RunCounter counter;
        FrameGate gate(&queue, &counter);
        m_order.settings.intervalMs = 100;
        m_order.settings.mode = RecordingSettings::Mode::Duration;
        m_order.settings.seconds = 1;
        gate.Open(m_order.settings, 0);
        gate.TakeFrame(RunSample::Frame(Size, PixelLayout::Mono8, 0), 0);
        gate.TakeLoss(LossStage::Transfer, 101, 40);
        gate.TakeFrame(RunSample::Frame(Size, PixelLayout::Mono8, 41), 420); // those of 100, 200 and 300 are missed
        QCOMPARE(counter.Counts().LostAt(LossStage::Transfer), quint64(3));
        gate.TakeFrame(RunSample::Frame(Size, PixelLayout::Mono8, 60), 730); // a slow camera, no loss
        QCOMPARE(counter.Counts().Lost(), quint64(3));
        gate.TakeLoss(LossStage::Camera, 161, 1);
        gate.CloseWhenOver(1000);
        QCOMPARE(counter.Counts().LostAt(LossStage::Camera), quint64(1));
        QCOMPARE(counter.Counts().captured, quint64(3));
        QCOMPARE(queue.Count(), 3);
        QVERIFY(!queue.IsOpen());
    }

    void aFolderThatIsNotThereIsSaidAtOnce()
    {
        m_order.path = m_folder->filePath("nowhere/run.tif");
        QVERIFY(m_saving->StartRun(m_order));
        const RunReceipt receipt = Receipt();
        QVERIFY2(receipt.error.contains("does not exist"), qPrintable(receipt.error));
        QVERIFY(!m_saving->IsBusy());
    }

    void countsWhatTheCameraLost()
    {
        m_order.settings.frames = 4;
        QVERIFY(m_saving->StartRun(m_order));
        SendWhenTaken(1);
        m_saving->OnLost(LossStage::Transfer, 101, 1);
        m_saving->OnLost(LossStage::Camera, 102, 1);
        m_saving->OnLost(LossStage::Transfer, 103, 1);
        m_saving->OnFrame(RunSample::Frame(Size, PixelLayout::Mono8, 4));
        m_saving->OnFrame(RunSample::Frame(Size, PixelLayout::Mono8, 5));
        m_saving->OnLost(LossStage::Camera, 106, 1);
        m_saving->OnFrame(RunSample::Frame(Size, PixelLayout::Mono8, 7));
        m_saving->OnLost(LossStage::Camera, 108, 1); // after the run
        const RunReceipt receipt = Receipt();
        QCOMPARE(receipt.outcome.counts.saved, quint64(4));
        QCOMPARE(receipt.outcome.counts.LostAt(LossStage::Transfer), quint64(2));
        QCOMPARE(receipt.outcome.counts.LostAt(LossStage::Camera), quint64(2));
        QVERIFY2(receipt.Text().contains("Frame ids missing: 101-103, 106"), qPrintable(receipt.Text()));
    }

    /// A link that goes bad and stays bad.
    void lossesBehindTheLastFrameAreCounted()
    {
        m_order.settings.mode = RecordingSettings::Mode::Duration;
        m_order.settings.seconds = 1;
        QVERIFY(m_saving->StartRun(m_order));
        SendWhenTaken(2);
        m_saving->OnLost(LossStage::Transfer, 102, 4);
        const RunReceipt receipt = Receipt();
        QCOMPARE(receipt.outcome.counts.LostAt(LossStage::Transfer), quint64(4));
        QVERIFY(!receipt.IsWhole());
        QVERIFY2(receipt.Text().contains("Frames lost: 4 (4 arrived incomplete)\nFrame ids missing: 102-105\n"),
                 qPrintable(receipt.Text()));
        CompareFile(receipt, 0, 2);
    }

    void aLinkThatBringsNothingWholeIsSaid()
    {
        m_order.settings.mode = RecordingSettings::Mode::Duration;
        m_order.settings.seconds = 1;
        Said time(m_saving.get(), SIGNAL(signalUpdateTotalTime(int)));
        QVERIFY(m_saving->StartRun(m_order));
        QTRY_VERIFY_WITH_TIMEOUT(!time.values.isEmpty(), MsToWait); // frames are counted from now on
        m_saving->OnLost(LossStage::Transfer, 1, 3);
        const RunReceipt receipt = Receipt();
        QCOMPARE(receipt.error, QString("No whole frame came from the camera: 3 were lost on the way."));
        QCOMPARE(receipt.outcome.counts.LostAt(LossStage::Transfer), quint64(3));
        QVERIFY(!receipt.IsWhole());
        QCOMPARE(FilesLeft(), QStringList());
        QVERIFY2(time.values.contains(1) && time.values.last() == -1, "the last second was not told");
    }

    void aTimeLapseTellsItsIntervalAndNoGaps()
    {
        m_order.settings.frames = 3;
        m_order.settings.intervalMs = 40;
        QVERIFY(m_saving->StartRun(m_order));
        SendWhenTaken(1);
        m_saving->OnLost(LossStage::Transfer, 101, 1); // nobody waits for it yet
        QVERIFY(SendUntilTaken(RunSample::Frame(Size, PixelLayout::Mono8, 9)));
        QVERIFY(SendUntilTaken(RunSample::Frame(Size, PixelLayout::Mono8, 17)));
        const RunReceipt receipt = Receipt();
        QVERIFY2(receipt.IsWhole(), qPrintable(receipt.Text()));
        QVERIFY2(!receipt.Text().contains("missing"), qPrintable(receipt.Text()));
        QFile summary(receipt.files.last());
        QVERIFY(summary.open(QIODevice::ReadOnly));
        const QByteArray text = summary.readAll();
        QVERIFY2(text.contains("Time-lapse: one frame each 40 ms\n") && !text.contains("missing"), text.constData());
    }

    void settingsChangedInMidRunAreTold()
    {
        m_order.settings.mode = RecordingSettings::Mode::UntilStopped;
        QVERIFY(m_saving->StartRun(m_order));
        SendWhenTaken(2);
        SettingsChange change;
        change.exposureUs = 20000;
        change.gain = 3;
        change.framesPerSecond = 50;
        m_saving->ChangeSettings(change);
        QVERIFY(SendUntilTaken(RunSample::Frame(Size, PixelLayout::Mono8, 2)));
        m_saving->StopRun();
        const RunReceipt receipt = Receipt();
        QCOMPARE(receipt.facts.changes.size(), 1);
        QCOMPARE(receipt.facts.changes.first().frame, 2);
        QFile summary(receipt.files.last());
        QVERIFY(summary.open(QIODevice::ReadOnly));
        const QByteArray text = summary.readAll();
        for (const char *line : { "Exposure: 12500 to 20000 us\n", "Gain: 1.5 to 3\n", "Frame rate: 50 to 500 frames/s\n",
                                  "From about frame 3 on: exposure 20000 us, gain 3, 50 frames/s\n" })
            QVERIFY2(text.contains(line), text.constData());
    }

    void theRunsStartIsWhenItBegan()
    {
        const QDateTime before = QDateTime::currentDateTimeUtc();
        m_order.settings.delay.milliseconds = 200;
        QVERIFY(m_saving->StartRun(m_order));
        SendUntilEnded();
        const QDateTime start = Receipt().facts.start;
        QVERIFY2(before.addMSecs(200) <= start && start <= QDateTime::currentDateTimeUtc(),
                 qPrintable(start.toString(Qt::ISODateWithMs)));
    }

    void aLostCameraLeavesAReadableFile()
    {
        m_order.settings.frames = 100;
        QVERIFY(m_saving->StartRun(m_order));
        SendWhenTaken(3);
        m_saving->StopRun(RunEnd::CameraLost, "C-1 does not answer");
        const RunReceipt receipt = Receipt();
        QCOMPARE(receipt.outcome.end, RunEnd::CameraLost);
        QVERIFY2(receipt.Text().contains("the camera was lost (C-1 does not answer)"),
                 qPrintable(receipt.Text()));
        QVERIFY(!receipt.IsWhole());
        CompareFile(receipt, 0, 3);
    }

    void noFrameAtAllIsSaid()
    {
        m_order.settings.mode = RecordingSettings::Mode::Duration;
        m_order.settings.seconds = 1;
        QVERIFY(m_saving->StartRun(m_order));
        const RunReceipt receipt = Receipt();
        QCOMPARE(receipt.error, QString("No frame came from the camera."));
        QCOMPARE(FilesLeft(), QStringList());
    }

    void savesFramesAsTheyAreSeen()
    {
        m_order.orientation = Orientation(false, 1); // turned right
        m_order.settings.frames = 1;
        QVERIFY(m_saving->StartRun(m_order));
        SendUntilEnded();
        const RunReceipt receipt = Receipt();
        QCOMPARE(receipt.facts.frameSize, Size.transposed());
        QString error;
        const auto file = OpenPicture(receipt.files.first(), error);
        QVERIFY2(file, qPrintable(error));
        Picture picture;
        QVERIFY(file->ReadFrame(0, picture, error));
        const CameraFrame frame = RunSample::Frame(Size, PixelLayout::Mono8, 0);
        const Picture &seen = picture;
        for (int y = 0; y < Size.height(); ++y) {
            for (int x = 0; x < Size.width(); ++x)
                QCOMPARE(seen.Row(x)[Size.height() - 1 - y], frame.Row(y)[x]);
        }
    }

    void twoHundredRunsInARow()
    {
        m_order.settings.mode = RecordingSettings::Mode::UntilStopped;
        m_order.path.clear();
        m_order.settings.folder = m_folder->path();
        m_order.settings.pattern = "run{number}";
        for (int i = 0; i < 200; ++i) {
            QVERIFY(m_saving->StartRun(m_order));
            QVERIFY(!m_saving->StartRun(m_order));
            if (i % 2 == 0)
                SendWhenTaken(1);
            m_saving->StopRun();
            QCOMPARE(Receipt().outcome.counts.Lost(), quint64(0));
        }
        QCOMPARE(QDir(m_folder->path()).entryList({ "*.tif" }).size(), 100);
        QCOMPARE(QDir(m_folder->path()).entryList({ "*.part", "*.journal" }).size(), 0);
        QCOMPARE(QDir(m_folder->filePath("register")).entryList(QDir::Files).size(), 0);
    }

private:
    void Make(const FrameSaving::WriterMaker &maker)
    {
        m_saving.reset(); // one at a time
        m_saving = std::make_unique<FrameSaving>(RunRegister(m_folder->filePath("register")), maker);
        m_ended = std::make_unique<QSignalSpy>(m_saving.get(), SIGNAL(signalRunEnded(RunReceipt)));
    }

    /// Frames 0, 1, 2 and so on from a thread like the camera's, until the run takes no more. A run begins to take them
    /// some time after its start; the first that is taken is frame 0.
    void SendUntilEnded()
    {
        std::thread camera([this] {
            int next = 0;
            while (m_saving->isRunning() && next < 1000) {
                const quint64 before = m_saving->Counts().captured;
                m_saving->OnFrame(RunSample::Frame(Size, PixelLayout::Mono8, next));
                if (m_saving->Counts().captured > before)
                    ++next;
            }
        });
        camera.join();
    }

    void SendWhenTaken(int frames)
    {
        for (int i = 0; i < frames; ++i)
            QVERIFY(SendUntilTaken(RunSample::Frame(Size, PixelLayout::Mono8, i)));
    }

    /// A run begins to take frames some time after its start.
    bool SendUntilTaken(const CameraFrame &frame)
    {
        const quint64 before = m_saving->Counts().captured;
        return QTest::qWaitFor(
            [&] {
                if (m_saving->Counts().captured == before)
                    m_saving->OnFrame(frame);
                return m_saving->Counts().captured > before;
            },
            MsToWait);
    }

    RunReceipt Receipt()
    {
        if (m_ended->isEmpty() && !m_ended->wait(MsToWait))
            qFatal("the run did not end");
        return m_ended->takeFirst().at(0).value<RunReceipt>();
    }

    QStringList FilesLeft() const { return QDir(m_folder->path()).entryList(QDir::Files); }

    void CompareFile(const RunReceipt &receipt, int first, int frames)
    {
        QVERIFY2(!receipt.files.isEmpty(), qPrintable(receipt.error));
        QString error;
        const auto file = OpenPicture(receipt.files.first(), error);
        QVERIFY2(file, qPrintable(error));
        QCOMPARE(file->Info().frames, frames);
        for (int i = 0; i < frames; ++i) {
            Picture picture;
            QVERIFY2(file->ReadFrame(i, picture, error), qPrintable(error));
            const QByteArray expected = RunSample::Samples(Size, PixelLayout::Mono8, first + i);
            const Picture &samples = picture;
            QVERIFY(std::memcmp(samples.Data(), expected.constData(), size_t(expected.size())) == 0);
        }
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FrameSaving> m_saving;
    std::unique_ptr<QSignalSpy> m_ended;
    RunOrder m_order;
};

GUARDED_TEST_MAIN(FrameSavingTest)
#include "framesavingtest.moc"
