// SPDX-License-Identifier: GPL-3.0-or-later
#include "capturequeue.h"
#include "guardedtest.h"
#include "runsample.h"

#include <thread>

/// Frames wait for the disk in order, up to the memory allowed.
class CaptureQueueTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void takesFramesUpToItsBudget()
    {
        CaptureQueue queue;
        queue.Open(3 * FrameBytes);
        QVERIFY(queue.Put(Frame(0)));
        QVERIFY(queue.Put(Frame(1)));
        QVERIFY(queue.Put(Frame(2)));
        QVERIFY(!queue.Put(Frame(3)));
        QCOMPARE(queue.Count(), 3);
        QCOMPARE(queue.Bytes(), qint64(3 * FrameBytes));
        QCOMPARE(queue.Take(0).frameId, Frame(0).frameId);
        QVERIFY(queue.Put(Frame(4)));
        QCOMPARE(queue.Take(0).frameId, Frame(1).frameId);
        QCOMPARE(queue.Take(0).frameId, Frame(2).frameId);
        QCOMPARE(queue.Take(0).frameId, Frame(4).frameId);
        QCOMPARE(queue.Bytes(), qint64(0));
        QVERIFY(queue.Take(0).IsNull());
    }

    void aFirstFrameAlwaysFindsRoom()
    {
        CaptureQueue queue;
        queue.Open(1);
        QVERIFY(queue.Put(Frame(0)));
        QVERIFY(!queue.Put(Frame(1)));
    }

    void endedItGivesWhatItHas()
    {
        CaptureQueue queue;
        QVERIFY(!queue.Put(Frame(0))); // nobody is saving
        queue.Open(3 * FrameBytes);
        queue.Put(Frame(0));
        queue.End();
        QVERIFY(!queue.Put(Frame(1)));
        QVERIFY(!queue.IsFinished());
        QVERIFY(!queue.Take(0).IsNull());
        QVERIFY(queue.IsFinished());
    }

    void nothingIsLostBetweenTwoThreads()
    {
        CaptureQueue queue;
        queue.Open(1000 * FrameBytes);
        constexpr int Frames = 900;
        std::thread camera([&] {
            for (int i = 0; i < Frames; ++i)
                queue.Put(Frame(i));
            queue.End();
        });
        quint64 expected = Frame(0).frameId;
        while (!queue.IsFinished()) {
            const CameraFrame frame = queue.Take(10);
            if (!frame.IsNull())
                QCOMPARE(frame.frameId, expected++);
        }
        camera.join();
        QCOMPARE(expected, Frame(0).frameId + Frames);
    }

private:
    static constexpr int FrameBytes = 8 * 4;
    static CameraFrame Frame(int i) { return RunSample::Frame(QSize(8, 4), PixelLayout::Mono8, i); }
};

GUARDED_TEST_MAIN(CaptureQueueTest)
#include "capturequeuetest.moc"
