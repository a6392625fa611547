// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "litframes.h"

#include <QSignalSpy>

using namespace LitFrames;

namespace {

/// A camera that was stopped after some frames, the last of which stays on the screen.
struct StoppedCamera
{
    explicit StoppedCamera(const SpectrumRecipe &recipe, quint64 frames = 1)
    {
        pipeline.SetStandingFrame([this] { return standing; });
        pipeline.SetRecipe(recipe);
        for (quint64 id = 1; id <= frames; ++id)
            pipeline.OnFrame(Frame(id, 20, 20 + int(id)));
        standing = Frame(frames, 20, 20 + int(frames));
    }

    bool Stop(quint64 frames = 1)
    {
        const bool isMade = QTest::qWaitFor([&] { return pipeline.Shown().frameId == frames; });
        pipeline.SetLive(false);
        return isMade;
    }

    SpectrumPipeline pipeline;
    CameraFrame standing;
};

} // namespace

/// What is changed while no frames come is seen in the spectrum of the frame that stands.
class StandingFrameTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void theBandFollowsTheDirection()
    {
        SpectrumRecipe recipe = Binning(BinnedRows::Auto);
        StoppedCamera camera(recipe);
        camera.standing = Frame(1);
        camera.pipeline.OnFrame(Frame(1));
        QTRY_COMPARE(camera.pipeline.Ledger().computed, quint64(2));
        QVERIFY(camera.Stop());
        const QList<QPointF> rows = camera.pipeline.GetEndPointList();
        QSignalSpy marks(&camera.pipeline, SIGNAL(SignalSpectralineFVB()));
        recipe.isHorizontal = false;
        camera.pipeline.SetRecipe(recipe);
        QTRY_COMPARE(marks.count(), 1);
        const SpectrumProduct &product = camera.pipeline.Shown();
        QVERIFY(!product.raw.place.isHorizontal);
        QCOMPARE(product.raw.Count(), height);
        QVERIFY(product.band.top > 130 && product.band.top < 150 && product.band.bottom > 150 && product.band.bottom < 170);
        QCOMPARE(camera.pipeline.GetEndPointList().value(0), QPointF(0, product.band.top));
        QVERIFY(camera.pipeline.GetEndPointList() != rows);
        QCOMPARE(product.frameId, quint64(1));
        // It is no new frame.
        QCOMPARE(camera.pipeline.Ledger().taken, quint64(2));
        QCOMPARE(camera.pipeline.Ledger().computed, quint64(2));
    }

    /// No frame was taken before.
    void binningIsSwitchedOn()
    {
        StoppedCamera camera(SpectrumRecipe(), 3);
        camera.pipeline.SetLive(false);
        camera.pipeline.SetRecipe(Binning());
        QTRY_COMPARE(camera.pipeline.Shown().raw.Count(), width);
        QCOMPARE(camera.pipeline.Shown().frameId, quint64(3));
        QCOMPARE(camera.pipeline.Ledger().taken, quint64(0));
    }

    /// Which the frame keeps, though it was not wanted when it came: a dark is judged by it.
    void binningIsSwitchedOnAtAnotherExposure()
    {
        StoppedCamera camera{SpectrumRecipe()};
        camera.pipeline.SetExposure(100000);
        camera.pipeline.OnFrame(camera.standing);
        camera.pipeline.SetLive(false);
        camera.pipeline.SetExposure(50000);
        camera.pipeline.SetRecipe(Binning());
        QTRY_COMPARE(camera.pipeline.Shown().raw.Count(), width);
        QCOMPARE(camera.pipeline.Shown().raw.exposureUs, 100000.0);
    }

    /// The frame is in the average already.
    void itCountsOnceInTheAverage()
    {
        SpectrumRecipe recipe = Binning();
        recipe.corrections.averaged = 3;
        recipe.corrections.removesCosmicRays = true;
        StoppedCamera camera(recipe, 5);
        QVERIFY(camera.Stop(5));
        const std::vector<double> before = camera.pipeline.Shown().averaged.values;
        QSignalSpy shown(&camera.pipeline, &SpectrumPipeline::signalSpectrumShown);
        recipe.corrections.smoothing = 5;
        camera.pipeline.SetRecipe(recipe);
        QTRY_COMPARE(shown.count(), 1);
        QCOMPARE(camera.pipeline.Shown().averaged.values, before);
        QVERIFY(camera.pipeline.Shown().corrected.values != before);
        QCOMPARE(camera.pipeline.Shown().corrections.averaged, 3);
    }

    void aDarkIsSubtractedAndPutBack()
    {
        SpectrumRecipe recipe = Binning();
        recipe.corrections.subtractsDark = true;
        StoppedCamera camera(recipe);
        QVERIFY(camera.Stop());
        QVERIFY(camera.pipeline.Shown().corrected.values[0] > 0);
        QVERIFY(camera.pipeline.TakeDark());
        QTRY_COMPARE(camera.pipeline.Shown().corrected.values[0], 0.0);
    }

    void withFramesTheNextOneShowsIt()
    {
        SpectrumRecipe recipe = Binning();
        StoppedCamera camera(recipe);
        QTRY_COMPARE(camera.pipeline.Shown().frameId, quint64(1));
        QSignalSpy shown(&camera.pipeline, &SpectrumPipeline::signalSpectrumShown);
        recipe.isHorizontal = false;
        camera.pipeline.SetRecipe(recipe);
        camera.pipeline.OnFrame(Frame(2));
        QTRY_COMPARE(camera.pipeline.Shown().frameId, quint64(2));
        QCOMPARE(shown.count(), 1);
        QCOMPARE(camera.pipeline.Ledger().computed, quint64(2));
    }

    void withoutAFrameNothingIsMade()
    {
        StoppedCamera camera(Binning());
        QVERIFY(camera.Stop());
        camera.standing = CameraFrame(); // the camera was closed
        SpectrumRecipe recipe = Binning();
        recipe.isHorizontal = false;
        camera.pipeline.SetRecipe(recipe);
        camera.pipeline.SetLive(true);
        camera.pipeline.OnFrame(Frame(2));
        QTRY_COMPARE(camera.pipeline.Shown().frameId, quint64(2));
        QCOMPARE(camera.pipeline.Ledger().computed, quint64(2));
    }
};

GUARDED_TEST_MAIN(StandingFrameTest)
#include "standingframetest.moc"
