// SPDX-License-Identifier: GPL-3.0-or-later
#include "framegate.h"
#include "openpicture.h"
#include "savingfixture.h"
#include "tiffrunwriter.h"

#include <QFile>
#include <QSemaphore>

#include <cerrno>

namespace {

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

/// What of a run is lost, by the disk or on the way from the camera, is counted and told, and the rest is kept.
class FrameLossTest : public SavingFixture
{
    Q_OBJECT

private slots:
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
};

GUARDED_TEST_MAIN(FrameLossTest)
#include "framelosstest.moc"
