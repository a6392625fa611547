// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerasession.h"
#include "cameramainmanager.h"
#include "framesaving.h"
#include "livepreview.h"
#include "openpicture.h"
#include "recordingdesk.h"
#include "recordingstatus.h"
#include "scenariotest.h"
#include "runregister.h"
#include "runwriter.h"
#include "savesettings.h"
#include "shownframes.h"
#include "testchartscene.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTimer>
#include <QWindow>

#include <memory>

namespace {
constexpr int MsToWait = 60000;
constexpr QRect SmallRegion(512, 512, 256, 128);
} // namespace

/// A person records what the camera delivers.
class Recording : public ScenarioTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        ScenarioTest::init();
        m_workbench->link.SetRegion(SmallRegion);
        QVERIFY(m_workbench->WaitForNextPicture());
        m_settings = RecordingSettings();
        m_settings.folder = m_folder->path();
        m_settings.pattern = "run{number}";
        m_settings.frames = 20;
        m_ended = std::make_unique<QSignalSpy>(Desk(), SIGNAL(signalRunEnded(RunReceipt)));
    }

    void cleanup() override
    {
        m_ended.reset();
        ScenarioTest::cleanup();
    }

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

    void theSizeOfFramesStaysWhileARunGoesOn()
    {
        m_settings.mode = RecordingSettings::Mode::UntilStopped;
        Apply();
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        QTRY_VERIFY_WITH_TIMEOUT(Desk()->Saving()->Counts().saved > 3, MsToWait);
        m_workbench->link.SetRegion(QRect(0, 0, 64, 64));
        QVERIFY2(m_workbench->StatusText().contains("while a recording runs"),
                 qPrintable(m_workbench->StatusText()));
        QVERIFY(!m_workbench->link.Session()->IsSetting());
        QCOMPARE(m_workbench->link.Session()->Format().region, SmallRegion);
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        const RunReceipt receipt = Receipt();
        QCOMPARE(receipt.outcome.end, RunEnd::Stopped);
        QVERIFY2(receipt.IsWhole(), qPrintable(receipt.Text()));
        CompareWithTheScene(receipt, receipt.stamps.size());
        m_workbench->link.SetRegion(QRect(0, 0, 64, 64)); // allowed again
        QTRY_COMPARE(m_workbench->link.Session()->Format().region, QRect(0, 0, 64, 64));
    }

    void closingTheProgramAsks_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("closes");
        QTest::addColumn<int>("files");
        QTest::newRow("finish") << "Finish It" << true << 1;
        QTest::newRow("discard") << "Discard It" << true << 0;
        QTest::newRow("go on") << "Go On Recording" << false << 1;
    }

    void closingTheProgramAsks()
    {
        QFETCH(QString, answer);
        QFETCH(bool, closes);
        QFETCH(int, files);
        m_settings.mode = RecordingSettings::Mode::UntilStopped;
        Apply();
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        QTRY_VERIFY_WITH_TIMEOUT(Desk()->Saving()->Counts().saved > 3, MsToWait);
        Answer(answer);
        m_workbench->window.close();
        if (!closes) {
            QVERIFY(m_workbench->window.isVisible() && Desk()->IsBusy());
            Desk()->slotStop();
        }
        Receipt();
        QTRY_COMPARE_WITH_TIMEOUT(m_workbench->window.isVisible(), !closes, MsToWait);
        QCOMPARE(QDir(m_folder->path()).entryList({ "run*.tif" }).size(), files);
    }

    void aRecordingThatEndsWhileItAsksLetsTheProgramClose()
    {
        m_settings.mode = RecordingSettings::Mode::UntilStopped;
        Apply();
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        QTRY_VERIFY_WITH_TIMEOUT(Desk()->Saving()->Counts().saved > 3, MsToWait);
        QTimer::singleShot(0, Desk(), &RecordingDesk::slotStop); // the question stands by then
        connect(Desk(), &RecordingDesk::signalRunEnded, this, [this] { Answer("Finish It"); });
        m_workbench->window.close();
        QTRY_VERIFY_WITH_TIMEOUT(!m_workbench->window.isVisible(), MsToWait);
        QVERIFY(m_isAnswered);
    }

    void exposureSetByHandIsWhatTheFileTells()
    {
        m_workbench->Action("Exposure and Gain…")->trigger();
        auto *panel = m_workbench->window.findChild<QWidget *>("CameraPanel");
        QVERIFY(panel);
        QTRY_VERIFY(panel->isVisible());
        auto *exposure = panel->findChild<QDoubleSpinBox *>("numberExposure");
        exposure->setFocus();
        exposure->selectAll();
        QTest::keyClicks(exposure, "4.5");
        QTest::keyClick(exposure, Qt::Key_Return);
        QTRY_COMPARE(m_workbench->link.Session()->Controls().exposureUs, 4500.0);
        // Beyond the camera's 10 s: taken and shown as the limit.
        exposure->selectAll();
        QTest::keyClicks(exposure, "99999");
        QTest::keyClick(exposure, Qt::Key_Tab);
        QVERIFY(exposure->value() <= 10000.0);
        QTRY_VERIFY(!m_workbench->link.Session()->IsSetting());
        QCOMPARE(m_workbench->link.Session()->Controls().exposureUs, exposure->value() * 1000);
        exposure->setValue(4.5);
        QVERIFY(!panel->findChild<QCheckBox *>("checkAutoExposure")->isEnabled()); // the simulated camera has none
        auto *rate = panel->findChild<QDoubleSpinBox *>("numberFrameRate");
        rate->setValue(1000);
        QTRY_VERIFY(!m_workbench->link.Session()->IsSetting());
        QVERIFY(rate->value() <= 1e6 / 4500 + 0.01); // as the exposure bounds it
        rate->setValue(50);

        m_settings.frames = 3;
        Apply();
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        const RunReceipt receipt = Receipt();
        QCOMPARE(receipt.facts.exposureUs, 4500.0);
        QFile summary(receipt.files.last());
        QVERIFY(summary.open(QIODevice::ReadOnly));
        QVERIFY(summary.readAll().contains("Exposure: 4500 us\n"));
    }

    void aRunThatDoesNotFitAsksFirst_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("records");
        QTest::newRow("cancel") << "Cancel" << false;
        QTest::newRow("what fits") << "Record What Fits" << true;
        QTest::newRow("anyway") << "Record Anyway" << true;
    }

    void aRunThatDoesNotFitAsksFirst()
    {
        QFETCH(QString, answer);
        QFETCH(bool, records);
        m_workbench->link.SetRegion(QRect(0, 0, 2048, 2048));
        m_settings.frames = RecordingSettings::MostFrames; // 17 TB
        Apply();
        Answer(answer);
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        QTRY_COMPARE_WITH_TIMEOUT(m_isAnswered, true, MsToWait);
        if (!records) {
            QTRY_VERIFY(!Desk()->IsBusy());
            QCOMPARE(m_ended->count(), 0);
            return;
        }
        QTRY_VERIFY_WITH_TIMEOUT(Desk()->Saving()->Counts().saved > 0, MsToWait);
        const int frames = Desk()->Saving()->Order().settings.frames;
        QCOMPARE(frames < RecordingSettings::MostFrames, answer == "Record What Fits");
        Desk()->slotDiscard();
        Receipt();
    }

    void closingTheCameraAsks()
    {
        m_settings.mode = RecordingSettings::Mode::UntilStopped;
        Apply();
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        QTRY_VERIFY_WITH_TIMEOUT(Desk()->Saving()->Counts().saved > 3, MsToWait);
        Answer("Finish It");
        m_workbench->Action("Close Camera")->trigger();
        const RunReceipt receipt = Receipt();
        QVERIFY2(receipt.IsWhole(), qPrintable(receipt.Text()));
        CompareWithTheScene(receipt, receipt.stamps.size());
        QTRY_VERIFY_WITH_TIMEOUT(m_workbench->link.GetState() == CameraLink::State::NoCamera, MsToWait);
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

    void theStatusBarTellsTheQueue_data()
    {
        QTest::addColumn<quint64>("lost");
        QTest::addColumn<double>("growth");
        QTest::addColumn<QString>("text");
        QTest::newRow("the disk keeps up") << quint64(0) << 0.0 << "saved 120  waiting 3 (24.0 MB)";
        QTest::newRow("the queue shrinks") << quint64(0) << -1e6 << "saved 120  waiting 3 (24.0 MB)";
        QTest::newRow("the queue grows")
            << quint64(0) << 8e6 << "saved 120  waiting 3 (24.0 MB)  queue full in 22 s";
        QTest::newRow("hours away") << quint64(0) << 1e3 << "saved 120  waiting 3 (24.0 MB)";
        QTest::newRow("loss") << quint64(7) << 0.0 << "saved 120  LOST 7  waiting 3 (24.0 MB)";
    }

    void theStatusBarTellsTheQueue()
    {
        QFETCH(quint64, lost);
        QFETCH(double, growth);
        RecordingStatus::Facts facts;
        facts.saved = 120;
        facts.lost = lost;
        facts.waiting = 3;
        facts.waitingBytes = 24000000;
        facts.budgetBytes = 200000000;
        facts.growthBytesPerSecond = growth;
        QTEST(RecordingStatus::Text(facts), "text");
    }

    void theStatusBarTellsWhenTheRoomIsUsedUp()
    {
        RecordingStatus::Facts facts;
        facts.saved = 120;
        facts.roomBytes = 5000000000;
        facts.keptBytesPerSecond = 1e8;
        QCOMPARE(RecordingStatus::Text(facts), QString("saved 120  waiting 0 (0.0 kB)  disk full in 50 s"));
        facts.isToRam = true;
        facts.inRam = 77;
        QCOMPARE(RecordingStatus::Text(facts), QString("in memory 77  waiting 0 (0.0 kB)  memory full in 50 s"));
        facts.keptBytesPerSecond = 1e5; // hours away
        QCOMPARE(RecordingStatus::Text(facts), QString("in memory 77  waiting 0 (0.0 kB)"));
        facts.roomBytes = -1; // nobody knows
        facts.keptBytesPerSecond = 1e8;
        QCOMPARE(RecordingStatus::Text(facts), QString("in memory 77  waiting 0 (0.0 kB)"));
    }

    void binnedFramesAreMeansAndSaySo()
    {
        m_workbench->Action("2 x 2")->trigger();
        QTRY_COMPARE(m_workbench->link.Session()->Format().binning, 2);
        QCOMPARE(m_workbench->link.Session()->Format().region, SmallRegion);
        QTRY_COMPARE(m_workbench->services.Preview()->ShownFrame().width, SmallRegion.width() / 2);
        QVERIFY(CameraMainManager::GetInstance()->IsAnyBinOpen());
        m_settings.frames = 2;
        Apply();
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        const RunReceipt receipt = Receipt();
        QVERIFY2(receipt.IsWhole(), qPrintable(receipt.Text()));
        QCOMPARE(receipt.facts.binning, QSize(2, 2));
        QCOMPARE(receipt.facts.region, SmallRegion);
        QString error;
        const auto file = OpenPicture(receipt.files.first(), error);
        QVERIFY2(file, qPrintable(error));
        Picture picture;
        QVERIFY(file->ReadFrame(1, picture, error));
        QCOMPARE(picture.Size(), SmallRegion.size() / 2);
        const Picture &seen = picture;
        for (int y = 0; y < picture.Height(); ++y) {
            for (int x = 0; x < picture.Width(); ++x) {
                int sum = 0;
                for (const QPoint &part : { QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1) }) {
                    const QPoint place = SmallRegion.topLeft() + QPoint(2 * x, 2 * y) + part;
                    sum += TestChartScene::ExpectedValue(place.x(), place.y(), 2048, 2048, 8);
                }
                QCOMPARE(int(seen.Row(y)[x]), (sum + 2) / 4);
            }
        }
        m_workbench->Action("1 x 1")->trigger();
        QTRY_COMPARE(m_workbench->services.Preview()->ShownFrame().width, SmallRegion.width());
        QVERIFY(!CameraMainManager::GetInstance()->IsAnyBinOpen());
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

    void exposureChangedInMidRunIsTold()
    {
        m_settings.mode = RecordingSettings::Mode::UntilStopped;
        Apply();
        m_workbench->link.Session()->SetExposureUs(4000);
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        QTRY_VERIFY_WITH_TIMEOUT(Desk()->Saving()->Counts().saved > 3, MsToWait);
        m_workbench->link.Session()->SetExposureUs(9000);
        const quint64 before = Desk()->Saving()->Counts().saved;
        QTRY_VERIFY_WITH_TIMEOUT(Desk()->Saving()->Counts().saved > before + 5, MsToWait);
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        const RunReceipt receipt = Receipt();
        QVERIFY2(receipt.IsWhole(), qPrintable(receipt.Text()));
        QCOMPARE(receipt.facts.exposureUs, 4000.0);
        QCOMPARE(receipt.facts.changes.last().exposureUs, 9000.0);
        QVERIFY(receipt.facts.changes.last().frame > 3 && receipt.facts.changes.last().frame < receipt.stamps.size());
        QFile summary(receipt.files.last());
        QVERIFY(summary.open(QIODevice::ReadOnly));
        QVERIFY(summary.readAll().contains("Exposure: 4000 to 9000 us\n"));
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
    RecordingDesk *Desk() const { return m_workbench->services.Recording(); }
    void Apply() { Desk()->Settings()->Set(m_settings); }
    QLabel *RecordingLabel() const { return m_workbench->window.findChild<QLabel *>("labelStatusRecording"); }
    QPushButton *Button(const char *name) const { return m_workbench->window.findChild<QPushButton *>(name); }

    RunReceipt Receipt()
    {
        if (m_ended->isEmpty() && !m_ended->wait(MsToWait))
            qFatal("the run did not end");
        return m_ended->takeFirst().at(0).value<RunReceipt>();
    }

    /// Presses that button of the question as soon as it is there.
    void Answer(const QString &text)
    {
        m_isAnswered = false;
        auto *timer = new QTimer(&m_workbench->window);
        connect(timer, &QTimer::timeout, this, [this, timer, text] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box || !box->isActiveWindow() || !box->windowHandle()->isExposed())
                return; // a person clicks what is on the screen
            m_isAnswered = true;
            timer->stop();
            timer->deleteLater();
            for (QAbstractButton *button : box->buttons()) {
                if (button->text().remove('&') == text)
                    button->click();
            }
        });
        timer->start(20);
    }

    /// The chart stands still: every frame shows it.
    void CompareWithTheScene(const RunReceipt &receipt, int frames)
    {
        QVERIFY2(!receipt.files.isEmpty(), qPrintable(receipt.Text()));
        QString error;
        const auto file = OpenPicture(receipt.files.first(), error);
        QVERIFY2(file, qPrintable(error));
        QCOMPARE(file->Info().frames, frames);
        QVERIFY(frames > 0);
        for (const int index : { 0, frames - 1 }) {
            Picture picture;
            QVERIFY2(file->ReadFrame(index, picture, error), qPrintable(error));
            QCOMPARE(picture.Size(), SmallRegion.size());
            const Picture &seen = picture;
            for (int y = 0; y < SmallRegion.height(); ++y) {
                for (int x = 0; x < SmallRegion.width(); ++x) {
                    const QPoint place = SmallRegion.topLeft() + QPoint(x, y);
                    QCOMPARE(int(seen.Row(y)[x]),
                             TestChartScene::ExpectedValue(place.x(), place.y(), 2048, 2048, 8));
                }
            }
        }
    }

    std::unique_ptr<QSignalSpy> m_ended;
    RecordingSettings m_settings;
    bool m_isAnswered = false;
};

GUARDED_TEST_MAIN(Recording)
#include "tst_recording.moc"
