// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerasession.h"
#include "framesaving.h"
#include "livepreview.h"
#include "openpicture.h"
#include "recordingscenario.h"
#include "runregister.h"
#include "runwriter.h"

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QStatusBar>

#include <memory>

/// A person records what the camera delivers.
class Recording : public RecordingScenario
{
    Q_OBJECT

private slots:
    void theCaptureButtonRecordsAndThePanelFollows()
    {
        Apply();
        auto *panel = m_workbench->window.findChild<QWidget *>("AcquireProgressUI");
        auto *frames = panel->findChild<QLabel *>("labelFrames");
        QVERIFY(!panel->isVisible());
        QTest::mouseClick(Button("pushButtonCapture"), Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(panel->isVisible(), MsToWait);
        QVERIFY2(frames->text().startsWith("To Disk : ") && frames->text().endsWith(" / 20"),
                 qPrintable(frames->text()));
        QTRY_VERIFY(Button("pushButtonCaptureChecked"));
        const RunReceipt receipt = Receipt();
        QCOMPARE(frames->text(), QString("To Disk : 20 / 20"));
        QVERIFY2(receipt.IsWhole(), qPrintable(receipt.Text()));
        QTRY_VERIFY_WITH_TIMEOUT(!panel->isVisible(), MsToWait);
        QVERIFY(Button("pushButtonCapture"));
        CompareWithTheScene(receipt, 20);
        QVERIFY2(m_workbench->StatusText().contains("20 frames saved as run1.tif, none lost."),
                 qPrintable(m_workbench->StatusText()));
        QVERIFY(m_workbench->services.Preview()->isRunning());
    }

    void f10RecordsIntoMemoryAndConverts()
    {
        m_settings.toRam = true;
        Apply();
        auto *frames = m_workbench->window.findChild<QLabel *>("labelFrames");
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        const RunReceipt receipt = Receipt();
        QCOMPARE(frames->text(), QString("Converting to TIF : 20 / 20"));
        CompareWithTheScene(receipt, 20);
    }

    void anInvisiblePreviewRecordsAllTheSame()
    {
        Apply();
        m_workbench->services.Preview()->StopPreview();
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        CompareWithTheScene(Receipt(), 20);
        QVERIFY(!m_workbench->services.Preview()->isRunning()); // as the user left it
    }

    void aTimeLapseKeepsOneFrameAnInterval()
    {
        m_settings.frames = 4;
        m_settings.intervalMs = 200;
        Apply();
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        const RunReceipt receipt = Receipt();
        QVERIFY2(receipt.IsWhole(), qPrintable(receipt.Text()));
        QCOMPARE(receipt.stamps.size(), 4);
        QVERIFY(receipt.stamps.last().hostTimeNs - receipt.stamps.first().hostTimeNs
                > 300000000); // the third of three intervals began
        CompareWithTheScene(receipt, 4);
    }

    void theDelayIsShown()
    {
        m_settings.delay.seconds = 1;
        Apply();
        auto *time = m_workbench->window.findChild<QLabel *>("labelTime");
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        QTRY_COMPARE_WITH_TIMEOUT(time->text(), QString("Delaying : 00 : 00 / 00 : 01"), MsToWait);
        CompareWithTheScene(Receipt(), 20);
    }

    void theReceiptSaysWhetherTheFilesHoldWhatWasCaptured()
    {
        Apply();
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        const RunReceipt receipt = Receipt();
        m_workbench->Action("Last Recording…")->trigger();
        auto *dialog = m_workbench->window.findChild<QDialog *>("ReceiptDialog");
        QVERIFY(dialog && QTest::qWaitForWindowActive(dialog));
        auto *verdict = dialog->findChild<QLabel *>("labelVerdict");
        auto *verify = dialog->findChild<QPushButton *>("pushButtonVerify");
        QTest::mouseClick(verify, Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(verdict->text(), QString("The files hold exactly what was captured."),
                                  MsToWait);

        // One sample of the third frame is changed behind the program's back.
        QFile file(receipt.files.first());
        QVERIFY(file.open(QIODevice::ReadWrite));
        const qint64 place = 16 + 2 * SmallRegion.width() * SmallRegion.height() + 77;
        char sample = 0;
        QVERIFY(file.seek(place) && file.getChar(&sample) && file.seek(place)
                && file.putChar(char(sample ^ 1)));
        file.close();
        QTest::mouseClick(verify, Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(verdict->text().startsWith("The files do NOT hold what was captured"),
                                 MsToWait);
        dialog->close();
        QVERIFY(QTest::qWaitForWindowActive(&m_workbench->window));
    }

    void aLostCameraLeavesWhatWasRecorded()
    {
        m_workbench->link.Session()->SetExposureUs(7000);
        m_settings.mode = RecordingSettings::Mode::UntilStopped;
        Apply();
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        QTRY_VERIFY_WITH_TIMEOUT(Desk()->Saving()->Counts().saved > 3, MsToWait);
        QSignalSpy told(&m_workbench->services, SIGNAL(signalMessage(QString))); // the link's own messages follow it
        emit m_workbench->link.Session()->signalControlLost();
        const RunReceipt receipt = Receipt();
        QCOMPARE(receipt.outcome.end, RunEnd::CameraLost);
        QVERIFY(!receipt.IsWhole());
        const QString sentence = QString("The recording ended early: Simulated Camera does not answer. %1 frames saved "
                                         "as run1.tif, none lost.")
                                     .arg(receipt.stamps.size());
        QStringList messages;
        for (const QVariantList &message : told)
            messages << message.first().toString();
        QVERIFY2(messages.contains(sentence), qPrintable(messages.join('\n')));
        auto *dialog = m_workbench->window.findChild<QDialog *>("ReceiptDialog"); // without being asked for
        QVERIFY(dialog && QTest::qWaitForWindowActive(dialog));
        QStringList lines;
        for (const QLabel *label : dialog->findChildren<QLabel *>())
            lines << label->text();
        QVERIFY2(lines.contains("the camera was lost (Simulated Camera does not answer)"), qPrintable(lines.join('\n')));
        dialog->close();
        CompareWithTheScene(receipt, receipt.stamps.size());
        QTRY_VERIFY_WITH_TIMEOUT(m_workbench->link.GetState() == CameraLink::State::Open, MsToWait);
        QTRY_COMPARE(m_workbench->link.Session()->Format().region, SmallRegion);
        QTRY_COMPARE(m_workbench->link.Session()->Controls().exposureUs, 7000.0);
    }

    /// Also while the status bar is hidden.
    void aLossStaysVisibleUntilTheNextStart()
    {
        m_settings.mode = RecordingSettings::Mode::UntilStopped;
        Apply();
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        QTRY_VERIFY_WITH_TIMEOUT(Desk()->Saving()->Counts().saved > 3, MsToWait);
        FrameSink *sink = const_cast<FrameSaving *>(Desk()->Saving());
        sink->OnLost(LossStage::Transfer, UnknownFrameId, 2);
        m_workbench->Action("Full Screen")->trigger();
        QTRY_VERIFY(m_workbench->window.isFullScreen());
        auto *bar = m_workbench->window.statusBar();
        QTRY_VERIFY_WITH_TIMEOUT(bar->isVisible() && RecordingLabel()->text().contains("LOST 2"), MsToWait);
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        QCOMPARE(Receipt().outcome.counts.Lost(), quint64(2));
        auto *dialog = m_workbench->window.findChild<QDialog *>("ReceiptDialog");
        QVERIFY(dialog && QTest::qWaitForWindowActive(dialog));
        dialog->close();
        QVERIFY(bar->isVisible());
        QCOMPARE(RecordingLabel()->text(), QString("last recording LOST 2"));
        QVERIFY(RecordingLabel()->isVisible());
        Desk()->slotCapture(false, true);
        Receipt();
        QVERIFY(!RecordingLabel()->isVisible());
        QVERIFY(!bar->isVisible());
        m_workbench->Action("Full Screen")->trigger();
        QTRY_VERIFY(!m_workbench->window.isFullScreen());
        QVERIFY(bar->isVisible());
    }

    void f10DuringTheDelayLeavesNothing()
    {
        m_settings.delay.minutes = 5;
        Apply();
        auto *time = m_workbench->window.findChild<QLabel *>("labelTime");
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        QTRY_VERIFY_WITH_TIMEOUT(time->text().startsWith("Delaying : "), MsToWait);
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        QCOMPARE(Receipt().files, QStringList());
        QVERIFY(!Desk()->IsBusy());
        QCOMPARE(QDir(m_folder->path()).entryList({ "run*" }), QStringList());
        m_settings.delay.minutes = 0;
        m_settings.delay.seconds = 1;
        Apply(); // the delay of the next run is shown while the panel of this one is still about to hide
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        QTRY_COMPARE_WITH_TIMEOUT(time->text(), QString("Delaying : 00 : 00 / 00 : 01"), MsToWait);
        CompareWithTheScene(Receipt(), 20);
    }

    void aRunOfSecondsIntoACube()
    {
        m_settings.mode = RecordingSettings::Mode::Duration;
        m_settings.seconds = 1;
        m_settings.format = RunFormat::Fits;
        Apply();
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        const RunReceipt receipt = Receipt();
        QVERIFY2(receipt.IsWhole() && receipt.files.first().endsWith("run1.fits"), qPrintable(receipt.Text()));
        QVERIFY(receipt.stamps.last().hostTimeNs - receipt.stamps.first().hostTimeNs <= 1000000000);
        CompareWithTheScene(receipt, receipt.stamps.size());
    }

    void aSequenceChosenInThePanel()
    {
        m_settings.frames = 3;
        Apply();
        m_workbench->Action("Settings")->trigger();
        auto *panel = m_workbench->window.findChild<QWidget *>("AcquisitionPanel");
        QVERIFY(panel);
        QTRY_VERIFY(panel->isVisible());
        auto *format = panel->findChild<QComboBox *>("choiceFormat");
        QVERIFY(format);
        format->setFocus();
        QTest::keyClick(format, Qt::Key_End); // the last one
        QCOMPARE(Desk()->Settings()->Get().format, RunFormat::Png);
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        const RunReceipt receipt = Receipt();
        QVERIFY2(receipt.IsWhole(), qPrintable(receipt.Text()));
        QStringList names;
        for (const QString &file : receipt.files)
            names << QFileInfo(file).fileName();
        QCOMPARE(names, QStringList({ "run1_000001.png", "run1_000002.png", "run1_000003.png", "run1.txt" }));
        CompareWithTheScene(receipt, 1);
    }

    void whatAProgramThatDiedHasLeftIsRepairedAndTold()
    {
        m_ended.reset();
        m_workbench.reset();
        const QString path = m_folder->filePath("cut.tif");
        const RunRegister runs(m_folder->filePath("recordings"));
        {
            RunFacts facts;
            facts.frameSize = QSize(2, 1);
            const std::unique_ptr<RunWriter> writer = CreateRunWriter(RunFormat::Tiff, path);
            const std::shared_ptr<const uchar> pixels(new uchar[2]{ 7, 8 }, std::default_delete<const uchar[]>());
            CameraFrame frame;
            frame.pixels = pixels;
            frame.width = 2;
            frame.height = 1;
            frame.strideBytes = 2;
            QString error;
            QString entry;
            QVERIFY2(writer->Begin(facts, &error) && writer->Write(frame, &error) && runs.Add(path, &entry),
                     qPrintable(error));
        }
        m_workbench = std::make_unique<RunningWorkbench>(m_folder->path());
        QSignalSpy messages(&m_workbench->services, SIGNAL(signalMessage(QString)));
        const QString told = "A recording that was cut off was repaired: 1 frames in " + path;
        QTRY_VERIFY_WITH_TIMEOUT(messages.contains(QVariantList{ told }), MsToWait);
        QString error;
        const auto file = OpenPicture(path, error);
        QVERIFY2(file, qPrintable(error));
        QCOMPARE(file->Info().frames, 1);
        QCOMPARE(runs.Entries().size(), 0);
        QVERIFY(m_workbench->WaitForPicture());
    }

    void aRunIntoMemoryCanBeDiscarded()
    {
        m_settings.mode = RecordingSettings::Mode::UntilStopped;
        m_settings.toRam = true;
        Apply();
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        QTRY_VERIFY_WITH_TIMEOUT(RecordingLabel()->text().contains(QRegularExpression("in memory [1-9]")), MsToWait);
        m_workbench->Action("Discard")->trigger();
        QCOMPARE(Receipt().files, QStringList());
        QCOMPARE(QDir(m_folder->path()).entryList({ "run*" }), QStringList());
    }

private:
    QLabel *RecordingLabel() const { return m_workbench->window.findChild<QLabel *>("labelStatusRecording"); }
    QPushButton *Button(const char *name) const { return m_workbench->window.findChild<QPushButton *>(name); }
};

GUARDED_TEST_MAIN(Recording)
#include "tst_recording.moc"
