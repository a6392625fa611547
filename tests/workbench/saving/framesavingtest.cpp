// SPDX-License-Identifier: GPL-3.0-or-later
#include "framesaving.h"
#include "openpicture.h"
#include "runestimate.h"
#include "savingfixture.h"

#include <QFile>

/// A run from its order to its receipt.
class FrameSavingTest : public SavingFixture
{
    Q_OBJECT

private slots:
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

    void aFolderThatIsNotThereIsSaidAtOnce()
    {
        m_order.path = m_folder->filePath("nowhere/run.tif");
        QVERIFY(m_saving->StartRun(m_order));
        const RunReceipt receipt = Receipt();
        QVERIFY2(receipt.error.contains("does not exist"), qPrintable(receipt.error));
        QVERIFY(!m_saving->IsBusy());
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
};

GUARDED_TEST_MAIN(FrameSavingTest)
#include "framesavingtest.moc"
