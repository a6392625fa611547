// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordingdesk.h"
#include "cameralink.h"
#include "camerasession.h"
#include "devicelist.h"
#include "frametee.h"
#include "guardedtest.h"
#include "levelsmodel.h"
#include "livelevels.h"
#include "liveorientation.h"
#include "livepreview.h"
#include "openpicture.h"
#include "savesettings.h"
#include "testchartscene.h"

#include <QDir>
#include <QSemaphore>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

namespace {
constexpr int MsToWait = 60000;
constexpr QRect Region(512, 512, 64, 32);
} // namespace

/// Camera, live view, recording and the disk together, each in its thread.
class RecordingDeskTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_folder = std::make_unique<QTemporaryDir>();
        m_parts = std::make_unique<Parts>(m_folder->path());
        m_parts->link.SetScene(TestChartScene::SceneName());
        m_parts->link.Open(SimulatedCameraInfo().id);
        QTRY_COMPARE_WITH_TIMEOUT(m_parts->link.GetState(), CameraLink::State::Open, MsToWait);
        m_parts->link.SetRegion(Region);
        m_parts->link.Session()->SetExposureUs(1000);
        m_parts->link.Session()->SetFrameRate(200);
        QVERIFY(m_parts->preview.StartPreview());
        m_ended = std::make_unique<QSignalSpy>(Desk(), SIGNAL(signalRunEnded(RunReceipt)));
    }

    void cleanup() override
    {
        m_parts->preview.StopPreview();
        m_ended.reset();
        m_parts.reset();
        QVERIFY(CameraSession::WaitForTeardown(30000));
        m_folder.reset();
        EndGuard();
    }

    void recordsBesideTheLiveView()
    {
        QSignalSpy delivered(&m_parts->preview, SIGNAL(signalPictureDelivered()));
        Set(RecordingSettings::Mode::Count, 60);
        Desk()->slotCapture(false, false);
        QVERIFY(Desk()->IsBusy());
        const RunReceipt receipt = Receipt();
        QVERIFY2(receipt.IsWhole(), qPrintable(receipt.Text()));
        QCOMPARE(receipt.outcome.counts.saved, quint64(60));
        CompareWithTheChart(receipt, 60);
        QVERIFY(delivered.count() > 0);
        QVERIFY(m_parts->preview.isRunning());
    }

    void twoHundredStartsAndStops()
    {
        Set(RecordingSettings::Mode::UntilStopped, 1);
        int saved = 0;
        for (int i = 0; i < 200; ++i) {
            Desk()->slotCapture(false, false);
            QVERIFY(Desk()->IsBusy());
            QTRY_VERIFY_WITH_TIMEOUT(Desk()->Saving()->IsBusy(), MsToWait);
            if (i % 2 == 0)
                QTRY_VERIFY_WITH_TIMEOUT(Desk()->Saving()->Counts().saved > 0, MsToWait);
            Desk()->slotStop();
            Desk()->slotStop(); // twice
            const RunReceipt receipt = Receipt();
            QVERIFY2(receipt.IsWhole(), qPrintable(receipt.Text()));
            QVERIFY(!Desk()->IsBusy());
            QVERIFY(i % 2 != 0 || !receipt.files.isEmpty());
            saved += receipt.files.isEmpty() ? 0 : 1;
        }
        QCOMPARE(QDir(m_folder->path()).entryList({ "run*.tif" }).size(), saved);
        QCOMPARE(QDir(m_folder->path()).entryList({ "*.part", "*.journal" }), QStringList());
        QCOMPARE(QDir(m_folder->filePath("register")).entryList(QDir::Files), QStringList());
    }

    /// Before the room was looked at, there is nothing to be ended.
    void stoppedWhileItIsPreparedItNeverBegins()
    {
        QSignalSpy states(Desk(), SIGNAL(signalStateChanged()));
        Set(RecordingSettings::Mode::Count, 5);
        Desk()->slotCapture(false, false);
        Desk()->slotCapture(false, false); // the second press ends it
        QVERIFY(!Desk()->IsBusy());
        QCOMPARE(states.count(), 2);
        Desk()->slotCapture(false, true);
        QCOMPARE(Receipt().outcome.counts.saved, quint64(1));
        QCOMPARE(m_ended->count(), 0);
    }

    void stoppedDuringTheDelayItLeavesNothing()
    {
        RecordingSettings settings = m_parts->settings.Get();
        settings.delay.minutes = 5;
        m_parts->settings.Set(settings);
        QSignalSpy delay(&m_parts->saving, SIGNAL(signalUpdateDelayTime(int)));
        Desk()->slotCapture(false, false);
        QTRY_VERIFY_WITH_TIMEOUT(Desk()->Saving()->IsBusy(), MsToWait);
        Desk()->slotCapture(false, false);
        const RunReceipt receipt = Receipt();
        QCOMPARE(receipt.files, QStringList());
        QCOMPARE(receipt.error, QString());
        QCOMPARE(QDir(m_folder->path()).entryList({ "run*" }), QStringList());
    }

    void aCameraLostInMidRunLeavesItsFramesAndComesBack()
    {
        Set(RecordingSettings::Mode::UntilStopped, 1);
        Desk()->slotCapture(false, false);
        QTRY_VERIFY_WITH_TIMEOUT(Desk()->Saving()->Counts().saved > 5, MsToWait);
        emit m_parts->link.Session()->signalControlLost();
        const RunReceipt receipt = Receipt();
        QCOMPARE(receipt.outcome.end, RunEnd::CameraLost);
        QVERIFY(!receipt.IsWhole());
        CompareWithTheChart(receipt, receipt.stamps.size());
        QTRY_COMPARE_WITH_TIMEOUT(m_parts->link.GetState(), CameraLink::State::Open, MsToWait);
        QTRY_COMPARE_WITH_TIMEOUT(m_parts->link.Session()->Format().region, Region, MsToWait);
        QTRY_COMPARE_WITH_TIMEOUT(m_parts->link.Session()->Controls().exposureUs, 1000.0, MsToWait);
        Desk()->slotCapture(false, true); // and it records again
        QVERIFY(Receipt().IsWhole());
    }

    void onlyOtherSettingsAreToldInMidRun()
    {
        QTRY_VERIFY(!m_parts->link.Session()->IsSetting());
        Set(RecordingSettings::Mode::UntilStopped, 1);
        Desk()->slotCapture(false, false);
        QTRY_VERIFY_WITH_TIMEOUT(Desk()->Saving()->Counts().saved > 0, MsToWait);
        const auto waitForFrames = [this] {
            const quint64 saved = Desk()->Saving()->Counts().saved;
            QTRY_VERIFY_WITH_TIMEOUT(Desk()->Saving()->Counts().saved > saved + 2, MsToWait);
        };
        emit m_parts->link.signalControlsChanged(); // a limit
        waitForFrames();
        m_parts->link.Session()->SetGain(4);
        QTRY_COMPARE_WITH_TIMEOUT(m_parts->link.Session()->Controls().gain, 4.0, MsToWait);
        waitForFrames();
        emit m_parts->link.signalControlsChanged();
        waitForFrames();
        Desk()->slotStop();
        const RunReceipt receipt = Receipt();
        QVERIFY2(receipt.IsWhole(), qPrintable(receipt.Text()));
        QCOMPARE(receipt.facts.changes.size(), 1);
        QCOMPARE(receipt.facts.changes.first().gain, 4.0);
    }

    /// It begins with what was set until then, though the camera is slow to take it.
    void whatWasSetBeforeItBeginsIsInTheFile()
    {
        QSemaphore answer;
        CameraSession *session = m_parts->link.Session();
        QTRY_VERIFY(!session->IsSetting());
        QVERIFY(session->TakeTurn([&answer](ArvCamera *) { answer.acquire(); }, this, [] {}));
        constexpr QRect NewRegion(100, 200, 48, 16);
        m_parts->link.SetRegion(NewRegion);
        session->SetExposureUs(2000);
        Set(RecordingSettings::Mode::Count, 5);
        Desk()->slotCapture(false, false);
        QVERIFY(Desk()->IsBusy());
        QVERIFY(!Desk()->Saving()->IsBusy());
        QSignalSpy messages(&m_parts->link, SIGNAL(signalMessage(QString)));
        m_parts->link.SetRegion(Region); // too late
        QCOMPARE(messages.count(), 1);
        answer.release();
        const RunReceipt receipt = Receipt();
        QVERIFY2(receipt.IsWhole(), qPrintable(receipt.Text()));
        QCOMPARE(receipt.facts.exposureUs, 2000.0);
        QCOMPARE(receipt.facts.region, NewRegion);
        QString error;
        const auto file = OpenPicture(receipt.files.first(), error);
        QVERIFY2(file, qPrintable(error));
        Picture picture;
        QVERIFY2(file->ReadFrame(0, picture, error), qPrintable(error));
        QCOMPARE(picture.Size(), NewRegion.size());
    }

    /// The same without hands, into a file of its own name.
    void whatWasSetBeforeARunWithoutHandsIsInItsFile()
    {
        QSemaphore answer;
        CameraSession *session = m_parts->link.Session();
        QTRY_VERIFY(!session->IsSetting());
        QVERIFY(session->TakeTurn([&answer](ArvCamera *) { answer.acquire(); }, this, [] {}));
        constexpr QRect NewRegion(100, 200, 48, 16);
        m_parts->link.SetRegion(NewRegion);
        session->SetExposureUs(2000);
        RecordingSettings settings = m_parts->settings.Get();
        settings.mode = RecordingSettings::Mode::Count;
        settings.frames = 5;
        const QString path = m_folder->filePath("na\nmed.tif");
        QSignalSpy messages(Desk(), SIGNAL(signalMessage(QString)));
        QString error;
        const bool isPrepared = Desk()->Start(settings, path, &error);
        const bool hasBegun = Desk()->Saving()->IsBusy();
        answer.release();
        QVERIFY2(isPrepared, qPrintable(error));
        QVERIFY(!hasBegun);
        QVERIFY(!Desk()->Start(settings, path, &error));
        QCOMPARE(error, QString("A recording is running already."));
        const RunReceipt receipt = Receipt();
        QVERIFY2(receipt.IsWhole(), qPrintable(receipt.Text()));
        QCOMPARE(receipt.files.first(), path);
        QCOMPARE(messages.last().first().toString(), QString("5 frames saved as na\u23cemed.tif, none lost."));
        QCOMPARE(receipt.facts.exposureUs, 2000.0);
        QCOMPARE(receipt.facts.region, NewRegion);
        QCOMPARE(receipt.stamps.size(), 5);
    }

    void aRunWithoutHandsOfACameraThatIsLostIsGivenUp()
    {
        QSemaphore answer;
        QVERIFY(m_parts->link.Session()->TakeTurn([&answer](ArvCamera *) { answer.acquire(); }, this, [] {}));
        QSignalSpy states(Desk(), SIGNAL(signalStateChanged()));
        QString error;
        const bool isPrepared =
            Desk()->Start(m_parts->settings.Get(), m_folder->filePath("named.tif"), &error);
        emit m_parts->link.Session()->signalControlLost();
        answer.release();
        QVERIFY2(isPrepared, qPrintable(error));
        QCOMPARE(states.count(), 2);
        QVERIFY(!Desk()->IsBusy());
        QVERIFY(!Desk()->HasReceipt());
        QVERIFY(!Desk()->Start(m_parts->settings.Get(), m_folder->filePath("named.tif"), &error));
        QVERIFY2(error.startsWith("There is no camera to record from."), qPrintable(error));
    }

    void aCameraLostBeforeItBeginsIsTold()
    {
        QSemaphore answer;
        QVERIFY(m_parts->link.Session()->TakeTurn([&answer](ArvCamera *) { answer.acquire(); }, this, [] {}));
        QSignalSpy messages(Desk(), SIGNAL(signalMessage(QString)));
        Desk()->slotCapture(false, false);
        QVERIFY(Desk()->IsBusy());
        emit m_parts->link.Session()->signalControlLost();
        QVERIFY(!Desk()->IsBusy());
        QCOMPARE(messages.count(), 1);
        QCOMPARE(messages.first().first().toString(),
                 QString("The camera was lost before the recording could begin."));
        answer.release();
        QTRY_COMPARE_WITH_TIMEOUT(m_parts->link.GetState(), CameraLink::State::Open, MsToWait);
        QVERIFY(m_ended->isEmpty());
    }

    void withoutACameraItSaysSo()
    {
        m_parts->preview.StopPreview();
        m_parts->link.Close();
        QSignalSpy messages(Desk(), SIGNAL(signalMessage(QString)));
        Desk()->slotCapture(false, false);
        QVERIFY(!Desk()->IsBusy());
        QCOMPARE(messages.count(), 1);
        QVERIFY(messages.first().first().toString().startsWith("There is no camera to record from."));
    }

private:
    /// As the program puts them together.
    struct Parts
    {
        explicit Parts(const QString &folder)
            : file(folder + "/settings.ini", QSettings::IniFormat)
            , settings(&file)
            , saving(RunRegister(folder + "/register"))
            , desk({ &link, &tee, &saving, &settings, &orientation })
        {
            RecordingSettings recording;
            recording.folder = folder;
            recording.pattern = "run{number}";
            settings.Set(recording);
        }

        QSettings file;
        CameraLink link;
        LevelsModel levelsModel;
        LiveLevels levels{ &levelsModel };
        LiveOrientation orientation;
        FrameTee tee{ &link };
        LivePreview preview{ &tee, &orientation, &levels };
        SaveSettings settings;
        FrameSaving saving;
        RecordingDesk desk;
    };

    RecordingDesk *Desk() const { return &m_parts->desk; }

    void Set(RecordingSettings::Mode mode, int frames)
    {
        RecordingSettings settings = m_parts->settings.Get();
        settings.mode = mode;
        settings.frames = frames;
        m_parts->settings.Set(settings);
    }

    RunReceipt Receipt()
    {
        if (m_ended->isEmpty() && !m_ended->wait(MsToWait))
            qFatal("the run did not end");
        return m_ended->takeFirst().at(0).value<RunReceipt>();
    }

    /// The chart stands still: every frame shows it.
    static void CompareWithTheChart(const RunReceipt &receipt, int frames)
    {
        QVERIFY2(!receipt.files.isEmpty(), qPrintable(receipt.Text()));
        QString error;
        const auto file = OpenPicture(receipt.files.first(), error);
        QVERIFY2(file, qPrintable(error));
        QCOMPARE(file->Info().frames, frames);
        int wrong = 0;
        for (int i = 0; i < frames; ++i) {
            Picture picture;
            QVERIFY2(file->ReadFrame(i, picture, error), qPrintable(error));
            const Picture &seen = picture;
            for (int y = 0; y < Region.height(); ++y) {
                for (int x = 0; x < Region.width(); ++x)
                    wrong += seen.Row(y)[x]
                             != TestChartScene::ExpectedValue(Region.x() + x, Region.y() + y, 2048, 2048, 8);
            }
        }
        QCOMPARE(wrong, 0);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Parts> m_parts;
    std::unique_ptr<QSignalSpy> m_ended;
};

GUARDED_TEST_MAIN(RecordingDeskTest)
#include "recordingdesktest.moc"
