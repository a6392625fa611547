// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerasessionfixture.h"
#include "testchartscene.h"

#include <QElapsedTimer>

#include <cstring>

/// The session on the simulated camera.
class CameraSessionTest : public CameraSessionFixture
{
    Q_OBJECT

private slots:
    void OpensTheSimulatedCamera();
    void UnknownCameraIsToldInWords();
    void ClosedSessionRefuses();
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

private:
    static int WrongSamples(const CameraFrame &frame, const QRect &region);
};

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
    QCOMPARE(m_session->Format().region, QRect(0, 0, 2048, 2048));
    QCOMPARE(m_session->Format().layout, PixelLayout::Mono8);
    QCOMPARE(m_session->Format().layouts, QVector<PixelLayout>({ PixelLayout::Mono8, PixelLayout::Mono12,
                                                                   PixelLayout::Mono16, PixelLayout::Rgb8 }));
    QVERIFY(m_session->Controls().frameRate >= 25.0 && m_session->Controls().frameRate <= 30.0);
}

void CameraSessionTest::UnknownCameraIsToldInWords()
{
    QString error;
    QVERIFY(!m_session->Open("Nobody-77", &error));
    QVERIFY(!m_session->IsOpen());
    QVERIFY2(error.contains("Nobody-77"), qPrintable(error));
    QVERIFY2(error.contains("Check that it is connected"), qPrintable(error));
}

void CameraSessionTest::ClosedSessionRefuses()
{
    QVERIFY(!m_session->Start(&m_frames));
    m_session->SetRegion(QRect(0, 0, 10, 10));
    m_session->SetGain(1);
    QVERIFY(!m_session->IsSetting());
    QVERIFY(!m_session->TakeTurn(nullptr, this, [] {}));
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
    m_session->SetPixelLayout(layout);
    m_session->SetRegion(region);
    QVERIFY(m_session->Start(&m_frames));
    Settle();
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
    m_session->SetRegion(QRect(100, 100, 64, 48));
    QVERIFY(m_session->Start(&m_frames));
    for (const QRect region :
         { QRect(10, 30, 1024, 768), QRect(0, 0, 2048, 2048), QRect(501, 703, 33, 17) }) {
        QVERIFY(m_frames.WaitForMore(2));
        m_session->SetRegion(region);
        QVERIFY(m_session->IsStreaming());
        Settle();
        QCOMPARE(m_session->Format().region, region);
        QVERIFY(m_frames.WaitForMore(2));
        const CameraFrame frame = m_frames.Last();
        QCOMPARE(QSize(frame.width, frame.height), region.size());
        QCOMPARE(WrongSamples(frame, region), 0);
    }
    m_session->SetPixelLayout(PixelLayout::Mono16);
    Settle();
    QVERIFY(m_frames.WaitForMore(2));
    QCOMPARE(m_frames.Last().layout, PixelLayout::Mono16);
    m_session->Stop();
    QCOMPARE(m_session->Ledger().Counts().Lost(), quint64(0));
}

void CameraSessionTest::FrameIdsWrapWithoutLoss()
{
    // The simulated camera starts to count a little before the end of the 16-bit ids.
    OpenWithChart();
    m_session->SetRegion(QRect(0, 0, 16, 16));
    m_session->SetExposureUs(1000);
    m_session->SetFrameRate(1000);
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
    m_session->SetRegion(QRect(0, 0, 64, 64));
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
    m_session->SetRegion(QRect(0, 0, 64, 64));
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
    const ControlValues &controls = m_session->Controls();
    QCOMPARE(controls.exposureRangeUs.minimum, 10.0);
    QCOMPARE(controls.exposureRangeUs.maximum, 1e7);
    QCOMPARE(controls.gainRange.maximum, 10.0);
    m_session->SetExposureUs(1);
    Settle();
    QCOMPARE(controls.exposureUs, 10.0);
    m_session->SetExposureUs(12345);
    Settle();
    QCOMPARE(controls.exposureUs, 12345.0);
    m_session->SetGain(99);
    Settle();
    QCOMPARE(controls.gain, 10.0);
    m_session->SetGain(-3);
    Settle();
    QCOMPARE(controls.gain, 0.0);
    m_session->SetExposureUs(10);
    m_session->SetFrameRate(1e6);
    Settle();
    QCOMPARE(controls.frameRate, 1000.0);
    m_session->SetRegion(QRect(2000, -10, 100, 5000));
    Settle();
    QCOMPARE(m_session->Format().region, QRect(1948, 0, 100, 2048));
}

void CameraSessionTest::ExposureBoundsTheFrameRate()
{
    OpenWithChart();
    const ControlValues &controls = m_session->Controls();
    m_session->SetFrameRate(100);
    m_session->SetExposureUs(5000);
    Settle();
    QCOMPARE(controls.frameRate, 100.0);
    m_session->SetExposureUs(50000);
    Settle();
    QCOMPARE(controls.frameRate, 20.0);
    m_session->SetExposureUs(2e6);
    Settle();
    QCOMPARE(controls.frameRate, 0.5);
    m_session->SetExposureUs(5000); // the wish comes back
    Settle();
    QCOMPARE(controls.frameRate, 100.0);

    m_session->SetRegion(QRect(0, 0, 64, 64));
    m_session->SetExposureUs(50000);
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
    m_session->SetRegion(QRect(0, 0, 64, 64));
    m_session->SetExposureUs(1.2e6);
    Settle();
    QElapsedTimer timer;
    timer.start();
    QVERIFY(m_session->Start(&m_frames));
    QVERIFY(m_frames.WaitFor(1));
    QVERIFY2(timer.elapsed() > 1000, qPrintable(QString::number(timer.elapsed())));

    constexpr int ExposureMs = 10000;
    m_session->SetExposureUs(ExposureMs * 1000.0);
    Settle();
    timer.restart();
    m_session->Stop();
    m_session->SetRegion(QRect(0, 0, 128, 128));
    Settle();
    QVERIFY2(timer.elapsed() < ExposureMs / 2, qPrintable(QString::number(timer.elapsed())));
}

void CameraSessionTest::FrameRateIsKept()
{
    OpenWithChart();
    m_session->SetRegion(QRect(0, 0, 256, 256));
    m_session->SetExposureUs(1000);
    m_session->SetFrameRate(50);
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
    m_session->SetRegion(QRect(0, 0, 64, 64));
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
        m_session->SetRegion(QRect(0, 0, 64, 64));
        m_frames.Clear();
        QVERIFY(m_session->Start(&m_frames));
        QVERIFY(m_frames.WaitFor(2));
        m_session->Close();
        QVERIFY(!m_session->IsOpen());
        QVERIFY(m_session->Info().id.isEmpty());
    }
}

GUARDED_TEST_MAIN(CameraSessionTest)
#include "camerasessiontest.moc"
