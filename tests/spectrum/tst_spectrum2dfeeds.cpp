// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "plotpage.h"

#include <QScrollBar>
#include <QSignalSpy>

#include <limits>

namespace {

Values Counting(int count, unsigned int first)
{
    Values values;
    for (int i = 0; i < count; ++i)
        values.push_back(first + unsigned(i));
    return values;
}

QVector<double> Doubles(const Values &values)
{
    QVector<double> doubles;
    for (unsigned int value : values)
        doubles << value;
    return doubles;
}

void SetTracks(PlotPage &page, int count)
{
    page.services.spectrumUI.multiTrackList.clear();
    for (int i = 0; i < count; ++i)
        page.services.spectrumUI.multiTrackList << QRectF(0, i, 10, 1);
}

} // namespace

class TestSpectrum2DFeeds : public GuardedTest
{
    Q_OBJECT

private slots:
    void profile_data();
    void profile();
    void profileOfAnotherSizeThanTheFrame_data();
    void profileOfAnotherSizeThanTheFrame();
    void fvbLine();
    void fvbLineAlongTheColumns();
    void trackOfTheScrollBar();
    void trackThatIsNoMore();
    void columnAcrossTracks_data();
    void columnAcrossTracks();
    void columnNeverReadsBesideTheFrame();
    void tracksWithoutFrame();
    void onlyIn2DModes_data();
    void onlyIn2DModes();
    void modeSwitchWhilePayloadsAreQueued();
    void emptyPayloadsClearTheCurve_data();
    void emptyPayloadsClearTheCurve();
    void nothingAtAll();
    void narrowPageDrawsNothing_data();
    void narrowPageDrawsNothing();
    void rowAndColumnOfAPicture_data();
    void rowAndColumnOfAPicture();
    void samplesBelowZero();
    void samplesThatAreFractions();
    void curveOfAnImageThatIsNotActive();
    void pictureCurvesOfOddSizes_data();
    void pictureCurvesOfOddSizes();
};

void TestSpectrum2DFeeds::profile_data()
{
    QTest::addColumn<bool>("peakMode");
    QTest::addColumn<bool>("horizontal");
    QTest::newRow("row") << false << true;
    QTest::newRow("column") << false << false;
    QTest::newRow("row with peaks") << true << true;
    QTest::newRow("column with peaks") << true << false;
}

void TestSpectrum2DFeeds::profile()
{
    QFETCH(bool, peakMode);
    QFETCH(bool, horizontal);
    PlotPage page;
    if (peakMode)
        page.SetMode2DPeak();
    page.services.spectrumUI.directionHorinzontal = horizontal;
    page.services.frame.frameWidth = 4;
    page.services.frame.frameHeight = 3;
    CurvePayload payload({ 1, 2, 3, 4 }, { 7, 8, 9 });
    page.page->SlotUpdateCurve(payload.Param());
    QCOMPARE(page.DrawnValues(), horizontal ? QVector<double>({ 1, 2, 3, 4 }) : QVector<double>({ 7, 8, 9 }));
    // What was filled is shown now, and the producer gets the other buffers.
    QCOMPARE(payload.record.horizontalShow, payload.row.data());
    QCOMPARE(payload.record.verticalShow, payload.column.data());
    QCOMPARE(payload.record.horizontalFill, payload.oldRow.data());
    QCOMPARE(payload.record.verticalFill, payload.oldColumn.data());
    QVERIFY(payload.lock.tryLock());
    payload.lock.unlock();
}

void TestSpectrum2DFeeds::profileOfAnotherSizeThanTheFrame_data()
{
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<int>("frameSide");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("drawn");
    QTest::newRow("row, frame grew before the payload came") << true << 6 << 4 << 4;
    QTest::newRow("row, frame shrank") << true << 3 << 4 << 3;
    QTest::newRow("row, producer gives no size") << true << 4 << 0 << 4;
    QTest::newRow("column, frame grew before the payload came") << false << 5 << 3 << 3;
    QTest::newRow("column, frame shrank") << false << 2 << 3 << 2;
    QTest::newRow("column, producer gives no size") << false << 3 << 0 << 3;
}

void TestSpectrum2DFeeds::profileOfAnotherSizeThanTheFrame()
{
    QFETCH(bool, horizontal);
    QFETCH(int, frameSide);
    QFETCH(int, size);
    PlotPage page;
    page.services.spectrumUI.directionHorinzontal = horizontal;
    (horizontal ? page.services.frame.frameWidth : page.services.frame.frameHeight) = quint16(frameSide);
    CurvePayload payload({ 1, 2, 3, 4 }, { 7, 8, 9 });
    (horizontal ? payload.record.horizontalSize : payload.record.verticalSize) = size;
    page.page->SlotUpdateCurve(payload.Param());
    QTEST(page.DrawnValues().size(), "drawn");
}

void TestSpectrum2DFeeds::fvbLine()
{
    PlotPage page([](FakeServices &services) {
        services.spectrumUI.calibrationOffset = 400;
        services.spectrumUI.calibrationFactor = 0.5;
    });
    const Values line = Counting(10, 4294967000u);
    LinePayload payload(line);
    page.page->SlotUpdateFVB(payload.Param());
    QCOMPARE(page.DrawnValues(), Doubles(line));
    QCOMPARE(page.Keys(), QVector<double>({ 400, 400.5, 401, 401.5, 402, 402.5, 403, 403.5, 404, 404.5 }));
    QCOMPARE(payload.record.show, payload.first.data());
    QCOMPARE(payload.record.fill, payload.second.data());
    QVERIFY(payload.lock.tryLock());
    payload.lock.unlock();
}

/// As many values as the frame is high: 6, of 10 that are there.
void TestSpectrum2DFeeds::fvbLineAlongTheColumns()
{
    PlotPage page;
    page.services.spectrumUI.directionHorinzontal = false;
    LinePayload payload(Counting(10, 100));
    page.page->SlotUpdateFVB(payload.Param());
    QCOMPARE(page.DrawnValues(), Doubles(Counting(6, 100)));
}

void TestSpectrum2DFeeds::trackOfTheScrollBar()
{
    PlotPage page;
    SetTracks(page, 3);
    page.page->SlotMultitrackOnFlagChanged();
    LinePayload payload(Counting(30, 100));
    page.page->SlotUpdateMultiTrack(payload.Param());
    QCOMPARE(page.DrawnValues(), Doubles(Counting(10, 100)));
    page.page->findChild<QScrollBar *>()->setValue(2);
    LinePayload next(Counting(30, 500));
    page.page->SlotUpdateMultiTrack(next.Param());
    QCOMPARE(page.DrawnValues(), Doubles(Counting(10, 520)));
    QCOMPARE(next.record.show, next.first.data());
}

void TestSpectrum2DFeeds::trackThatIsNoMore()
{
    PlotPage page;
    SetTracks(page, 5);
    page.page->SlotMultitrackOnFlagChanged();
    page.page->findChild<QScrollBar *>()->setValue(4);
    SetTracks(page, 2);
    LinePayload payload(Counting(20, 100));
    page.page->SlotUpdateMultiTrack(payload.Param());
    QCOMPARE(page.DrawnValues(), Doubles(Counting(10, 110)));
}

void TestSpectrum2DFeeds::columnAcrossTracks_data()
{
    QTest::addColumn<int>("tracks");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("drawn");
    QTest::newRow("3 tracks") << 3 << 4 << 3;
    QTest::newRow("20 tracks") << 20 << 0 << 20;
    QTest::newRow("more than the page holds") << 25 << 9 << 20;
    QTest::newRow("no track") << 0 << 4 << 0;
}

void TestSpectrum2DFeeds::columnAcrossTracks()
{
    QFETCH(int, tracks);
    QFETCH(int, column);
    QFETCH(int, drawn);
    PlotPage page;
    page.services.spectrumUI.directionHorinzontal = false;
    SetTracks(page, tracks);
    page.page->SlotMultitrackOnFlagChanged();
    page.page->findChild<QScrollBar *>()->setValue(column);
    LinePayload payload(Counting(10 * qMax(1, tracks), 100));
    page.page->SlotUpdateMultiTrack(payload.Param());
    QVector<double> expected;
    for (int track = 0; track < drawn; ++track)
        expected << 100 + 10 * track + column;
    QCOMPARE(page.DrawnValues(), expected);
}

void TestSpectrum2DFeeds::columnNeverReadsBesideTheFrame()
{
    PlotPage page;
    page.services.spectrumUI.directionHorinzontal = false;
    SetTracks(page, 2);
    page.page->SlotMultitrackOnFlagChanged();
    page.page->findChild<QScrollBar *>()->setValue(10); // one more than the last column
    LinePayload payload(Counting(20, 100));
    page.page->SlotUpdateMultiTrack(payload.Param());
    QCOMPARE(page.DrawnValues(), QVector<double>({ 109, 119 }));
}

void TestSpectrum2DFeeds::tracksWithoutFrame()
{
    PlotPage page;
    SetTracks(page, 2);
    LinePayload payload(Counting(20, 100));
    for (bool horizontal : { true, false }) {
        page.services.frame.frameWidth = 10;
        page.services.spectrumUI.directionHorinzontal = horizontal;
        page.page->SlotUpdateMultiTrack(payload.Param());
        QVERIFY(!page.DrawnValues().isEmpty());
        page.services.frame.frameWidth = 0;
        page.page->SlotUpdateMultiTrack(payload.Param());
        QCOMPARE(page.DrawnValues(), QVector<double>());
    }
}

void TestSpectrum2DFeeds::onlyIn2DModes_data()
{
    QTest::addColumn<bool>("mode2D");
    QTest::addColumn<bool>("modePeak");
    QTest::addColumn<bool>("drawn");
    QTest::newRow("2D") << true << false << true;
    QTest::newRow("2D peak") << false << true << true;
    QTest::newRow("other") << false << false << false;
}

void TestSpectrum2DFeeds::onlyIn2DModes()
{
    QFETCH(bool, mode2D);
    QFETCH(bool, modePeak);
    QFETCH(bool, drawn);
    using Feed = void (Spectrum2DDrawFrameBase::*)(void *);
    for (Feed feed :
         { &Spectrum2DDrawFrameBase::SlotUpdateFVB, &Spectrum2DDrawFrameBase::SlotUpdateMultiTrack }) {
        PlotPage page;
        page.services.spectrumUI.displayMode2D = mode2D;
        page.services.spectrumUI.displayMode2DPeak = modePeak;
        LinePayload payload(Counting(10, 1));
        (page.page.get()->*feed)(payload.Param());
        QCOMPARE(!page.DrawnValues().isEmpty(), drawn);
        QCOMPARE(payload.record.show == payload.first.data(), drawn);
    }
    PlotPage page;
    page.services.spectrumUI.displayMode2D = mode2D;
    page.services.spectrumUI.displayMode2DPeak = modePeak;
    CurvePayload payload({ 1, 2, 3 }, { 4, 5 });
    page.page->SlotUpdateCurve(payload.Param());
    QCOMPARE(!page.DrawnValues().isEmpty(), drawn);
    QCOMPARE(payload.record.horizontalShow == payload.row.data(), drawn);
}

void TestSpectrum2DFeeds::modeSwitchWhilePayloadsAreQueued()
{
    PlotPage page;
    QObject::connect(&page.services.spectrum, SIGNAL(SignalUpdateFVB(void *)), page.page.get(),
                     SLOT(SlotUpdateFVB(void *)), Qt::QueuedConnection);
    LinePayload first(Counting(10, 1));
    LinePayload second(Counting(10, 50));
    emit page.services.spectrum.SignalUpdateFVB(first.Param());
    page.SetOtherMode();
    QCoreApplication::processEvents();
    QCOMPARE(page.DrawnValues(), QVector<double>());
    emit page.services.spectrum.SignalUpdateFVB(second.Param());
    page.SetMode2D();
    QCoreApplication::processEvents();
    QCOMPARE(page.DrawnValues(), Doubles(Counting(10, 50)));
}

void TestSpectrum2DFeeds::emptyPayloadsClearTheCurve_data()
{
    QTest::addColumn<QString>("what");
    QTest::newRow("no buffer") << "buffer";
    QTest::newRow("no frame") << "frame";
    QTest::newRow("no track buffer") << "tracks";
    QTest::newRow("no profile") << "profile";
}

void TestSpectrum2DFeeds::emptyPayloadsClearTheCurve()
{
    QFETCH(QString, what);
    PlotPage page;
    page.SetMode2DPeak();
    page.services.algorithm.foundPeaks = { 3 };
    page.DrawLine(Counting(10, 1));
    QVERIFY(!page.DrawnValues().isEmpty());
    QCOMPARE(page.plot->itemCount(), 2);
    LinePayload line(Counting(10, 1));
    CurvePayload curve({ 1, 2 }, { 3 });
    if (what == "frame")
        page.services.frame.frameWidth = 0;
    else
        line.record.fill = nullptr;
    curve.record.horizontalFill = nullptr;
    if (what == "profile")
        page.page->SlotUpdateCurve(curve.Param());
    else if (what == "tracks")
        page.page->SlotUpdateMultiTrack(line.Param());
    else
        page.page->SlotUpdateFVB(line.Param());
    QCOMPARE(page.DrawnValues(), QVector<double>());
    QCOMPARE(page.plot->itemCount(), 0);
}

void TestSpectrum2DFeeds::nothingAtAll()
{
    PlotPage page;
    page.DrawLine(Counting(10, 1));
    page.page->SlotUpdateCurve(nullptr);
    page.page->SlotUpdateFVB(nullptr);
    page.page->SlotUpdateMultiTrack(nullptr);
    QCOMPARE(page.DrawnValues(), Doubles(Counting(10, 1)));
}

void TestSpectrum2DFeeds::narrowPageDrawsNothing_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("drawn");
    QTest::newRow("300") << 300 << false;
    QTest::newRow("301") << 301 << true;
}

void TestSpectrum2DFeeds::narrowPageDrawsNothing()
{
    QFETCH(int, width);
    QFETCH(bool, drawn);
    PlotPage page;
    page.page->resize(width, 400);
    LinePayload payload(Counting(10, 1));
    page.page->SlotUpdateFVB(payload.Param());
    QCOMPARE(!page.DrawnValues().isEmpty(), drawn);
    QCOMPARE(payload.record.show, payload.first.data()); // the producer goes on all the same
    page.page->resize(600, 400);
    page.DrawLine(Counting(10, 1));
    page.page->resize(width, 400);
    page.page->SlotUpdateImageHorizontalCurve(nullptr, 0, 0, 0);
    QCOMPARE(page.DrawnValues().isEmpty(), drawn); // not even cleared when narrow
}

void TestSpectrum2DFeeds::rowAndColumnOfAPicture_data()
{
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<QVector<double>>("drawn");
    QTest::newRow("horizontal") << true << QVector<double>{ 1, 2, 3 };
    QTest::newRow("vertical") << false << QVector<double>{ 7, 8 };
}

void TestSpectrum2DFeeds::rowAndColumnOfAPicture()
{
    QFETCH(bool, horizontal);
    PlotPage page;
    page.SetOtherMode(); // whatever the mode is
    page.services.spectrumUI.directionHorinzontal = horizontal;
    int row[] = { 1, 2, 3 };
    int column[] = { 7, 8 };
    page.page->SlotUpdateImageHorizontalCurve(row, 3, 0, 3);
    page.page->SlotUpdateImageVerticalCurve(column, 2, 0, 2);
    QTEST(page.DrawnValues(), "drawn");
}

void TestSpectrum2DFeeds::samplesBelowZero()
{
    PlotPage page;
    page.page->SetStaticMode(true);
    int row[] = { 3, -12, std::numeric_limits<int>::max(), std::numeric_limits<int>::min() };
    page.page->SlotUpdateImageHorizontalCurve(row, 3, 0, 3);
    QCOMPARE(page.DrawnValues(), QVector<double>({ 3, -12, 2147483647.0 }));
    QCOMPARE(page.Y().lower, -12.0);
    // The algorithm takes counts from 0 on.
    QCOMPARE(page.services.algorithm.askedSamples, Values({ 15, 0, 2147483659u }));
    page.page->SlotUpdateImageHorizontalCurve(row, 4, 0, 4);
    QCOMPARE(page.DrawnValues().last(), -2147483648.0);
    QCOMPARE(page.services.algorithm.askedSamples, Values({ 2147483651u, 2147483636u, 4294967295u, 0 }));
}

/// They are told in whole numbers.
void TestSpectrum2DFeeds::samplesThatAreFractions()
{
    PlotPage page;
    page.services.imageCore.curveFactor = 1000.0;
    int row[] = { -3000, 1500, 250 };
    page.page->SlotUpdateImageHorizontalCurve(row, 3, 0, 3);
    QCOMPARE(page.DrawnValues(), QVector<double>({ -3, 1.5, 0.25 }));
    QCOMPARE(page.Y().lower, -3.0);
    QCOMPARE(page.Y().upper, 1.5 / (1 - page.services.spectrumUI.blankRatio));
    page.DrawLine({ 7, 8 }); // counts of the camera are what they are
    QCOMPARE(page.DrawnValues(), QVector<double>({ 7, 8 }));
    page.services.imageCore.curveFactor = 0.0; // none at all
    page.page->SlotUpdateImageHorizontalCurve(row, 3, 0, 3);
    QCOMPARE(page.DrawnValues(), QVector<double>({ -3000, 1500, 250 }));
}

/// The user looks at the other one of two compared pictures.
void TestSpectrum2DFeeds::curveOfAnImageThatIsNotActive()
{
    PlotPage page;
    page.services.imageCore.curveFactor = 1000.0; // of the active one
    FakeImageCore core;
    core.curveFactor = 10.0;
    FakeImageManager image;
    image.imageCore = &core;
    QObject::connect(&image, SIGNAL(sglUpdateHorizontalCurve(int *, int, int, int)), page.page.get(),
                     SLOT(SlotUpdateImageHorizontalCurve(int *, int, int, int)));
    int row[] = { 10, 20, 5 };
    emit image.sglUpdateHorizontalCurve(row, 3, 0, 3);
    QCOMPARE(page.DrawnValues(), QVector<double>({ 1, 2, 0.5 }));
}

void TestSpectrum2DFeeds::pictureCurvesOfOddSizes_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("count");
    QTest::addColumn<QVector<double>>("drawn");
    QTest::newRow("part") << 3 << 2 << QVector<double>{ 1, 2 };
    QTest::newRow("more than there is") << 3 << 5 << QVector<double>{ 1, 2, 3 };
    QTest::newRow("none") << 3 << 0 << QVector<double>();
    QTest::newRow("less than none") << 3 << -1 << QVector<double>();
}

void TestSpectrum2DFeeds::pictureCurvesOfOddSizes()
{
    QFETCH(int, size);
    QFETCH(int, count);
    PlotPage page;
    int row[] = { 1, 2, 3 };
    page.page->SlotUpdateImageHorizontalCurve(row, size, 0, count);
    QTEST(page.DrawnValues(), "drawn");
}

GUARDED_TEST_MAIN(TestSpectrum2DFeeds)
#include "tst_spectrum2dfeeds.moc"
