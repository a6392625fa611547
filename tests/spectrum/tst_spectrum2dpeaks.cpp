// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "plotpage.h"

class TestSpectrum2DPeaks : public GuardedTest
{
    Q_OBJECT

private slots:
    void whatTheAlgorithmIsAsked_data();
    void whatTheAlgorithmIsAsked();
    void markers();
    void markersFollowTheNextCurve();
    void peaksBesideTheCurveAreLeftOut();
    void otherModesShowNone();
    void modeChangeRedrawsMarkers();
    void overlappingPeaksEachHaveAMarker();
};

void TestSpectrum2DPeaks::whatTheAlgorithmIsAsked_data()
{
    QTest::addColumn<bool>("peakMode");
    QTest::addColumn<bool>("staticMode");
    QTest::addColumn<bool>("asked");
    QTest::newRow("2D live") << false << false << false;
    QTest::newRow("2D peak live") << true << false << true;
    QTest::newRow("2D of a file") << false << true << true;
    QTest::newRow("2D peak of a file") << true << true << true;
}

void TestSpectrum2DPeaks::whatTheAlgorithmIsAsked()
{
    QFETCH(bool, peakMode);
    QFETCH(bool, staticMode);
    QFETCH(bool, asked);
    PlotPage page;
    if (peakMode)
        page.SetMode2DPeak();
    page.page->SetStaticMode(staticMode);
    page.services.spectrumUI.peakNumber = 7;
    page.services.algorithm.foundPeaks = { 1 };
    page.DrawLine({ 1, 5, 2, 3 });
    QCOMPARE(CallLog::Calls(),
             asked ? QStringList("AlgSpectrometer::Findcurvepeak(4, 7, 15, 10, 0)") : QStringList());
    QCOMPARE(page.plot->itemCount(), peakMode ? 2 : 0);
}

void TestSpectrum2DPeaks::markers()
{
    PlotPage page([](FakeServices &services) {
        services.spectrumUI.calibrationOffset = 400;
        services.spectrumUI.calibrationFactor = 0.123456;
        services.spectrumUI.peakPen = QPen(Qt::darkGreen, 2);
        services.spectrumUI.peakColor = QColor(1, 2, 3);
        services.spectrumUI.peakSize = 9.5;
    });
    page.SetMode2DPeak();
    page.services.algorithm.foundPeaks = { 1, 3 };
    page.DrawLine({ 0, 50, 0, 80, 0 });

    const QList<QCPItemTracer *> tracers = page.Items<QCPItemTracer>();
    const QList<QCPItemText *> texts = page.Items<QCPItemText>();
    QCOMPARE(tracers.size(), 2);
    QCOMPARE(texts.size(), 2);
    const double x[] = { 400.123456, 400.370368 };
    const double heights[] = { 50, 80 };
    const QString labels[] = { "400.123", "400.37" };
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(tracers[i]->graph(), page.plot->graph(0));
        QCOMPARE(tracers[i]->graphKey(), x[i]);
        QVERIFY(tracers[i]->interpolating());
        QCOMPARE(tracers[i]->style(), QCPItemTracer::tsCircle);
        QCOMPARE(tracers[i]->pen(), QPen(Qt::darkGreen, 2));
        QCOMPARE(tracers[i]->brush(), QBrush(QColor(1, 2, 3), Qt::SolidPattern));
        QCOMPARE(tracers[i]->size(), 9.5);

        QCOMPARE(texts[i]->position->type(), QCPItemPosition::ptPlotCoords);
        QCOMPARE(texts[i]->position->key(), x[i]);
        QCOMPARE(texts[i]->position->value(), heights[i]);
        QCOMPARE(texts[i]->positionAlignment(), Qt::AlignRight | Qt::AlignBottom);
        QCOMPARE(texts[i]->textAlignment(), Qt::Alignment(Qt::AlignCenter));
        QCOMPARE(texts[i]->text(), labels[i]);
        QCOMPARE(texts[i]->padding(), QMargins(0, 0, 5, 0));
        QCOMPARE(texts[i]->color(), QColor(Qt::black));
        QCOMPARE(texts[i]->font().family(), QString("Segoe UI"));
        QCOMPARE(texts[i]->font().pixelSize(), 12);
    }
}

void TestSpectrum2DPeaks::markersFollowTheNextCurve()
{
    PlotPage page;
    page.SetMode2DPeak();
    page.services.algorithm.foundPeaks = { 1, 3 };
    page.DrawLine({ 0, 50, 0, 80, 0 });
    page.services.algorithm.foundPeaks = { 2 };
    page.DrawLine({ 0, 0, 70, 0, 0 });
    QCOMPARE(page.plot->itemCount(), 2);
    QCOMPARE(page.Items<QCPItemTracer>().first()->graphKey(), 2.0);
    QCOMPARE(page.Items<QCPItemText>().first()->position->value(), 70.0);
}

void TestSpectrum2DPeaks::peaksBesideTheCurveAreLeftOut()
{
    PlotPage page;
    page.SetMode2DPeak();
    page.services.algorithm.foundPeaks = { -1, 0, 4, 5, 1000 };
    page.DrawLine({ 1, 2, 3, 4, 5 });
    QList<double> keys;
    for (const QCPItemTracer *tracer : page.Items<QCPItemTracer>())
        keys << tracer->graphKey();
    QCOMPARE(keys, QList<double>({ 0, 4 }));
}

void TestSpectrum2DPeaks::otherModesShowNone()
{
    PlotPage page;
    page.SetMode2DPeak();
    page.services.algorithm.foundPeaks = { 1 };
    page.DrawLine({ 0, 50, 0 });
    QCOMPARE(page.plot->itemCount(), 2);
    page.SetMode2D();
    emit page.services.spectrumUI.signalDisplayModeChange();
    QCOMPARE(page.plot->itemCount(), 0);
}

void TestSpectrum2DPeaks::modeChangeRedrawsMarkers()
{
    PlotPage page;
    page.SetMode2DPeak();
    page.services.algorithm.foundPeaks = { 1 };
    page.DrawLine({ 0, 50, 0 });
    page.services.spectrumUI.peakSize = 21.0;
    emit page.services.spectrumUI.signalDisplayModePropertyChange();
    QCOMPARE(page.Items<QCPItemTracer>().size(), 1);
    QCOMPARE(page.Items<QCPItemTracer>().first()->size(), 21.0);
    page.services.spectrumUI.peakSize = 5.0;
    page.page->SlotSpectralPropertyChanged();
    QCOMPARE(page.Items<QCPItemTracer>().first()->size(), 5.0);
}

void TestSpectrum2DPeaks::overlappingPeaksEachHaveAMarker()
{
    PlotPage page;
    page.SetMode2DPeak();
    page.services.algorithm.foundPeaks = { 1, 1, 2 };
    page.DrawLine({ 0, 50, 49, 0 });
    QCOMPARE(page.plot->itemCount(), 6);
}

GUARDED_TEST_MAIN(TestSpectrum2DPeaks)
#include "tst_spectrum2dpeaks.moc"
