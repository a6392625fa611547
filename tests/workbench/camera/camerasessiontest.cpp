// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerasession.h"
#include "framecollector.h"
#include "guardedtest.h"
#include "testchartscene.h"

#include <QElapsedTimer>
#include <cstring>

/// The session on the simulated camera.
class CameraSessionTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override;
    void cleanup() override;

    void OpensTheSimulatedCamera();
    void UnknownCameraIsToldInWords();
    void ClosedSessionRefusesInWords();
    void FramesCarryTheTestChart_data();
    void FramesCarryTheTestChart();
    void RegionGrowsAndShrinksInARunningStream();
    void FrameIdsWrapWithoutLoss();
    void NothingComesBeforeStartOrAfterStop();
    void StartClearsTheLedger();
    void ValuesStayInsideTheLimits();
    void ExposureBoundsTheFrameRate();
    void LongExposureDelaysTheFirstFrameButNotTheStop();
    void FrameRateIsKept();
    void SceneChangesWhileRunning();
    void OpensAgainAfterClose();
    void KnowsItsFeatures();

private:
    void OpenWithChart();
    static int WrongSamples(const CameraFrame &frame, const QRect &region);

    std::unique_ptr<CameraSession> m_session;
    FrameCollector m_frames;
};

void CameraSessionTest::init()
{
    StartGuard();
    m_session = std::make_unique<CameraSession>();
    m_frames.Clear();
}

void CameraSessionTest::cleanup()
{
    m_session.reset();
    m_frames.Clear();
    QVERIFY(CameraSession::WaitForTeardown(10000));
    EndGuard();
}

void CameraSessionTest::OpenWithChart()
{
    QVERIFY(m_session->SetScene("testchart"));
    QString error;
    QVERIFY2(m_session->Open("Fake_1", &error), qPrintable(error));
}

int CameraSessionTest::WrongSamples(const CameraFrame &frame, const QRect &region)
{
    int wrong = 0;
    for (int y = 0; y < frame.height; ++y) {
        const uchar *row = frame.Row(y);
        for (int x = 0; x < frame.width; ++x) {
            const int sensorX = region.x() + x;
            const int sensorY = region.y() + y;
            if (frame.layout == PixelLayout::Rgb8) {
                const QRgb expected = TestChartScene::ExpectedColour(sensorX, sensorY, 2048, 2048);
                wrong += qRgb(row[3 * x], row[3 * x + 1], row[3 * x + 2]) != expected;
                continue;
            }
            quint16 sample = row[x];
            if (frame.layout != PixelLayout::Mono8)
                std::memcpy(&sample, row + 2 * x, sizeof sample);
            wrong += sample != TestChartScene::ExpectedValue(sensorX, sensorY, 2048, 2048, frame.BitDepth());
        }
    }
    return wrong;
}

void CameraSessionTest::OpensTheSimulatedCamera()
{
    QVERIFY(!m_session->IsOpen());
    QVERIFY(m_session->Open("Fake_1"));
    QVERIFY(m_session->IsOpen());
    QVERIFY(m_session->IsSimulated());
    QVERIFY(!m_session->IsControlLost());
    QCOMPARE(m_session->Info().id, QString("Fake_1"));
    QCOMPARE(m_session->Info().vendor, QString("Aravis"));
    QCOMPARE(m_session->Info().model, QString("Fake"));
    QCOMPARE(m_session->Info().serial, QString("1"));
    QCOMPARE(m_session->Info().interfaceName, QString("Fake"));
    QVERIFY(m_session->Info().firmware.startsWith("0.8"));
    QCOMPARE(m_session->Format().Region(), QRect(0, 0, 2048, 2048));
    QCOMPARE(m_session->Format().Layout(), PixelLayout::Mono8);
    QCOMPARE(m_session->Format().Layouts(), QVector<PixelLayout>({ PixelLayout::Mono8, PixelLayout::Mono12,
                                                                   PixelLayout::Mono16, PixelLayout::Rgb8 }));
    QVERIFY(m_session->Controls().FrameRate() >= 25.0 && m_session->Controls().FrameRate() <= 30.0);
}

void CameraSessionTest::UnknownCameraIsToldInWords()
{
    QString error;
    QVERIFY(!m_session->Open("Nobody-77", &error));
    QVERIFY(!m_session->IsOpen());
    QVERIFY2(error.contains("Nobody-77"), qPrintable(error));
    QVERIFY2(error.contains("Check that it is connected"), qPrintable(error));
}

void CameraSessionTest::ClosedSessionRefusesInWords()
{
    QString error;
    QVERIFY(!m_session->Start(&m_frames, &error));
    QCOMPARE(error, QString("No camera is open."));
    QVERIFY(!m_session->SetRegion(QRect(0, 0, 10, 10)));
    QVERIFY(!m_session->HasFeature("ExposureTimeAbs"));
    m_session->Stop();
    m_session->Close();
    QVERIFY(!m_session->IsStreaming());
}

void CameraSessionTest::FramesCarryTheTestChart_data()
{
    QTest::addColumn<PixelLayout>("layout");
    QTest::addColumn<QRect>("region");
    for (const PixelLayout layout :
         { PixelLayout::Mono8, PixelLayout::Mono12, PixelLayout::Mono16, PixelLayout::Rgb8 }) {
        const QByteArray name = PixelLayoutName(layout).toLatin1();
        QTest::newRow((name + " whole sensor").constData()) << layout << QRect(0, 0, 2048, 2048);
        QTest::newRow((name + " odd region").constData()) << layout << QRect(211, 307, 641, 479);
        QTest::newRow((name + " one pixel").constData()) << layout << QRect(2047, 2047, 1, 1);
    }
}

void CameraSessionTest::FramesCarryTheTestChart()
{
    QFETCH(PixelLayout, layout);
    QFETCH(QRect, region);
    OpenWithChart();
    QVERIFY(m_session->SetPixelLayout(layout));
    QVERIFY(m_session->SetRegion(region));
    QVERIFY(m_session->Start(&m_frames));
    QVERIFY(m_frames.WaitFor(3));
    m_session->Stop();

    const CameraFrame frame = m_frames.Last();
    QCOMPARE(frame.layout, layout);
    QCOMPARE(QSize(frame.width, frame.height), region.size());
    QCOMPARE(frame.strideBytes, region.width() * BytesPerPixel(layout));
    QCOMPARE(WrongSamples(frame, region), 0);
    QVERIFY(frame.cameraTimeNs > 0);
    QVERIFY(frame.hostTimeNs > 0);
    QCOMPARE(m_session->Ledger().Counts().captured, quint64(m_frames.Count()));
    QCOMPARE(m_session->Ledger().Counts().Lost(), quint64(0));
}

void CameraSessionTest::RegionGrowsAndShrinksInARunningStream()
{
    OpenWithChart();
    QVERIFY(m_session->SetRegion(QRect(100, 100, 64, 48)));
    QVERIFY(m_session->Start(&m_frames));
    for (const QRect region :
         { QRect(10, 30, 1024, 768), QRect(0, 0, 2048, 2048), QRect(501, 703, 33, 17) }) {
        QVERIFY(m_frames.WaitForMore(2));
        QVERIFY(m_session->SetRegion(region));
        QVERIFY(m_session->IsStreaming());
        QCOMPARE(m_session->Format().Region(), region);
        QVERIFY(m_frames.WaitForMore(2));
        const CameraFrame frame = m_frames.Last();
        QCOMPARE(QSize(frame.width, frame.height), region.size());
        QCOMPARE(WrongSamples(frame, region), 0);
    }
    QVERIFY(m_session->SetPixelLayout(PixelLayout::Mono16));
    QVERIFY(m_frames.WaitForMore(2));
    QCOMPARE(m_frames.Last().layout, PixelLayout::Mono16);
    m_session->Stop();
    QCOMPARE(m_session->Ledger().Counts().Lost(), quint64(0));
}

void CameraSessionTest::FrameIdsWrapWithoutLoss()
{
    // The simulated camera starts to count a little before the end of the 16-bit ids.
    OpenWithChart();
    QVERIFY(m_session->SetRegion(QRect(0, 0, 16, 16)));
    QVERIFY(m_session->Controls().SetExposureUs(1000));
    QVERIFY(m_session->Controls().SetFrameRate(1000));
    FrameCollector frames(2000);
    QVERIFY(m_session->Start(&frames));
    QVERIFY(frames.WaitFor(400, 20000));
    m_session->Stop();

    const std::vector<CameraFrame> kept = frames.Frames();
    QVERIFY(kept.front().frameId <= 65535);
    QVERIFY(kept.back().frameId > 65535);
    for (size_t i = 1; i < kept.size(); ++i) {
        QCOMPARE(kept[i].frameId, kept[i - 1].frameId + 1);
        QVERIFY(kept[i].cameraTimeNs >= kept[i - 1].cameraTimeNs);
    }
    QCOMPARE(m_session->Ledger().Counts().Lost(), quint64(0));
}

void CameraSessionTest::NothingComesBeforeStartOrAfterStop()
{
    OpenWithChart();
    QVERIFY(m_session->SetRegion(QRect(0, 0, 64, 64)));
    FrameCollector first;
    QVERIFY(m_session->Start(&first));
    QVERIFY(first.WaitFor(3));
    m_session->Stop();
    const size_t countAtStop = first.Count();

    // The camera goes on ticking; a second run shows that time has passed for it.
    FrameCollector second;
    QVERIFY(m_session->Start(&second));
    QVERIFY(second.WaitFor(5));
    m_session->Close();
    const size_t countAtClose = second.Count();
    QVERIFY(CameraSession::WaitForTeardown(10000));
    QCOMPARE(first.Count(), countAtStop);
    QCOMPARE(second.Count(), countAtClose);
    QCOMPARE(m_session->MillisecondsSinceLastFrame(), qint64(0));
}

void CameraSessionTest::StartClearsTheLedger()
{
    OpenWithChart();
    QVERIFY(m_session->SetRegion(QRect(0, 0, 64, 64)));
    QVERIFY(m_session->Start(&m_frames));
    QVERIFY(m_frames.WaitFor(2));
    m_session->Ledger().AddLost(LossStage::SaveQueue, 5);
    m_session->Stop();
    QCOMPARE(m_session->Ledger().Counts().Lost(), quint64(5)); // stays visible
    m_frames.Clear();
    QVERIFY(m_session->Start(&m_frames));
    QVERIFY(m_frames.WaitFor(1));
    m_session->Stop();
    QCOMPARE(m_session->Ledger().Counts().Lost(), quint64(0));
    QCOMPARE(m_session->Ledger().Counts().captured, quint64(m_frames.Count()));
}

void CameraSessionTest::ValuesStayInsideTheLimits()
{
    OpenWithChart();
    CameraControls &controls = m_session->Controls();
    QCOMPARE(controls.ExposureRangeUs().minimum, 10.0);
    QCOMPARE(controls.ExposureRangeUs().maximum, 1e7);
    QCOMPARE(controls.GainRange().maximum, 10.0);
    QVERIFY(controls.SetExposureUs(1));
    QCOMPARE(controls.ExposureUs(), 10.0);
    QVERIFY(controls.SetExposureUs(12345));
    QCOMPARE(controls.ExposureUs(), 12345.0);
    QVERIFY(controls.SetGain(99));
    QCOMPARE(controls.Gain(), 10.0);
    QVERIFY(controls.SetGain(-3));
    QCOMPARE(controls.Gain(), 0.0);
    QVERIFY(controls.SetExposureUs(10));
    QVERIFY(controls.SetFrameRate(1e6));
    QCOMPARE(controls.FrameRate(), 1000.0);
    QVERIFY(m_session->SetRegion(QRect(2000, -10, 100, 5000)));
    QCOMPARE(m_session->Format().Region(), QRect(1948, 0, 100, 2048));
}

void CameraSessionTest::ExposureBoundsTheFrameRate()
{
    OpenWithChart();
    CameraControls &controls = m_session->Controls();
    QVERIFY(controls.SetFrameRate(100));
    QVERIFY(controls.SetExposureUs(5000));
    QCOMPARE(controls.FrameRate(), 100.0);
    QVERIFY(controls.SetExposureUs(50000));
    QCOMPARE(controls.FrameRate(), 20.0);
    QVERIFY(controls.SetExposureUs(2e6));
    QCOMPARE(controls.FrameRate(), 0.5);
    QVERIFY(controls.SetExposureUs(5000)); // the wish comes back
    QCOMPARE(controls.FrameRate(), 100.0);

    QVERIFY(m_session->SetRegion(QRect(0, 0, 64, 64)));
    QVERIFY(controls.SetExposureUs(50000));
    QVERIFY(m_session->Start(&m_frames));
    QVERIFY(m_frames.WaitFor(11));
    m_session->Stop();
    const std::vector<CameraFrame> frames = m_frames.Frames();
    const double periodMs = double(frames[10].cameraTimeNs - frames[0].cameraTimeNs) / 10 / 1e6;
    QVERIFY2(periodMs > 45 && periodMs < 60, qPrintable(QString::number(periodMs)));
}

void CameraSessionTest::LongExposureDelaysTheFirstFrameButNotTheStop()
{
    OpenWithChart();
    QVERIFY(m_session->SetRegion(QRect(0, 0, 64, 64)));
    QVERIFY(m_session->Controls().SetExposureUs(1.2e6));
    QElapsedTimer timer;
    timer.start();
    QVERIFY(m_session->Start(&m_frames));
    QVERIFY(m_frames.WaitFor(1));
    QVERIFY2(timer.elapsed() > 1000, qPrintable(QString::number(timer.elapsed())));

    constexpr int ExposureMs = 10000;
    QVERIFY(m_session->Controls().SetExposureUs(ExposureMs * 1000.0));
    timer.restart();
    m_session->Stop();
    QVERIFY(m_session->SetRegion(QRect(0, 0, 128, 128)));
    QVERIFY2(timer.elapsed() < ExposureMs / 2, qPrintable(QString::number(timer.elapsed())));
}

void CameraSessionTest::FrameRateIsKept()
{
    OpenWithChart();
    QVERIFY(m_session->SetRegion(QRect(0, 0, 256, 256)));
    QVERIFY(m_session->Controls().SetExposureUs(1000));
    QVERIFY(m_session->Controls().SetFrameRate(50));
    QVERIFY(m_session->Start(&m_frames));
    QVERIFY(m_frames.WaitFor(41, 20000));
    m_session->Stop();
    const std::vector<CameraFrame> frames = m_frames.Frames();
    const double seconds = double(frames[40].cameraTimeNs - frames[0].cameraTimeNs) / 1e9;
    QVERIFY2(40 / seconds > 45 && 40 / seconds < 51, qPrintable(QString::number(40 / seconds)));
}

void CameraSessionTest::SceneChangesWhileRunning()
{
    OpenWithChart();
    QVERIFY(m_session->SetRegion(QRect(0, 0, 64, 64)));
    QVERIFY(m_session->Start(&m_frames));
    QVERIFY(m_frames.WaitFor(2));
    QCOMPARE(WrongSamples(m_frames.Last(), QRect(0, 0, 64, 64)), 0);
    QVERIFY(!m_session->SetScene("holiday"));
    QCOMPARE(m_session->SceneName(), QString("testchart"));
    QVERIFY(m_session->SetScene("specimen"));
    QVERIFY(m_frames.WaitForMore(2));
    QVERIFY(WrongSamples(m_frames.Last(), QRect(0, 0, 64, 64)) > 0);
}

void CameraSessionTest::OpensAgainAfterClose()
{
    for (int round = 0; round < 5; ++round) {
        OpenWithChart();
        QVERIFY(m_session->SetRegion(QRect(0, 0, 64, 64)));
        m_frames.Clear();
        QVERIFY(m_session->Start(&m_frames));
        QVERIFY(m_frames.WaitFor(2));
        m_session->Close();
        QVERIFY(!m_session->IsOpen());
        QVERIFY(m_session->Info().id.isEmpty());
    }
}

void CameraSessionTest::KnowsItsFeatures()
{
    OpenWithChart();
    QVERIFY(m_session->HasFeature("ExposureTimeAbs"));
    QVERIFY(m_session->HasFeature("Width"));
    QVERIFY(!m_session->HasFeature("DeviceTemperature"));
}

GUARDED_TEST_MAIN(CameraSessionTest)
#include "camerasessiontest.moc"
