// SPDX-License-Identifier: GPL-3.0-or-later
#include <arv.h> // before Qt, whose "signals" GLib uses as a name

#include "camerasession.h"
#include "framecollector.h"
#include "guardedtest.h"

#include <QSemaphore>
#include <QSignalSpy>

#include <memory>

namespace {
constexpr int MsToWait = 20000;
constexpr QRect SmallRegion(0, 0, 64, 64);

/// Whatever is asked of the camera after this waits until it ends.
class Silence
{
public:
    explicit Silence(CameraSession *session)
    {
        session->TakeTurn([answer = m_answer](ArvCamera *) { answer->acquire(); }, session, [] {});
    }
    ~Silence() { End(); }
    void End() { m_answer->release(); }

private:
    const std::shared_ptr<QSemaphore> m_answer = std::make_shared<QSemaphore>();
};

/// A camera without columns sends nothing, and can't be started.
void SetColumns(CameraSession *session, quint32 columns)
{
    QVERIFY(session->TakeTurn(
        [columns](ArvCamera *camera) {
            arv_device_write_register(arv_camera_get_device(camera), ARV_FAKE_CAMERA_REGISTER_WIDTH, columns,
                                      nullptr);
        },
        session, [] {}));
}
} // namespace

/// Frames are wanted, stopped and wanted again while older wishes still wait for the camera: each gets what was asked
/// for it, and nothing of the others.
class CameraRunTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_session = std::make_unique<CameraSession>();
        QVERIFY(m_session->Open("Fake_1"));
        m_session->SetRegion(SmallRegion);
        QVERIFY(m_session->Start(&m_first));
        QVERIFY(m_first.WaitFor(1));
        QTRY_VERIFY(!m_session->IsSetting());
    }

    void cleanup() override
    {
        m_session.reset();
        QVERIFY(CameraSession::WaitForTeardown(MsToWait));
        m_first.Clear();
        EndGuard();
    }

    void changeForTheFramesBeforeStartsNoNewerOnes()
    {
        Silence beforeChange(m_session.get());
        m_session->SetRegion(QRect(0, 0, 32, 32));
        Silence beforeStop(m_session.get());
        m_session->Stop();
        m_session->SetRegion(QRect(0, 0, 48, 16));
        FrameCollector second;
        QVERIFY(m_session->Start(&second));
        beforeChange.End();
        QVERIFY(!second.WaitFor(1, 500)); // the camera sends more than 25 frames a second
        QCOMPARE(m_session->MillisecondsSinceLastFrame(), qint64(0));
        beforeStop.End();
        QVERIFY(second.WaitFor(3));
        m_session->Stop();
        for (const CameraFrame &frame : second.Frames())
            QCOMPARE(QSize(frame.width, frame.height), QSize(48, 16));
    }

    void oldFramesThatDoNotGoOnStopNoNewerOnes()
    {
        QSignalSpy failed(m_session.get(), &CameraSession::signalFramesFailed);
        Silence silence(m_session.get());
        SetColumns(m_session.get(), 0);
        m_session->SetPixelLayout(PixelLayout::Mono16);
        SetColumns(m_session.get(), SmallRegion.width());
        m_session->Stop();
        FrameCollector second;
        QVERIFY(m_session->Start(&second));
        silence.End();
        QTRY_VERIFY_WITH_TIMEOUT(!m_session->IsSetting(), MsToWait);
        QVERIFY(m_session->IsStreaming());
        QVERIFY(second.WaitFor(3));
        QCOMPARE(second.Last().layout, PixelLayout::Mono16);
        QCOMPARE(failed.count(), 0);
        m_session->Stop();
    }

    void framesThatDoNotGoOnAreTold()
    {
        QSignalSpy failed(m_session.get(), &CameraSession::signalFramesFailed);
        SetColumns(m_session.get(), 0);
        m_session->SetPixelLayout(PixelLayout::Mono16);
        QVERIFY(failed.wait(MsToWait));
        QVERIFY2(failed.first().first().toString().contains("sends no pictures"),
                 qPrintable(failed.first().first().toString()));
        QVERIFY(!m_session->IsStreaming());
    }

    /// Who hears of an answer may close the camera, or open it anew; the rest of the answer belongs to the one before.
    void whoHearsOfTheFormatMayOpenTheCameraAnew()
    {
        QSignalSpy failed(m_session.get(), &CameraSession::signalFramesFailed);
        FrameCollector second;
        bool isAnew = false;
        connect(m_session.get(), &CameraSession::signalFormatSet, this, [&] {
            m_session->Close();
            isAnew = m_session->Open("Fake_1") && m_session->Start(&second);
        });
        SetColumns(m_session.get(), 0);
        m_session->SetPixelLayout(PixelLayout::Mono16);
        QTRY_VERIFY_WITH_TIMEOUT(isAnew, MsToWait);
        QVERIFY(second.WaitFor(2));
        QCOMPARE(failed.count(), 0);
        QVERIFY(m_session->IsStreaming());
        m_session->Stop();
    }

    void whoHearsOfNewValuesMayCloseTheCamera()
    {
        QSignalSpy set(m_session.get(), &CameraSession::signalControlSet);
        QSignalSpy changed(m_session.get(), &CameraSession::signalControlsChanged);
        connect(m_session.get(), &CameraSession::signalControlsChanged, m_session.get(),
                &CameraSession::Close);
        m_session->SetGain(3);
        QVERIFY(changed.wait(MsToWait));
        QVERIFY(!m_session->IsOpen());
        QCOMPARE(set.count(), 0);
    }

    void whoHearsOfNewValuesMayDeleteTheSession()
    {
        bool isDone = false;
        connect(m_session.get(), &CameraSession::signalControlsChanged, this, [this] { m_session.reset(); });
        connect(m_session.get(), &CameraSession::signalControlSet, this, [&isDone] { isDone = true; });
        m_session->SetGain(3);
        QTRY_VERIFY_WITH_TIMEOUT(!m_session, MsToWait);
        QVERIFY(!isDone);
    }

private:
    std::unique_ptr<CameraSession> m_session;
    FrameCollector m_first;
};

GUARDED_TEST_MAIN(CameraRunTest)
#include "cameraruntest.moc"
