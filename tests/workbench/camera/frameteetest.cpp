// SPDX-License-Identifier: GPL-3.0-or-later
#include "frametee.h"
#include "framecollector.h"
#include "framesource.h"
#include "guardedtest.h"

namespace {
/// Sends a frame to whoever it was started for, until it is stopped or fails.
class TestCamera : public FrameSource
{
public:
    bool StartFrames(FrameSink *newSink) override
    {
        ++starts;
        sink = isThere ? newSink : nullptr;
        return isThere;
    }
    void StopFrames() override { sink = nullptr; }
    bool IsStarted() const override { return sink; }

    void Fail() { sink = nullptr; }
    void Send()
    {
        if (sink)
            sink->OnFrame(CameraFrame());
    }

    bool isThere = true;
    int starts = 0;
    FrameSink *sink = nullptr;
};
} // namespace

class FrameTeeTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void cameraRunsWhileSomebodyWantsFrames()
    {
        TestCamera camera;
        FrameTee tee(&camera);
        FrameCollector display;
        FrameCollector recording;
        QVERIFY(!tee.IsStarted());
        QVERIFY(tee.StartFrames(&display));
        QVERIFY(tee.IsStarted());
        QVERIFY(tee.StartRecording(&recording));
        QCOMPARE(camera.starts, 1);
        camera.Send();
        tee.StopFrames();
        QVERIFY(!tee.IsStarted());
        camera.Send();
        tee.StopRecording();
        QVERIFY(!camera.IsStarted());
        camera.Send();
        QCOMPARE(display.Count(), size_t(1));
        QCOMPARE(recording.Count(), size_t(2));
    }

    /// The camera failed, and those who wanted its frames did not all go at once.
    void whoComesAfterAFailureGetsFrames()
    {
        TestCamera camera;
        FrameTee tee(&camera);
        FrameCollector display;
        FrameCollector recording;
        QVERIFY(tee.StartFrames(&display));
        camera.Fail();
        QVERIFY(!tee.IsStarted());
        QVERIFY(tee.StartRecording(&recording));
        camera.Send();
        QCOMPARE(recording.Count(), size_t(1));
        camera.Fail();
        tee.StopFrames();
        QVERIFY(tee.StartFrames(&display)); // the recording has not gone yet
        QCOMPARE(camera.starts, 3);
        camera.Send();
        QCOMPARE(recording.Count(), size_t(2));
    }

    void withoutACameraNobodyIsKept()
    {
        TestCamera camera;
        camera.isThere = false;
        FrameTee tee(&camera);
        FrameCollector display;
        QVERIFY(!tee.StartFrames(&display));
        QVERIFY(!tee.IsStarted());
        camera.isThere = true;
        FrameCollector recording;
        QVERIFY(tee.StartRecording(&recording));
        camera.Send();
        QCOMPARE(display.Count(), size_t(0));
        QCOMPARE(recording.Count(), size_t(1));
    }
};

GUARDED_TEST_MAIN(FrameTeeTest)
#include "frameteetest.moc"
