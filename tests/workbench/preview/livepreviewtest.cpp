// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "liveorientation.h"
#include "livepreview.h"
#include "rawcameraframe.h"
#include "testframes.h"
#include "viewcodes.h"

#include <QElapsedTimer>
#include <QSignalSpy>

#include <atomic>
#include <thread>

/// Counts the pictures that wait in the GUI thread's queue: on their way out at the sending thread,
/// back in when they are delivered.
class QueueWatch : public QObject
{
    Q_OBJECT

public:
    explicit QueueWatch(LivePreview *preview)
    {
        connect(preview, SIGNAL(signalPreviewImage(QImage)), this, SLOT(slotSent()), Qt::DirectConnection);
        connect(preview, SIGNAL(signalPreviewImage(QImage)), this, SLOT(slotDelivered()), Qt::QueuedConnection);
    }

    std::atomic<int> waiting{0};
    std::atomic<int> mostWaiting{0};
    int delivered = 0;

private slots:
    void slotSent()
    {
        const int now = ++waiting;
        if (now > mostWaiting)
            mostWaiting = now;
    }
    void slotDelivered()
    {
        --waiting;
        ++delivered;
    }
};

/// How long the preview waits for a frame; it is to end before that.
constexpr int WaitForFrameMs = 500;

class LivePreviewTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void runsOnlyWithACamera()
    {
        TestFrameSource source;
        LiveOrientation orientation;
        TestLevels levels;
        LivePreview preview(&source, &orientation, &levels.live);
        source.hasCamera = false;
        QVERIFY(!preview.StartPreview());
        QVERIFY(!preview.isRunning());
        source.hasCamera = true;
        QVERIFY(preview.StartPreview());
        QVERIFY(preview.isRunning());
        QVERIFY(preview.StopPreview());
        QVERIFY(!preview.isRunning());
        QVERIFY(!source.sink);
    }

    void stopsPromptlyWhileItWaitsForAFrame()
    {
        TestFrameSource source;
        LiveOrientation orientation;
        TestLevels levels;
        LivePreview preview(&source, &orientation, &levels.live);
        preview.StartPreview();
        QElapsedTimer timer;
        timer.start();
        preview.StopPreview();
        QVERIFY2(timer.elapsed() < WaitForFrameMs, qPrintable(QString::number(timer.elapsed())));
    }

    void stopsPromptlyWhileAPictureIsNotFetched()
    {
        TestFrameSource source;
        LiveOrientation orientation;
        TestLevels levels;
        LivePreview preview(&source, &orientation, &levels.live);
        QSignalSpy sent(&preview, SIGNAL(signalPreviewImage(QImage)));
        preview.StartPreview();
        preview.OnFrame(TestFrames::Make(8, 8, PixelLayout::Mono8));
        preview.OnFrame(TestFrames::Make(8, 8, PixelLayout::Mono8));
        QTRY_VERIFY(sent.count() > 0);
        preview.OnFrame(TestFrames::Make(8, 8, PixelLayout::Mono8));
        QElapsedTimer timer;
        timer.start();
        preview.StopPreview();
        QVERIFY2(timer.elapsed() < WaitForFrameMs, qPrintable(QString::number(timer.elapsed())));
    }

    void tenThousandFramesNeverPileUp()
    {
        constexpr int Frames = 10000;
        TestFrameSource source;
        LiveOrientation orientation;
        TestLevels levels;
        LivePreview preview(&source, &orientation, &levels.live);
        QueueWatch watch(&preview);
        preview.StartPreview();

        const CameraFrame frame = TestFrames::Make(320, 240, PixelLayout::Mono8);
        std::atomic<bool> ended{false};
        std::thread camera([&] {
            for (int i = 0; i < Frames; ++i)
                source.sink->OnFrame(frame);
            ended = true;
        });
        QTRY_VERIFY_WITH_TIMEOUT(ended, 60000);
        camera.join();
        QTRY_VERIFY(watch.delivered > 0 && watch.waiting == 0);

        QCOMPARE(int(watch.mostWaiting), 1);
        QTRY_COMPARE(preview.DeliveredCount() + preview.SkippedCount(), quint64(Frames));
        preview.StopPreview();
    }

    void guiThreadThatSleepsGetsTheNewestFrame()
    {
        TestFrameSource source;
        LiveOrientation orientation;
        TestLevels levels;
        LivePreview preview(&source, &orientation, &levels.live);
        QueueWatch watch(&preview);
        preview.StartPreview();
        // Nothing is fetched here meanwhile: one picture waits, the newest frame behind it.
        for (int shift = 0; shift <= 100; ++shift)
            preview.OnFrame(TestFrames::Make(4, 4, PixelLayout::Mono8, shift));
        QTRY_COMPARE(int(preview.ShownFrame().IsNull() ? 0 : *preview.ShownFrame().Row(0)), 100);
        QCOMPARE(int(watch.mostWaiting), 1);
        QVERIFY(watch.delivered <= 3);
        preview.StopPreview();
    }

    void eightBitFramesAreShownAsTheyAre()
    {
        const CameraFrame frame = TestFrames::Make(7, 5, PixelLayout::Mono8, 3);
        const QImage picture = Shown(frame);
        QCOMPARE(picture.size(), QSize(7, 5));
        for (int y = 0; y < 5; ++y) {
            for (int x = 0; x < 7; ++x)
                QCOMPARE(qGray(picture.pixel(x, y)), x + 10 * y + 3);
        }
    }

    void deepFramesFillTheGreyScale_data()
    {
        QTest::addColumn<PixelLayout>("layout");
        QTest::newRow("12 bit") << PixelLayout::Mono12;
        QTest::newRow("16 bit") << PixelLayout::Mono16;
    }

    void deepFramesFillTheGreyScale()
    {
        QFETCH(PixelLayout, layout);
        // A ramp of 100 grey values in the dark end of the scale.
        const QImage picture = Shown(TestFrames::Make(91, 2, layout));
        QCOMPARE(qGray(picture.pixel(0, 0)), 0);
        QCOMPARE(qGray(picture.pixel(90, 1)), 255);
        QVERIFY(qAbs(qGray(picture.pixel(50, 0)) - 128) <= 2);
    }

    void colourFramesKeepTheirChannels()
    {
        const QImage picture = Shown(TestFrames::Make(9, 4, PixelLayout::Rgb8, 200));
        QCOMPARE(picture.pixel(8, 3), qRgb(8, 3, 200));
    }

    void oneByOneFrameIsShown()
    {
        QCOMPARE(Shown(TestFrames::Make(1, 1, PixelLayout::Mono8, 42)).pixel(0, 0), qRgb(42, 42, 42));
    }

    void sizeChangeInMidStreamIsAnnouncedBeforeThePicture()
    {
        TestFrameSource source;
        LiveOrientation orientation;
        TestLevels levels;
        LivePreview preview(&source, &orientation, &levels.live);
        QStringList order;
        connect(&preview, &LivePreview::signalImageSizeChanged, this, [&] { order << "size"; });
        connect(&preview, &PreviewManager::signalPreviewImage, this, [&](const QImage &picture) {
            order << QString::number(picture.width());
            const RawCameraFrame *raw = preview.GetCurrentRawFrame();
            QVERIFY(raw);
            QCOMPARE(int(raw->width), picture.width());
        });
        preview.StartPreview();
        for (const int width : {8, 8, 33}) {
            const quint64 before = preview.DeliveredCount();
            preview.OnFrame(TestFrames::Make(width, 4, PixelLayout::Mono8));
            QTRY_COMPARE(preview.DeliveredCount(), before + 1);
        }
        QCOMPARE(order, QStringList({"size", "8", "8", "size", "33"}));
        preview.StopPreview();
    }

    void standingPictureIsTurnedToo()
    {
        TestFrameSource source;
        LiveOrientation orientation;
        TestLevels levels;
        LivePreview preview(&source, &orientation, &levels.live);
        preview.StartPreview();
        preview.OnFrame(TestFrames::Make(6, 3, PixelLayout::Mono8));
        QTRY_COMPARE(preview.DeliveredCount(), quint64(1));
        preview.StopPreview();
        QSignalSpy shown(&preview, SIGNAL(signalPreviewImage(QImage)));
        QSignalSpy degrees(&orientation, SIGNAL(signalUpdateRotateDegree(int)));
        orientation.slotSetMirrorRotate(RotateBy90);
        QTRY_COMPARE(shown.count(), 1);
        const QImage picture = shown.at(0).at(0).value<QImage>();
        QCOMPARE(picture.size(), QSize(3, 6));
        QCOMPARE(qGray(picture.pixel(0, 0)), 20); // the lower left corner of the frame
        QCOMPARE(degrees.at(0).at(0).toInt(), 90);
        QTRY_COMPARE(preview.DeliveredCount(), quint64(2));
    }

    void regionDrawnOnATurnedPictureIsThatOfTheFrame()
    {
        TestFrameSource source;
        LiveOrientation orientation;
        orientation.slotSetMirrorRotate(RotateBy90);
        TestLevels levels;
        LivePreview preview(&source, &orientation, &levels.live);
        preview.StartPreview();
        preview.OnFrame(TestFrames::Make(60, 30, PixelLayout::Mono8));
        QTRY_COMPARE(preview.DeliveredCount(), quint64(1));
        QSignalSpy wanted(&preview, SIGNAL(signalRegionWanted(QRect)));
        preview.slotManualROI(0, 0, 10, 20, false);
        QCOMPARE(wanted.count(), 0);
        // The top left of a picture turned clockwise is the lower left of the frame.
        preview.slotManualROI(0, 0, 10, 20, true);
        QCOMPARE(wanted.count(), 1);
        QCOMPARE(wanted.at(0).at(0).toRect(), QRect(0, 20, 20, 10));
        preview.StopPreview();
    }

    void captureIsAskedFor()
    {
        TestFrameSource source;
        LiveOrientation orientation;
        TestLevels levels;
        LivePreview preview(&source, &orientation, &levels.live);
        QSignalSpy captures(&preview, SIGNAL(signalCaptureWanted(bool, bool)));
        preview.FrameSave(false, true);
        QCOMPARE(captures.count(), 1);
        QCOMPARE(captures.at(0), QList<QVariant>({false, true}));
    }

    void picturesKeepTheirDistance()
    {
        TestFrameSource source;
        LiveOrientation orientation;
        TestLevels levels;
        LivePreview preview(&source, &orientation, &levels.live);
        preview.SetLeastPeriod([] { return 100; });
        QVERIFY(preview.StartPreview());
        QSignalSpy delivered(&preview, SIGNAL(signalPictureDelivered()));
        QElapsedTimer timer;
        timer.start();
        while (delivered.count() < 4) {
            preview.OnFrame(TestFrames::Make(20, 10, PixelLayout::Mono8, delivered.count()));
            QCoreApplication::processEvents();
        }
        QVERIFY(timer.elapsed() >= 300); // three distances between four pictures
        preview.StopPreview();
    }

    void aRecordingComesBeforePictures()
    {
        QCOMPARE(LivePreview::PeriodBesideRecording(0), 66);
        QCOMPARE(LivePreview::PeriodBesideRecording(1), 66);
        QCOMPARE(LivePreview::PeriodBesideRecording(2), 250);
    }

    /// A long distance ends as soon as nothing else wants the processor, or when the preview is to end.
    void aDistanceIsAskedForAgainWhileItIsKept()
    {
        constexpr int hourMs = 3600 * 1000;
        TestFrameSource source;
        LiveOrientation orientation;
        TestLevels levels;
        LivePreview preview(&source, &orientation, &levels.live);
        std::atomic<int> periodMs{ hourMs };
        std::atomic<int> questions{ 0 };
        preview.SetLeastPeriod([&] {
            ++questions;
            return periodMs.load();
        });
        QVERIFY(preview.StartPreview());
        QSignalSpy delivered(&preview, SIGNAL(signalPictureDelivered()));
        preview.OnFrame(TestFrames::Make(20, 10, PixelLayout::Mono8, 0));
        QVERIFY(delivered.wait());
        preview.OnFrame(TestFrames::Make(20, 10, PixelLayout::Mono8, 1));
        QTRY_VERIFY(questions > 3); // it waits
        QCOMPARE(delivered.count(), 1);
        periodMs = 0;
        QVERIFY(delivered.wait());

        periodMs = hourMs;
        preview.OnFrame(TestFrames::Make(20, 10, PixelLayout::Mono8, 2));
        preview.StopPreview();
        QVERIFY(!preview.isRunning());
    }

    /// A run that ends does not start a preview that the user had stopped.
    void aStoppedPreviewStaysStoppedAfterARun()
    {
        TestFrameSource source;
        LiveOrientation orientation;
        TestLevels levels;
        LivePreview preview(&source, &orientation, &levels.live);
        preview.RestoreStopPreview();
        QVERIFY(!preview.isRunning());
        QVERIFY(preview.StartPreview());
        preview.RestoreStopPreview();
        QVERIFY(preview.isRunning());
        preview.StopPreview();
    }

private:
    /// The picture that the preview makes of a frame.
    static QImage Shown(const CameraFrame &frame)
    {
        TestFrameSource source;
        LiveOrientation orientation;
        TestLevels levels;
        LivePreview preview(&source, &orientation, &levels.live);
        QSignalSpy shown(&preview, SIGNAL(signalPreviewImage(QImage)));
        preview.StartPreview();
        preview.OnFrame(frame);
        shown.wait();
        preview.StopPreview();
        return shown.value(0).value(0).value<QImage>();
    }
};

GUARDED_TEST_MAIN(LivePreviewTest)
#include "livepreviewtest.moc"
