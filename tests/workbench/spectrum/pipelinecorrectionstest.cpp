// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "litframes.h"

#include <QMutex>
#include <QThread>
#include <QUndoStack>

using namespace LitFrames;

Q_DECLARE_METATYPE(SpectrumRecipe)

/// Dark and reference spectra, and averages: taken of frames in the pipeline, and used on those that follow.
class PipelineCorrectionsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void darkIsTheSpectrumShown();
    void whatWasTakenCanBeUndone_data();
    void whatWasTakenCanBeUndone();
    void whatWasAveragedBeforeAChangeDoesNotStay_data();
    void whatWasAveragedBeforeAChangeDoesNotStay();
    void tracksOfOtherRowsAreNotMixed();
    void aTurnedPictureHasNoDark();
    void aDarkOfOtherPixelsIsNotSubtracted_data();
    void aDarkOfOtherPixelsIsNotSubtracted();
    void theDarkIsTheAverage();
    void withoutReferenceCountsAreDrawn();
    void tracksTellTheirCorrections();
};

void PipelineCorrectionsTest::darkIsTheSpectrumShown()
{
    SpectrumPipeline pipeline;
    QVERIFY(!pipeline.TakeDark());
    SpectrumRecipe recipe = Binning();
    pipeline.SetRecipe(recipe);
    pipeline.SetExposure(20000);
    pipeline.OnFrame(Frame(1, 0, 0));
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(1));
    QVERIFY(pipeline.TakeDark());
    recipe.corrections.subtractsDark = true;
    pipeline.SetRecipe(recipe);
    pipeline.OnFrame(Frame(2));
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(2));
    QCOMPARE(pipeline.Shown().corrected.values[0], 0.0);
    QCOMPARE(pipeline.Shown().raw.values[0], 8000.0);
    QCOMPARE(pipeline.Shown().corrections.Sentence(), QString("Corrections: dark subtracted."));
    pipeline.SetExposure(40000);
    pipeline.OnFrame(Frame(3));
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(3));
    QCOMPARE(pipeline.Shown().corrections.Sentence(), QString("Corrections: dark of another exposure subtracted: take it anew."));
}

void PipelineCorrectionsTest::whatWasTakenCanBeUndone_data()
{
    QTest::addColumn<bool>("isDark");
    QTest::newRow("dark") << true;
    QTest::newRow("reference") << false;
}

/// The spectrum of the rows without light is 8000 everywhere; with light over 20 rows it is more in the middle.
void PipelineCorrectionsTest::whatWasTakenCanBeUndone()
{
    QFETCH(bool, isDark);
    QUndoStack steps;
    SpectrumPipeline pipeline;
    pipeline.SetUndoStack(&steps);
    SpectrumRecipe recipe = Binning();
    recipe.corrections.subtractsDark = isDark;
    recipe.corrections.subtractsReference = !isDark;
    pipeline.SetRecipe(recipe);
    quint64 id = 0;
    const auto show = [&](int litRows) {
        pipeline.OnFrame(Frame(++id, 20, 20 + litRows));
        return QTest::qWaitFor([&] { return pipeline.Shown().frameId == id; });
    };
    const auto take = [&] { return isDark ? pipeline.TakeDark() : pipeline.TakeReference(); };
    QVERIFY(show(0) && take());
    QVERIFY(show(20) && take()); // with the lamp on: a wrong click
    QCOMPARE(steps.count(), 2);
    QCOMPARE(steps.undoText(), QString(isDark ? "Take Dark Spectrum" : "Take Reference Spectrum"));
    QVERIFY(show(20));
    QCOMPARE(pipeline.Shown().corrected.values[150], 0.0);

    steps.undo();
    QVERIFY(show(20));
    const double light = pipeline.Shown().raw.values[150] - 8000;
    QVERIFY(light > 0);
    QCOMPARE(pipeline.Shown().corrected.values[150], light);
    steps.undo(); // there was none before
    QVERIFY(show(20));
    QCOMPARE(pipeline.Shown().corrected.values[150], pipeline.Shown().raw.values[150]);
    QVERIFY(pipeline.Shown().corrections.Sentence() != QString("Corrections: dark subtracted."));
    steps.setIndex(2);
    QVERIFY(show(20));
    QCOMPARE(pipeline.Shown().corrected.values[150], 0.0);
}

void PipelineCorrectionsTest::whatWasAveragedBeforeAChangeDoesNotStay_data()
{
    QTest::addColumn<SpectrumRecipe>("change");
    QTest::addColumn<double>("value");
    SpectrumRecipe recipe = Binning(BinnedRows::Manual);
    recipe.corrections.averaged = 4;
    recipe.top = recipe.bottom = 50;
    QTest::newRow("another band") << recipe << 100.0;
    recipe.top = recipe.bottom = 30;
    recipe.isHorizontal = false;
    QTest::newRow("the other direction") << recipe << 100.0;
    recipe = Binning();
    recipe.corrections.averaged = 4;
    QTest::newRow("all rows") << recipe << 100.0 * height;
}

/// Of the first sample: in row 30 it was 5100 before.
void PipelineCorrectionsTest::whatWasAveragedBeforeAChangeDoesNotStay()
{
    QFETCH(SpectrumRecipe, change);
    QFETCH(double, value);
    SpectrumPipeline pipeline;
    SpectrumRecipe recipe = Binning(BinnedRows::Manual);
    recipe.corrections.averaged = 4;
    recipe.top = recipe.bottom = 30;
    pipeline.SetRecipe(recipe);
    CameraFrame frame = Frame(1, 0, 0);
    const_cast<quint16 *>(reinterpret_cast<const quint16 *>(frame.Row(30)))[0] = 5100;
    for (int i = 0; i < 4; ++i)
        pipeline.OnFrame(frame);
    QTRY_COMPARE(pipeline.Ledger().computed.load(), quint64(4));
    pipeline.SetRecipe(change);
    pipeline.OnFrame(Frame(5, 0, 0));
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(5));
    QCOMPARE(pipeline.Shown().corrected.values[0], value);
}

void PipelineCorrectionsTest::tracksOfOtherRowsAreNotMixed()
{
    SpectrumPipeline pipeline;
    SpectrumRecipe recipe;
    recipe.hasTracks = true;
    recipe.corrections.averaged = 8;
    recipe.tracks = {{0, 10, 0}, {20, 40, 0}};
    pipeline.SetRecipe(recipe);
    pipeline.OnFrame(Frame(1));
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(1));
    recipe.tracks = {{0, 10, 0}, {50, 70, 0}};
    pipeline.SetRecipe(recipe);
    pipeline.OnFrame(Frame(2));
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(2));
    QCOMPARE(pipeline.Shown().tracks[1].values[150], 2000.0);
}

/// Mirrored it is as large as before.
void PipelineCorrectionsTest::aTurnedPictureHasNoDark()
{
    QMutex gate;
    Orientation orientation;
    SpectrumPipeline pipeline([&] {
        const QMutexLocker lock(&gate);
        return orientation;
    });
    SpectrumRecipe recipe = Binning();
    recipe.corrections.subtractsDark = true;
    recipe.corrections.averaged = 2;
    pipeline.SetRecipe(recipe);
    CameraFrame frame = Frame(1, 0, 0);
    const_cast<quint16 *>(reinterpret_cast<const quint16 *>(frame.Row(0)))[0] = 5100;
    pipeline.OnFrame(frame);
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(1));
    QVERIFY(pipeline.TakeDark());
    {
        const QMutexLocker lock(&gate);
        orientation = Orientation(true, 0);
    }
    frame.frameId = 2;
    pipeline.OnFrame(frame);
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(2));
    QCOMPARE(pipeline.Shown().corrected.values[0], 100.0 * height);
    QCOMPARE(pipeline.Shown().corrected.values[width - 1], 100.0 * height + 5000);
    QCOMPARE(pipeline.Shown().corrections.Sentence(), QString("Corrections: average of fewer than 2 so far, "
                                                              "no dark spectrum of this part of the picture to subtract."));
}

void PipelineCorrectionsTest::aDarkOfOtherPixelsIsNotSubtracted_data()
{
    QTest::addColumn<QString>("camera");
    QTest::addColumn<QRect>("region");
    QTest::addColumn<int>("binning");
    QTest::newRow("another region") << "one" << QRect(width, height, width, height) << 1;
    QTest::newRow("binned on the sensor") << "one" << QRect(0, 0, 2 * width, 2 * height) << 2;
    QTest::newRow("another camera") << "two" << QRect(0, 0, width, height) << 1;
}

/// However alike their frames are.
void PipelineCorrectionsTest::aDarkOfOtherPixelsIsNotSubtracted()
{
    QFETCH(QString, camera);
    QFETCH(QRect, region);
    QFETCH(int, binning);
    SpectrumPipeline pipeline;
    SpectrumRecipe recipe = Binning();
    recipe.corrections.subtractsDark = true;
    pipeline.SetRecipe(recipe);
    CameraFrame frame = Frame(1, 0, 0);
    frame.origin = {"one", QRect(0, 0, width, height), 1};
    pipeline.OnFrame(frame);
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(1));
    QVERIFY(pipeline.TakeDark());
    frame.frameId = 2;
    pipeline.OnFrame(frame);
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(2));
    QCOMPARE(pipeline.Shown().corrected.values[0], 0.0);
    frame.frameId = 3;
    frame.origin = {camera, region, binning};
    pipeline.OnFrame(frame);
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(3));
    QCOMPARE(pipeline.Shown().corrected.values[0], 100.0 * height);
    QCOMPARE(pipeline.Shown().corrections.Sentence(),
             QString("Corrections: no dark spectrum of this part of the picture to subtract."));
}

void PipelineCorrectionsTest::theDarkIsTheAverage()
{
    SpectrumPipeline pipeline;
    SpectrumRecipe recipe = Binning();
    recipe.corrections.averaged = 2;
    pipeline.SetRecipe(recipe);
    pipeline.OnFrame(Frame(1, 0, 0));
    CameraFrame other = Frame(2, 0, 0);
    const_cast<quint16 *>(reinterpret_cast<const quint16 *>(other.Row(0)))[7] = 160;
    pipeline.OnFrame(other);
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(2));
    QVERIFY(pipeline.TakeDark());
    recipe.corrections.averaged = 1;
    recipe.corrections.subtractsDark = true;
    pipeline.SetRecipe(recipe);
    pipeline.OnFrame(Frame(3, 0, 0));
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(3));
    QCOMPARE(pipeline.Shown().corrected.values[7], -30.0);
}

void PipelineCorrectionsTest::withoutReferenceCountsAreDrawn()
{
    SpectrumPipeline pipeline;
    Plot plot(&pipeline, &SpectrumManager::SignalUpdateFVB, width);
    SpectrumRecipe recipe = Binning();
    recipe.corrections.quantity = SpectrumQuantity::Transmission;
    pipeline.SetRecipe(recipe);
    pipeline.OnFrame(Frame(1, 0, 0));
    QTRY_COMPARE(plot.times, 1);
    QCOMPARE(plot.shown[0], 8000U);
    QCOMPARE(pipeline.Shown().corrections.Sentence(), QString("Corrections: no reference spectrum of this part of the picture."));
    QVERIFY(pipeline.TakeReference());
    pipeline.OnFrame(Frame(2, 0, 0));
    QTRY_COMPARE(plot.times, 2);
    QCOMPARE(plot.shown[0], 10000U);
    // What is under way when the choice changes is drawn as what it is.
    pipeline.OnFrame(Frame(3, 0, 0));
    while (pipeline.Ledger().computed < 3)
        QThread::yieldCurrentThread();
    recipe.corrections.quantity = SpectrumQuantity::Counts;
    pipeline.SetRecipe(recipe);
    QTRY_COMPARE(plot.times, 3);
    QCOMPARE(plot.shown[0], 10000U);
}

void PipelineCorrectionsTest::tracksTellTheirCorrections()
{
    SpectrumPipeline pipeline;
    SpectrumRecipe recipe;
    recipe.hasTracks = true;
    recipe.corrections.subtractsDark = true;
    recipe.corrections.removesBaseline = true;
    recipe.tracks = {{0, 10, 0}};
    pipeline.SetRecipe(recipe);
    pipeline.OnFrame(Frame(1));
    QTRY_COMPARE(pipeline.Shown().frameId, quint64(1));
    QCOMPARE(pipeline.Shown().corrections.Sentence(), QString("Corrections: dark and reference not of tracks, baseline removed."));
    QCOMPARE(pipeline.Shown().corrections.Record(), QString("baseline removed"));
}

GUARDED_TEST_MAIN(PipelineCorrectionsTest)
#include "pipelinecorrectionstest.moc"
