// SPDX-License-Identifier: GPL-3.0-or-later
#include <arv.h> // before Qt, whose "signals" GLib uses as a name

#include "cameralink.h"
#include "camerasession.h"
#include "devicelist.h"
#include "framecollector.h"
#include "guardedtest.h"
#include "testchartscene.h"

#include <QElapsedTimer>
#include <QSignalSpy>

#include <atomic>
#include <utility>

/// A camera that is lost comes back in bounded steps, and nobody waits for it.
class CameraLinkTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void cleanup() override
    {
        QVERIFY(CameraSession::WaitForTeardown(5000));
        EndGuard();
    }

    void opensInTheBackground()
    {
        CameraLink link;
        QSignalSpy states(&link, SIGNAL(signalStateChanged()));
        link.Open(SimulatedCameraInfo().id);
        QCOMPARE(link.GetState(), CameraLink::State::Opening);
        QVERIFY(!link.Session());
        QTRY_COMPARE(link.GetState(), CameraLink::State::Open);
        QVERIFY(link.Session());
        QCOMPARE(link.Session()->thread(), QThread::currentThread());
        QCOMPARE(states.count(), 2);
    }

    void cameraThatCanNotBeOpenedIsSaidInWords()
    {
        CameraLink link([](const QString &, const QString &, QString *error) {
            *error = "It is not there.";
            return std::shared_ptr<CameraSession>();
        });
        QSignalSpy messages(&link, SIGNAL(signalMessage(QString)));
        link.Open("Nobody");
        QTRY_COMPARE(link.GetState(), CameraLink::State::NoCamera);
        QCOMPARE(messages.count(), 1);
        QCOMPARE(messages.at(0).at(0).toString(), QString("It is not there."));
    }

    void cameraThatWasClosedMeanwhileStaysClosed()
    {
        CameraLink link;
        link.Open(SimulatedCameraInfo().id);
        link.Close();
        QSignalSpy states(&link, SIGNAL(signalStateChanged()));
        QVERIFY(!states.wait(300));
        QCOMPARE(link.GetState(), CameraLink::State::NoCamera);
    }

    void noFramesWithoutACamera()
    {
        CameraLink link;
        FrameCollector sink;
        QVERIFY(!link.StartFrames(&sink));
        QCOMPARE(link.Counts().captured, quint64(0));
    }

    void lostCameraComesBackWithItsSettingsAndItsFrames()
    {
        CameraLink link;
        link.SetScene(TestChartScene::SceneName());
        OpenSimulated(link);
        link.SetPixelLayout(PixelLayout::Mono12);
        link.SetRegion(QRect(64, 32, 256, 128));
        link.Session()->SetExposureUs(5000);
        QTRY_VERIFY(!link.Session()->IsSetting());
        FrameCollector sink;
        QVERIFY(link.StartFrames(&sink));
        QTRY_VERIFY(link.Counts().captured >= 2);
        const quint64 capturedBefore = link.Counts().captured;

        QSignalSpy messages(&link, SIGNAL(signalMessage(QString)));
        emit link.Session()->signalControlLost();

        QCOMPARE(link.GetState(), CameraLink::State::Lost);
        QVERIFY(!link.Session());
        QCOMPARE(link.Name(), QString("Simulated Camera"));
        QCOMPARE(link.TriesMade(), 1);
        QCOMPARE(link.SecondsToNextTry(), 1);
        QTRY_COMPARE(link.GetState(), CameraLink::State::Open);
        QTRY_COMPARE(messages.count(), 1);
        QCOMPARE(messages.at(0).at(0).toString(), QString("Camera \"Simulated Camera\" is back."));
        QCOMPARE(link.Session()->Format().layout, PixelLayout::Mono12);
        QCOMPARE(link.Session()->Format().region, QRect(64, 32, 256, 128));
        QCOMPARE(link.Session()->Controls().exposureUs, 5000.0);
        QCOMPARE(link.Session()->SceneName(), TestChartScene::SceneName());
        QTRY_VERIFY(link.Counts().captured > capturedBefore + 1);
        link.StopFrames();
    }

    /// Lost a second time before it had its settings, it still gets those that the user knows.
    void cameraLostOnItsWayBackKeepsItsSettings()
    {
        CameraLink link;
        OpenSimulated(link);
        link.SetRegion(QRect(64, 32, 256, 128));
        QTRY_VERIFY(!link.Session()->IsSetting());
        QSignalSpy messages(&link, SIGNAL(signalMessage(QString)));
        bool isFirst = true;
        connect(&link, &CameraLink::signalStateChanged, this, [&] {
            if (link.GetState() == CameraLink::State::Open && std::exchange(isFirst, false))
                emit link.Session()->signalControlLost();
        });
        emit link.Session()->signalControlLost();
        QTRY_VERIFY(!messages.isEmpty());
        QVERIFY(!isFirst);
        QCOMPARE(messages.last().first().toString(), QString("Camera \"Simulated Camera\" is back."));
        QCOMPARE(link.Session()->Format().region, QRect(64, 32, 256, 128));
    }

    /// Who asked is told when it is done, and what was refused.
    void formatIsAnnouncedWhenTheCameraHasIt()
    {
        CameraLink link;
        OpenSimulated(link);
        QSignalSpy changed(&link, SIGNAL(signalFormatChanged()));
        QSignalSpy messages(&link, SIGNAL(signalMessage(QString)));
        link.SetBinning(2);
        QCOMPARE(changed.count(), 0);
        QVERIFY(changed.wait());
        QCOMPARE(link.Session()->Format().binning, 2);
        QVERIFY(messages.isEmpty());
        link.SetBinning(7);
        QVERIFY(changed.wait());
        QCOMPARE(messages.count(), 1);
        QVERIFY2(messages.first().first().toString().contains("7 x 7"),
                 qPrintable(messages.first().first().toString()));
        QCOMPARE(link.Session()->Format().binning, 2);
        link.HoldFormat(true);
        link.SetBinning(1);
        QCOMPARE(changed.count(), 3);
        QCOMPARE(messages.count(), 2);
        QVERIFY(!link.Session()->IsSetting());
    }

    void previewThatWasStoppedMeanwhileStaysStopped()
    {
        CameraLink link;
        OpenSimulated(link);
        FrameCollector sink;
        QVERIFY(link.StartFrames(&sink));
        emit link.Session()->signalControlLost();
        link.StopFrames();
        QTRY_COMPARE(link.GetState(), CameraLink::State::Open);
        QVERIFY(!link.Session()->IsStreaming());
    }

    void userNeedNotWaitForTheNextTry()
    {
        std::atomic<int> tries{0};
        CameraLink link([&](const QString &id, const QString &scene, QString *error) {
            ++tries;
            return CameraLink::OpenSession(id, scene, error);
        });
        OpenSimulated(link);
        emit link.Session()->signalControlLost();
        QVERIFY(link.SecondsToNextTry() > 0);
        link.Reconnect();
        QCOMPARE(link.SecondsToNextTry(), 0); // nothing is being waited for
        QTRY_COMPARE(link.GetState(), CameraLink::State::Open);
        QCOMPARE(int(tries), 2);
    }

    void cameraThatStaysAwayIsNeverWaitedFor()
    {
        std::atomic<bool> isThere{true};
        std::atomic<int> tries{0};
        CameraLink link([&](const QString &id, const QString &scene, QString *error) {
            ++tries;
            if (isThere)
                return CameraLink::OpenSession(id, scene, error);
            QThread::msleep(1000); // a camera that is gone is slow to say so
            return std::shared_ptr<CameraSession>();
        });
        OpenSimulated(link);
        isThere = false;
        tries = 0;

        constexpr int UnansweredCallMs = 2500;
        QElapsedTimer timer;
        timer.start();
        emit link.Session()->signalControlLost();
        link.Reconnect();
        QVERIFY2(timer.elapsed() < UnansweredCallMs, qPrintable(QString::number(timer.elapsed())));
        QTRY_VERIFY(link.SecondsToNextTry() == 1); // the steps begin anew after the user's own try
        QTRY_COMPARE_WITH_TIMEOUT(int(tries), 2, 5000);
        QTRY_VERIFY(link.SecondsToNextTry() == 2);
        QVERIFY(!link.HasGivenUp());
        link.Close();
        QCOMPARE(link.GetState(), CameraLink::State::NoCamera);
    }

    void countsBeginAnewWithTheNextPreview()
    {
        CameraLink link;
        OpenSimulated(link);
        FrameCollector sink;
        link.StartFrames(&sink);
        QTRY_VERIFY(link.Counts().captured >= 3);
        link.StopFrames();
        link.StartFrames(&sink);
        QVERIFY(link.Counts().captured < 3);
        link.StopFrames();
    }

    /// One without columns answers, but has nothing to send.
    void cameraThatRefusesSaysSoAndMayBeStartedAgain()
    {
        CameraLink link;
        OpenSimulated(link);
        const auto setColumns = [&link, this](quint32 columns) {
            return link.Session()->TakeTurn(
                [columns](ArvCamera *camera) {
                    arv_device_write_register(arv_camera_get_device(camera), ARV_FAKE_CAMERA_REGISTER_WIDTH,
                                              columns, nullptr);
                },
                this, [] {});
        };
        QSignalSpy failed(&link, SIGNAL(signalFramesFailed()));
        QSignalSpy messages(&link, SIGNAL(signalMessage(QString)));
        FrameCollector sink;
        QVERIFY(setColumns(0));
        QVERIFY(link.StartFrames(&sink));
        QVERIFY(link.IsStarted());
        QVERIFY(failed.wait());
        QVERIFY(!link.IsStarted());
        QCOMPARE(link.GetState(), CameraLink::State::Open);
        QCOMPARE(messages.count(), 1);
        QVERIFY2(messages.first().first().toString().contains("its frames have no size"),
                 qPrintable(messages.first().first().toString()));
        QVERIFY(setColumns(64));
        QVERIFY(link.StartFrames(&sink));
        QVERIFY(sink.WaitFor(1));
        QCOMPARE(failed.count(), 1);
        link.StopFrames();
    }

    void framesEndWithTheCamera()
    {
        CameraLink link;
        OpenSimulated(link);
        FrameCollector sink;
        QVERIFY(link.StartFrames(&sink));
        QVERIFY(sink.WaitFor(1));
        link.Close();
        QVERIFY(!link.IsStarted());
        OpenSimulated(link);
        QVERIFY(!link.Session()->IsStreaming());
    }

private:
    static void OpenSimulated(CameraLink &link)
    {
        link.Open(SimulatedCameraInfo().id);
        QTRY_COMPARE(link.GetState(), CameraLink::State::Open);
    }
};

GUARDED_TEST_MAIN(CameraLinkTest)
#include "cameralinktest.moc"
