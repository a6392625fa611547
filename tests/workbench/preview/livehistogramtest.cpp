// SPDX-License-Identifier: GPL-3.0-or-later
#include "livehistogram.h"
#include "guardedtest.h"
#include "liveorientation.h"
#include "livepreview.h"
#include "testframes.h"

#include <QSignalSpy>

/// The statistics that are shown beside the live picture.
class LiveHistogramTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void tellsOfTheShownPictureWhileWatched()
    {
        const CameraFrame frame = TestFrames::Make(8, 4, PixelLayout::Mono12, 3);
        QSignalSpy changed(&m_histogram, &LiveHistogram::signalChanged);
        Send(frame);
        QCOMPARE(m_histogram.Statistics().count, qint64(0)); // nobody watches
        m_histogram.SetHistogramStatisticsState(true);       // of the picture that stands there
        QVERIFY(changed.wait());
        const SampleStatistics statistics = m_histogram.Statistics();
        QCOMPARE(statistics.count, qint64(32));
        QCOMPARE(statistics.bitDepth, 12);
        QCOMPARE(statistics.minimum, 3);
        QCOMPARE(statistics.maximum, 7 + 30 + 3);
        QCOMPARE(statistics.mean, 3.5 + 15 + 3); // of x, of 10 y, and the shift
        m_histogram.SetHistogramStatisticsState(false);
        Send(TestFrames::Make(8, 4, PixelLayout::Mono12, 100));
        QCOMPARE(m_histogram.Statistics().minimum, 3);
    }

    void eitherWatcherIsEnough()
    {
        QSignalSpy changed(&m_histogram, &LiveHistogram::signalChanged);
        Send(TestFrames::Make(4, 4, PixelLayout::Mono8));
        m_histogram.SetHistogramStatisticsState(true);
        QVERIFY(changed.wait());
        m_histogram.SetWatched(LiveHistogram::AnalysisPanel, true);
        m_histogram.SetHistogramStatisticsState(false);
        m_histogram.Forget();
        Send(TestFrames::Make(4, 4, PixelLayout::Mono8, 9));
        QTRY_COMPARE(m_histogram.Statistics().minimum, 9);
    }

    void aClosedCameraLeavesNothing()
    {
        QSignalSpy changed(&m_histogram, &LiveHistogram::signalChanged);
        Send(TestFrames::Make(4, 4, PixelLayout::Mono8));
        m_histogram.SetHistogramStatisticsState(true); // computed while the picture is forgotten
        m_preview.StopPreview();
        m_preview.Forget();
        m_histogram.Forget();
        QCOMPARE(changed.count(), 1);
        m_histogram.SetHistogramStatisticsState(true);
        QVERIFY(!changed.wait(300));
        QCOMPARE(m_histogram.Statistics().count, qint64(0));
    }

    void init() override
    {
        StartGuard();
        m_preview.StartPreview();
    }

    void cleanup() override
    {
        m_preview.StopPreview();
        m_preview.Forget();
        m_histogram.SetHistogramStatisticsState(false);
        m_histogram.SetWatched(LiveHistogram::AnalysisPanel, false);
        m_histogram.Forget();
        EndGuard();
    }

private:
    /// Waits until its picture is on the screen.
    void Send(const CameraFrame &frame)
    {
        QSignalSpy delivered(&m_preview, &LivePreview::signalPictureDelivered);
        m_source.sink->OnFrame(frame);
        QVERIFY(delivered.wait());
    }

    TestFrameSource m_source;
    LiveOrientation m_orientation;
    TestLevels m_levels;
    LivePreview m_preview{ &m_source, &m_orientation, &m_levels.live };
    LiveHistogram m_histogram{ &m_preview };
};

GUARDED_TEST_MAIN(LiveHistogramTest)
#include "livehistogramtest.moc"
