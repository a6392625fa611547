// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "litframes.h"

#include <QMutex>
#include <QSignalSpy>
#include <QThread>

#include <cmath>

using namespace LitFrames;

/// Frames in, payloads out, as the plots take them.
class SpectrumPipelineTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void everyFrameIsComputedAndTheNewestShown();
    void aFullQueueIsCounted();
    void nothingIsTakenWhenNothingIsWanted();
    void saturationFollowsAPixelIntoTheSpectrum();
    void theBandIsFoundAndTold();
    void theBandIsFoundAgainInAnotherRegion();
    void withoutLightNothingNewIsTold();
    void tracksLieOneBehindTheOther();
    void whatWasShownIsShownAgain();
    void aWishDuringAnAnnouncementIsMet();
    void aTurnedPictureIsBinnedAsItIsSeen();
    void aVerticalSpectrumIsAsLongAsThePictureIsHigh();
    void whatIsSwitchedOffIsForgotten();
    void framesThatWaitedForNothingAreCounted();
    void rowsThatAreNotThereMakeNoSpectrum();
    void tracksAreFoundOnRequest();
    void withoutLiveFramesNoTracksAreLookedFor();
    void focusTellsOfTheLines();
    void focusOfAVerticalSpectrum();
    void changingTheRecipeWhileFramesWaitIsSafe();
};

void SpectrumPipelineTest::everyFrameIsComputedAndTheNewestShown()
{
    SpectrumPipeline pipeline;
    pipeline.SetRecipe(Binning());
    Plot plot(&pipeline, &SpectrumManager::SignalUpdateFVB, width);
    for (quint64 id = 1; id <= 50; ++id)
        pipeline.OnFrame(Frame(id, 20, 20 + int(id)));
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(50));
    QTRY_VERIFY(!plot.shown.isEmpty() && plot.shown[150] >= 80 * 100 + 50 * 5000);
    QCOMPARE(pipeline.Shown().takenMs, qint64(50000));
    QCOMPARE(pipeline.Ledger().taken.load(), quint64(50));
    QCOMPARE(pipeline.Ledger().computed.load(), quint64(50));
    QCOMPARE(pipeline.Ledger().missed.load(), quint64(0));
    QCOMPARE(plot.shown[0], 8000U);
    QCOMPARE(plot.shown[150], unsigned(pipeline.Shown().raw.values[150]));
    QCOMPARE(plot.least, 8000);
    QCOMPARE(plot.most, int(plot.shown[150]));
}

void SpectrumPipelineTest::aFullQueueIsCounted()
{
    // The thread waits in the middle of the first frame for the orientation.
    QMutex gate;
    gate.lock();
    SpectrumPipeline pipeline([&gate] {
        const QMutexLocker lock(&gate);
        return Orientation();
    });
    pipeline.SetRecipe(Binning());
    const quint64 sent = SpectrumPipeline::MostWaiting + 11;
    for (quint64 id = 1; id <= sent; ++id)
        pipeline.OnFrame(Frame(id));
    const quint64 missed = pipeline.Ledger().missed;
    QVERIFY2(missed == 10 || missed == 11, qPrintable(QString::number(missed)));
    gate.unlock();
    QTRY_COMPARE(pipeline.Ledger().computed + pipeline.Ledger().missed, sent);
}

void SpectrumPipelineTest::nothingIsTakenWhenNothingIsWanted()
{
    SpectrumPipeline pipeline;
    pipeline.OnFrame(Frame(1));
    pipeline.SetRecipe(Binning());
    pipeline.OnFrame(Frame(2));
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(2));
    pipeline.SetRecipe(SpectrumRecipe());
    pipeline.OnFrame(Frame(3));
    QCOMPARE(pipeline.Ledger().taken.load(), quint64(1));
}

void SpectrumPipelineTest::saturationFollowsAPixelIntoTheSpectrum()
{
    SpectrumPipeline pipeline;
    pipeline.SetRecipe(Binning());
    CameraFrame frame = Frame(1);
    const_cast<quint16 *>(reinterpret_cast<const quint16 *>(frame.Row(33)))[77] = 65535;
    pipeline.OnFrame(frame);
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(1));
    std::vector<quint8> expected(width, 0);
    expected[77] = 1;
    QCOMPARE(pipeline.Shown().corrected.saturated, expected);
}

void SpectrumPipelineTest::theBandIsFoundAndTold()
{
    SpectrumPipeline pipeline;
    QSignalSpy told(&pipeline, &SpectrumManager::SignalSpectralineFVB);
    pipeline.SetRecipe(Binning(BinnedRows::Auto));
    QVERIFY(pipeline.GetEndPointList().isEmpty());
    for (quint64 id = 1; id <= 5; ++id)
        pipeline.OnFrame(Frame(id));
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(5));
    QCOMPARE(told.count(), 1);
    QCOMPARE(pipeline.GetEndPointList(), QList<QPointF>({QPointF(0, 20), QPointF(0, 39)}));
    QCOMPARE(pipeline.Shown().raw.values[0], 2000.0);
}

/// The frames stay as large as they are.
void SpectrumPipelineTest::theBandIsFoundAgainInAnotherRegion()
{
    SpectrumPipeline pipeline;
    pipeline.SetRecipe(Binning(BinnedRows::Auto));
    CameraFrame frame = Frame(1, 20, 40);
    frame.origin = {"one", QRect(0, 100, width, height), 1};
    pipeline.OnFrame(frame);
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(1));
    frame = Frame(2, 50, 60);
    frame.origin = {"one", QRect(0, 70, width, height), 1};
    pipeline.OnFrame(frame);
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(2));
    QCOMPARE(pipeline.GetEndPointList(), QList<QPointF>({QPointF(0, 50), QPointF(0, 59)}));
    QCOMPARE(pipeline.Shown().raw.values[0], 1000.0);
    QCOMPARE(pipeline.Shown().sensor.region, QRect(0, 70, width, height));
    QCOMPARE(pipeline.Shown().camera, QString("one"));
}

/// The overlay of the band makes connections each time that it is told.
void SpectrumPipelineTest::withoutLightNothingNewIsTold()
{
    SpectrumPipeline pipeline;
    QSignalSpy told(&pipeline, &SpectrumManager::SignalSpectralineFVB);
    pipeline.SetRecipe(Binning(BinnedRows::Auto));
    for (quint64 id = 1; id <= 4; ++id) {
        pipeline.OnFrame(Frame(id, 0, 0));
        QTRY_COMPARE(pipeline.Shown().frameId, id);
    }
    QCOMPARE(told.count(), 1);
    QCOMPARE(pipeline.GetEndPointList(), QList<QPointF>({QPointF(0, 0), QPointF(0, height - 1)}));
    pipeline.OnFrame(Frame(5)); // the lamp is switched on
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(5));
    QCOMPARE(told.count(), 2);
    QCOMPARE(pipeline.GetEndPointList(), QList<QPointF>({QPointF(0, 20), QPointF(0, 39)}));
    // Off and on again: the overlay went meanwhile.
    pipeline.SetRecipe(SpectrumRecipe());
    pipeline.SetRecipe(Binning(BinnedRows::Auto));
    pipeline.OnFrame(Frame(6));
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(6));
    QCOMPARE(told.count(), 3);
}

void SpectrumPipelineTest::tracksLieOneBehindTheOther()
{
    SpectrumPipeline pipeline;
    Plot plot(&pipeline, &SpectrumManager::SignalUpdateMultiTrack, 2 * width);
    SpectrumRecipe recipe;
    recipe.hasTracks = true;
    recipe.tracks = {{0, 10, 0}, {20, 40, 0}};
    pipeline.SetRecipe(recipe);
    pipeline.OnFrame(Frame(1));
    QTRY_COMPARE(plot.times, 1);
    QCOMPARE(plot.shown[0], 1000U);
    QCOMPARE(plot.shown[width - 1], 1000U);
    QCOMPARE(plot.shown[width], 2000U);
    QVERIFY(plot.shown[width + 150] > 20 * 5000U);
    QCOMPARE(plot.least, 1000);
}

/// For a page that was hidden when the newest came.
void SpectrumPipelineTest::whatWasShownIsShownAgain()
{
    SpectrumPipeline pipeline;
    QSignalSpy shown(&pipeline, &SpectrumPipeline::signalSpectrumShown);
    Plot plot(&pipeline, &SpectrumManager::SignalUpdateMultiTrack, width);
    Plot line(&pipeline, &SpectrumManager::SignalUpdateFVB, width);
    pipeline.ShowAgain(); // there is nothing yet
    SpectrumRecipe recipe = Binning();
    recipe.hasTracks = true;
    recipe.tracks = {{0, 10, 0}};
    pipeline.SetRecipe(recipe);
    pipeline.OnFrame(Frame(1));
    QTRY_COMPARE(plot.times, 1);
    const QVector<unsigned> tracks = plot.shown;
    const QVector<unsigned> binned = line.shown;
    plot.shown.clear();
    pipeline.ShowAgain();
    pipeline.ShowAgain(); // both wishes are met at once
    QTRY_COMPARE(plot.times, 2);
    QCOMPARE(plot.shown, tracks);
    QCOMPARE(line.shown, binned);
    QCOMPARE(shown.count(), 1);
    // Those that come later come as ever.
    pipeline.OnFrame(Frame(2));
    QTRY_COMPARE(shown.count(), 2);
    QTRY_COMPARE(plot.times, 3);
}

/// The plots have drawn the announcement already, but it is not done with.
void SpectrumPipelineTest::aWishDuringAnAnnouncementIsMet()
{
    SpectrumPipeline pipeline;
    int announced = 0;
    connect(&pipeline, &SpectrumManager::SignalUpdateFVB, this, [&] {
        if (++announced == 1)
            pipeline.ShowAgain();
    });
    pipeline.SetRecipe(Binning());
    pipeline.OnFrame(Frame(1));
    QTRY_COMPARE(announced, 2);
}

void SpectrumPipelineTest::aTurnedPictureIsBinnedAsItIsSeen()
{
    SpectrumPipeline pipeline([] { return Orientation(false, 1); });
    pipeline.SetRecipe(Binning());
    pipeline.OnFrame(Frame(1));
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(1));
    QCOMPARE(pipeline.Shown().frameSize, QSize(height, width));
    // Clockwise: the top row is the right column.
    QCOMPARE(pipeline.Shown().raw.values[size_t(height - 1)], width * 100.0);
    QVERIFY(pipeline.Shown().raw.values[size_t(height - 1 - 30)] > width * 100.0 + 5000);
}

void SpectrumPipelineTest::aVerticalSpectrumIsAsLongAsThePictureIsHigh()
{
    SpectrumPipeline pipeline;
    Plot plot(&pipeline, &SpectrumManager::SignalUpdateFVB, height + 1);
    SpectrumRecipe recipe = Binning();
    recipe.isHorizontal = false;
    pipeline.SetRecipe(recipe);
    pipeline.OnFrame(Frame(1));
    QTRY_COMPARE(plot.times, 1);
    QCOMPARE(plot.shown[0], unsigned(width * 100));
    QCOMPARE(plot.shown[height - 1], unsigned(width * 100));
    QCOMPARE(plot.shown[height], 0U); // beyond it
    QCOMPARE(plot.least, width * 100);
    QVERIFY(!pipeline.Shown().raw.place.isHorizontal);
}

void SpectrumPipelineTest::whatIsSwitchedOffIsForgotten()
{
    SpectrumPipeline pipeline;
    Plot plot(&pipeline, &SpectrumManager::SignalUpdateFVB, width);
    pipeline.SetRecipe(Binning());
    pipeline.OnFrame(Frame(1));
    QTRY_COMPARE(plot.times, 1);
    pipeline.OnFrame(Frame(2));
    while (pipeline.Ledger().computed < 2)
        QThread::yieldCurrentThread();
    QSignalSpy shown(&pipeline, &SpectrumPipeline::signalSpectrumShown);
    SpectrumRecipe focus;
    focus.isFocusing = true;
    pipeline.SetRecipe(focus);
    QCOMPARE(shown.count(), 1);
    QVERIFY(!pipeline.Shown().HasSpectrum());
    QVERIFY(!pipeline.TakeDark() && !pipeline.TakeReference());
    pipeline.OnFrame(Frame(3));
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(3));
    QVERIFY(!pipeline.Shown().HasSpectrum());
    QCOMPARE(plot.times, 1); // the one under way was not drawn
}

void SpectrumPipelineTest::framesThatWaitedForNothingAreCounted()
{
    QMutex gate;
    gate.lock();
    SpectrumPipeline pipeline([&gate] {
        const QMutexLocker lock(&gate);
        return Orientation();
    });
    pipeline.SetRecipe(Binning());
    for (quint64 id = 1; id <= 10; ++id)
        pipeline.OnFrame(Frame(id));
    pipeline.SetRecipe(SpectrumRecipe());
    gate.unlock();
    const SpectrumLedger &ledger = pipeline.Ledger();
    QVERIFY(ledger.dropped >= 9);
    QTRY_COMPARE(ledger.computed + ledger.missed + ledger.dropped, quint64(10));
    QCOMPARE(ledger.taken.load(), quint64(10));
}

void SpectrumPipelineTest::rowsThatAreNotThereMakeNoSpectrum()
{
    SpectrumPipeline pipeline;
    SpectrumRecipe recipe = Binning(BinnedRows::Manual);
    recipe.top = height;
    recipe.bottom = height + 20;
    pipeline.SetRecipe(recipe);
    pipeline.OnFrame(Frame(1));
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(1));
    QVERIFY(!pipeline.Shown().HasSpectrum());
    recipe.top = height - 2;
    pipeline.SetRecipe(recipe);
    pipeline.OnFrame(Frame(2));
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(2));
    QCOMPARE(pipeline.Shown().raw.values[0], 200.0);
    QCOMPARE(pipeline.Shown().band.bottom, height);
}

void SpectrumPipelineTest::tracksAreFoundOnRequest()
{
    SpectrumPipeline pipeline;
    QList<QRectF> found;
    QObject::connect(&pipeline, &SpectrumPipeline::signalTracksFound, &pipeline, [&](const QList<QRectF> &tracks) { found = tracks; });
    pipeline.FindTracks();
    pipeline.OnFrame(Frame(1));
    QTRY_COMPARE(found, QList<QRectF>({QRectF(0, 20, width, 20)}));
}

/// A wish that waits for a frame is not met by one of much later.
void SpectrumPipelineTest::withoutLiveFramesNoTracksAreLookedFor()
{
    SpectrumPipeline pipeline;
    QSignalSpy told(&pipeline, &SpectrumPipeline::signalMessage);
    QSignalSpy found(&pipeline, &SpectrumPipeline::signalTracksFound);
    pipeline.FindTracks();
    QCOMPARE(told.count(), 0);
    pipeline.SetLive(false);
    QCOMPARE(told.count(), 1);
    QCOMPARE(told[0][0].toString(), QString("There is no live picture to find tracks in."));
    pipeline.FindTracks();
    QCOMPARE(told.count(), 2);
    pipeline.SetLive(true);
    pipeline.SetRecipe(Binning());
    pipeline.OnFrame(Frame(1));
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(1));
    QCOMPARE(found.count(), 0);
    pipeline.FindTracks();
    pipeline.OnFrame(Frame(2));
    QVERIFY(found.wait());
    QCOMPARE(told.count(), 2);
}

void SpectrumPipelineTest::focusTellsOfTheLines()
{
    SpectrumPipeline pipeline;
    QSignalSpy told(&pipeline, &SpectrumManager::SignalSpectralineAutoDetectFinish);
    SpectrumRecipe recipe;
    recipe.isFocusing = true;
    pipeline.SetRecipe(recipe);
    pipeline.OnFrame(Frame(1));
    QVERIFY(told.wait());
    QCOMPARE(pipeline.GetAngleList().size(), 1);
    QVERIFY(std::abs(pipeline.GetAngleList().first()) < 0.05F);
    QVERIFY(std::abs(pipeline.GetDistanceList().first() - 2.3548F * 2.5F) < 0.3F);
    QVERIFY(pipeline.GetExtendRectList().first().contains(150, 30));
    QCOMPARE(pipeline.GetLinePointList().size(), 1);
    pipeline.ClearFocusInfo();
    QVERIFY(pipeline.GetAngleList().isEmpty());
}

/// The picture with the upright line, laid on its side.
void SpectrumPipelineTest::focusOfAVerticalSpectrum()
{
    SpectrumPipeline pipeline([] { return Orientation(false, 1); });
    QSignalSpy told(&pipeline, &SpectrumManager::SignalSpectralineAutoDetectFinish);
    SpectrumRecipe recipe;
    recipe.isFocusing = true;
    recipe.isHorizontal = false;
    pipeline.SetRecipe(recipe);
    pipeline.OnFrame(Frame(1));
    QVERIFY(told.wait());
    QCOMPARE(pipeline.GetAngleList().size(), 1);
    QVERIFY(std::abs(pipeline.GetAngleList().first() - 90) < 0.05F);
    QVERIFY(std::abs(pipeline.GetDistanceList().first() - 2.3548F * 2.5F) < 0.3F);
    // Rows 20 to 39, at column 150: turned clockwise, columns 40 to 59 at row 150.
    const QRect area = pipeline.GetExtendRectList().first();
    QCOMPARE(area.left(), height - 40);
    QCOMPARE(area.right(), height - 21);
    QVERIFY(std::abs(area.center().y() - 150) <= 1);
}

void SpectrumPipelineTest::changingTheRecipeWhileFramesWaitIsSafe()
{
    SpectrumPipeline pipeline;
    Plot plot(&pipeline, &SpectrumManager::SignalUpdateFVB, width);
    Plot tracks(&pipeline, &SpectrumManager::SignalUpdateMultiTrack, width);
    SpectrumRecipe recipe = Binning();
    for (quint64 id = 1; id <= 60; ++id) {
        recipe.isBinning = id % 2 == 0;
        recipe.hasTracks = !recipe.isBinning;
        recipe.tracks.assign(id % 5, RowBand{0, 10, 0});
        recipe.isHorizontal = id % 3 != 0;
        pipeline.SetRecipe(recipe);
        pipeline.OnFrame(Frame(id));
        QCoreApplication::processEvents();
    }
    QTRY_COMPARE(pipeline.Ledger().computed + pipeline.Ledger().missed, quint64(60));
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(60));
}

GUARDED_TEST_MAIN(SpectrumPipelineTest)
#include "spectrumpipelinetest.moc"
