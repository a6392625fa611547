// SPDX-License-Identifier: GPL-3.0-or-later
#include <arv.h> // before Qt, whose "signals" GLib uses as a name

#include "cameradiscovery.h"
#include "camerasession.h"
#include "framecollector.h"
#include "guardedtest.h"
#include "guiwatchdog.h"
#include "simulatedsensor.h"
#include "testchartscene.h"

#include <QElapsedTimer>
#include <QSignalSpy>

/// The session on a GigE Vision camera that runs in this process, behind real sockets on the loopback interface.
class GigECameraSessionTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override;
    void cleanup() override;

    void DiscoveryFindsIt();
    void FramesCarryTheTestChart();
    void LostPacketsAreCounted();
    void SilentCameraIsToldInWordsAndBlocksNothing();
    void LostCameraIsToldAndBlocksNothing();

private:
    void Connect();

    static constexpr const char *SerialNumber = "WB7";
    static constexpr const char *Id = "Aravis-Fake-WB7";

    ArvGvFakeCamera *m_camera = nullptr;
    std::unique_ptr<SimulatedSensor> m_sensor;
    std::unique_ptr<CameraSession> m_session;
    FrameCollector m_frames;
};

void GigECameraSessionTest::init()
{
    StartGuard();
    m_sensor = std::make_unique<SimulatedSensor>(std::make_unique<TestChartScene>(), QSize(2048, 2048));
    m_sensor->Start();
    m_camera = arv_gv_fake_camera_new("127.0.0.1", SerialNumber);
    QVERIFY(arv_gv_fake_camera_is_running(m_camera));
    m_sensor->Attach(arv_gv_fake_camera_get_fake_camera(m_camera));
    m_session = std::make_unique<CameraSession>();
    m_frames.Clear();
}

void GigECameraSessionTest::cleanup()
{
    m_session.reset();
    QVERIFY(CameraSession::WaitForTeardown(30000));
    g_clear_object(&m_camera);
    m_sensor.reset();
    m_frames.Clear();
    EndGuard();
}

void GigECameraSessionTest::Connect()
{
    QString error;
    QVERIFY2(m_session->Open(Id, &error), qPrintable(error));
    m_session->SetRegion(QRect(0, 0, 512, 512));
    QTRY_VERIFY_WITH_TIMEOUT(!m_session->IsSetting(), 20000);
    QCOMPARE(m_session->Format().region, QRect(0, 0, 512, 512));
}

void GigECameraSessionTest::DiscoveryFindsIt()
{
    CameraDiscovery discovery;
    QSignalSpy found(&discovery, SIGNAL(signalCamerasFound(QVector<CameraInfo>)));
    discovery.Start();
    QVERIFY(found.wait(20000));
    for (const CameraInfo &camera : found.first().first().value<QVector<CameraInfo>>()) {
        if (camera.id != QLatin1String(Id))
            continue;
        QCOMPARE(camera.serial, QString(SerialNumber));
        QCOMPARE(camera.interfaceName, QString("GigE"));
        return;
    }
    QFAIL("the camera is not in the list");
}

void GigECameraSessionTest::FramesCarryTheTestChart()
{
    Connect();
    QVERIFY(!m_session->IsSimulated());
    QCOMPARE(m_session->Info().interfaceName, QString("GigE"));
    QCOMPARE(m_session->Info().serial, QString(SerialNumber));
    QVERIFY(m_session->Start(&m_frames));
    QVERIFY(m_frames.WaitFor(20, 20000));
    m_session->Stop();

    const CameraFrame frame = m_frames.Last();
    QCOMPARE(QSize(frame.width, frame.height), QSize(512, 512));
    int wrong = 0;
    for (int y = 0; y < 512; ++y) {
        for (int x = 0; x < 512; ++x)
            wrong += frame.Row(y)[x] != TestChartScene::ExpectedValue(x, y, 2048, 2048, 8);
    }
    QCOMPARE(wrong, 0);
    const std::vector<CameraFrame> frames = m_frames.Frames();
    const FrameCounts counts = m_session->Ledger().Counts();
    QCOMPARE(counts.captured, quint64(frames.size()));
    // Every id between the first frame and the last is either here or counted as lost.
    QVERIFY(frames.back().frameId - frames.front().frameId + 1 <= counts.captured + counts.Lost());
}

void GigECameraSessionTest::LostPacketsAreCounted()
{
    g_object_set(m_camera, "gvsp-lost-ratio", 0.05, nullptr);
    Connect();
    QVERIFY(m_session->Start(&m_frames));
    const auto lostInTransfer = [this] { return m_session->Ledger().Counts().LostAt(LossStage::Transfer); };
    QTRY_VERIFY_WITH_TIMEOUT(lostInTransfer() > 0, 20000);
    m_session->Stop();
    QCOMPARE(m_session->Ledger().Counts().captured,
             quint64(m_frames.Count())); // what is incomplete is not delivered
}

/// Before anybody knows that it is gone.
void GigECameraSessionTest::SilentCameraIsToldInWordsAndBlocksNothing()
{
    Connect();
    QSignalSpy set(m_session.get(), &CameraSession::signalControlSet);
    QSignalSpy failed(m_session.get(), &CameraSession::signalFramesFailed);
    g_clear_object(&m_camera); // pulls the plug
    GuiWatchdog watchdog;
    const ControlValues before = m_session->Controls();
    for (int i = 1; i <= 50; ++i)
        m_session->SetExposureUs(1000 * i);
    QVERIFY(m_session->Start(&m_frames));
    QVERIFY(m_session->IsStreaming());
    QVERIFY(set.isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(failed.count(), 1, 60000);
    QVERIFY(!m_session->IsStreaming());
    QVERIFY2(failed.first().first().toString().contains("again"), qPrintable(failed.first().first().toString()));
    QVERIFY(set.count() >= 1 && set.count() <= 2); // the one on its way, and the newest
    for (const QList<QVariant> &answer : set)
        QVERIFY2(answer.first().toString().startsWith("The exposure could not be set: "),
                 qPrintable(answer.first().toString()));
    QVERIFY(m_session->Controls() == before); // what was known stays
    QVERIFY2(watchdog.LongestMs() < 50, watchdog.Text("a silent camera"));
}

void GigECameraSessionTest::LostCameraIsToldAndBlocksNothing()
{
    Connect();
    QVERIFY(m_session->Start(&m_frames));
    QVERIFY(m_frames.WaitFor(5, 20000));
    QSignalSpy lost(m_session.get(), SIGNAL(signalControlLost()));
    g_clear_object(&m_camera); // pulls the plug
    QVERIFY(lost.wait(30000));
    QVERIFY(m_session->IsControlLost());
    QVERIFY(m_session->MillisecondsSinceLastFrame() > 1000);

    QElapsedTimer timer;
    timer.start();
    QSignalSpy controlSet(m_session.get(), &CameraSession::signalControlSet);
    QSignalSpy formatSet(m_session.get(), &CameraSession::signalFormatSet);
    m_session->SetExposureUs(20000);
    m_session->SetRegion(QRect(0, 0, 64, 64));
    QTRY_VERIFY(!m_session->IsSetting());
    for (const QSignalSpy *answers : { &controlSet, &formatSet }) {
        QCOMPARE(answers->count(), 1);
        QVERIFY2(answers->first().first().toString().contains("does not answer"),
                 qPrintable(answers->first().first().toString()));
    }
    m_session->Stop();
    m_session->Close();
    constexpr int UnansweredCallMs = 2500;
    QVERIFY2(timer.elapsed() < UnansweredCallMs, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(lost.count(), 1);
}

GUARDED_TEST_MAIN(GigECameraSessionTest)
#include "gigecamerasessiontest.moc"
