// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "plotpage.h"

namespace {

Values HundredSamples()
{
    Values values;
    for (unsigned int i = 0; i <= 100; ++i)
        values.push_back(10 * i);
    return values;
}

void Click(const PlotPage &page, const QPoint &pos)
{
    page.Send(QEvent::MouseButtonPress, pos);
    page.Send(QEvent::MouseButtonRelease, pos);
}

} // namespace

class TestSpectrum2DMouse : public GuardedTest
{
    Q_OBJECT

private slots:
    void rubberBand();
    void secondButtonDuringADrag();
    void aDragEndsWithItsPage();
    void aReleaseThatWasNotSeen();
    void moveWithoutPress();
    void tracerAtTheClick_data();
    void tracerAtTheClick();
    void tracerOfLargeWholeNumbers();
    void tracerStaysAtItsPixel();
    void tracerStandsWhereItStoodBeforeTheAxisMoves();
    void noTracerBeforeTheFirstClick();
    void tracerWithoutACurve();
    void shortDragIsAClick_data();
    void shortDragIsAClick();
    void dragRightZooms();
    void dragRightStaysWithinTheCurve();
    void dragBesideTheCurve();
    void dragLeftStepsBack();
};

void TestSpectrum2DMouse::rubberBand()
{
    PlotPage page;
    QVERIFY(page.Show());
    page.DrawLine(HundredSamples());
    page.Send(QEvent::MouseButtonPress, QPoint(200, 100));
    const QList<QCPItemRect *> bands = page.Items<QCPItemRect>();
    QCOMPARE(bands.size(), 1);
    QCPItemRect *band = bands.first();
    QVERIFY(!band->visible());
    QCOMPARE(band->pen(), QPen(Qt::blue));
    QCOMPARE(band->brush(), QBrush(QColor(200, 200, 255, 100), Qt::SolidPattern));
    for (const QCPItemPosition *corner : { band->topLeft, band->bottomRight })
        QCOMPARE(corner->type(), QCPItemPosition::ptAbsolute);
    QCOMPARE(band->topLeft->coords(), QPointF(200, 100));

    page.Send(QEvent::MouseMove, QPoint(260, 150));
    QVERIFY(band->visible());
    QCOMPARE(band->topLeft->coords(), QPointF(200, 100));
    QCOMPARE(band->bottomRight->coords(), QPointF(260, 150));
    page.plot->replot(QCustomPlot::rpImmediateRefresh);
    // Inside, a light blue veil lies over the white ground.
    const QColor inside = page.plot->toPixmap().toImage().pixelColor(230, 120);
    QVERIFY2(inside.blue() > 250 && inside.red() < 245, qPrintable(inside.name()));

    page.Send(QEvent::MouseButtonRelease, QPoint(260, 150));
    QCOMPARE(page.Items<QCPItemRect>().size(), 0);
    QVERIFY(DebugLines().contains("SlotCustomPlotMouseRelease QPointF(260,150)"));
}

void TestSpectrum2DMouse::secondButtonDuringADrag()
{
    PlotPage page;
    QVERIFY(page.Show());
    page.DrawLine(HundredSamples());
    page.Send(QEvent::MouseButtonPress, QPoint(200, 100));
    page.Send(QEvent::MouseMove, QPoint(220, 100));
    page.Send(QEvent::MouseButtonPress, QPoint(220, 100));
    QCOMPARE(page.Items<QCPItemRect>().size(), 1);
    page.Send(QEvent::MouseButtonRelease, QPoint(221, 100));
    page.Send(QEvent::MouseMove, QPoint(240, 100));
    page.Send(QEvent::MouseButtonRelease, QPoint(240, 100));
    QCOMPARE(page.Items<QCPItemRect>().size(), 0);
}

void TestSpectrum2DMouse::aDragEndsWithItsPage()
{
    PlotPage page;
    QVERIFY(page.Show());
    page.DrawLine(HundredSamples());
    page.Send(QEvent::MouseButtonPress, QPoint(200, 100));
    page.Send(QEvent::MouseMove, QPoint(260, 150));
    page.page->hide();
    QCOMPARE(page.Items<QCPItemRect>().size(), 0);
    QVERIFY(page.Show());
    page.Send(QEvent::MouseMove, QPoint(280, 150));
    QCOMPARE(page.Items<QCPItemRect>().size(), 0);
}

void TestSpectrum2DMouse::aReleaseThatWasNotSeen()
{
    PlotPage page;
    QVERIFY(page.Show());
    page.DrawLine(HundredSamples());
    const QString before = Text(page.X());
    page.Send(QEvent::MouseButtonPress, QPoint(200, 100));
    page.Send(QEvent::MouseMove, QPoint(260, 150));
    QMouseEvent move(QEvent::MouseMove, QPointF(280, 150), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(page.plot, &move);
    QCOMPARE(page.Items<QCPItemRect>().size(), 0);
    page.Send(QEvent::MouseMove, QPoint(300, 150));
    QCOMPARE(page.Items<QCPItemRect>().size(), 0);
    QCOMPARE(Text(page.X()), before);
}

void TestSpectrum2DMouse::moveWithoutPress()
{
    PlotPage page;
    QVERIFY(page.Show());
    page.DrawLine(HundredSamples());
    page.Send(QEvent::MouseMove, QPoint(220, 100));
    QCOMPARE(page.plot->itemCount(), 0);
    QCOMPARE(CallLog::Calls(), QStringList());
}

void TestSpectrum2DMouse::tracerAtTheClick_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<bool>("labelOnTheLeft");
    QTest::addColumn<double>("scale");
    QTest::newRow("left half") << 20.0 << false << 1.0;
    QTest::newRow("right half") << 80.0 << true << 1.0;
    QTest::newRow("left half, large display") << 20.0 << false << 2.0;
    QTest::newRow("right half, large display") << 80.0 << true << 2.0;
}

void TestSpectrum2DMouse::tracerAtTheClick()
{
    QFETCH(double, x);
    QFETCH(bool, labelOnTheLeft);
    QFETCH(double, scale);
    PlotPage page;
    const DisplayScale displayScale(scale);
    QVERIFY(page.Show());
    page.DrawLine(HundredSamples());
    page.plot->replot();
    const QPoint pos = page.PixelOf(x);
    Click(page, pos);

    const double tracerX = page.plot->xAxis->pixelToCoord(pos.x());
    QVERIFY(qAbs(tracerX - x) < 0.5);
    QCOMPARE(page.Items<QCPItemText>().size(), 1);
    QCOMPARE(page.Items<QCPItemTracer>().size(), 1);
    const QCPItemText *label = page.Items<QCPItemText>().first();
    // The search leans to a neighbour on the right: a value of one of the next samples, all tens.
    const QRegularExpression form("^\\[Pos : (\\d+), Value : (\\d+)0\\]$");
    const QRegularExpressionMatch match = form.match(label->text());
    QVERIFY2(match.hasMatch(), qPrintable(label->text()));
    QCOMPARE(match.captured(1).toInt(), int(std::round(tracerX)));
    const int sample = match.captured(2).toInt();
    QVERIFY2(sample >= tracerX - 1 && sample <= tracerX + 2, qPrintable(label->text()));
    QCOMPARE(label->position->type(), QCPItemPosition::ptPlotCoords);
    QCOMPARE(label->position->key(), tracerX);
    QCOMPARE(label->position->value(), 10.0 * sample);
    QCOMPARE(label->positionAlignment(),
             (labelOnTheLeft ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    const auto size = [scale](int design) { return int(design * scale); };
    QCOMPARE(label->padding(), labelOnTheLeft ? QMargins(0, -size(20), 15, 0) : QMargins(15, -size(20), 0, 0));
    QCOMPARE(label->color(), QColor(Qt::black));
    QCOMPARE(label->font().family(), QString("Segoe UI"));
    QCOMPARE(label->font().pixelSize(), size(12));

    const QCPItemTracer *tracer = page.Items<QCPItemTracer>().first();
    QCOMPARE(tracer->graph(), page.plot->graph(0));
    QCOMPARE(tracer->graphKey(), tracerX);
    QVERIFY(tracer->interpolating());
    QCOMPARE(tracer->style(), QCPItemTracer::tsCrosshair);
    QCOMPARE(tracer->pen(), QPen(Qt::red, size(2)));
    QCOMPARE(tracer->size(), double(size(40)));
}

/// Which are told in hundreds, as an int holds no more.
void TestSpectrum2DMouse::tracerOfLargeWholeNumbers()
{
    PlotPage page;
    QVERIFY(page.Show());
    page.services.imageCore.curveFactor = 0.01;
    std::vector<int> row(100, 42949673);
    page.page->SlotUpdateImageHorizontalCurve(row.data(), 100, 0, 100);
    page.plot->replot();
    Click(page, page.PixelOf(20));
    QCOMPARE(page.Items<QCPItemText>().size(), 1);
    const QString label = page.Items<QCPItemText>().first()->text();
    QVERIFY2(label.endsWith(", Value : 4294967300]"), qPrintable(label));
}

void TestSpectrum2DMouse::tracerStaysAtItsPixel()
{
    PlotPage page;
    QVERIFY(page.Show());
    page.DrawLine(HundredSamples());
    page.plot->replot();
    const QPoint pos = page.PixelOf(20);
    Click(page, pos);
    page.plot->xAxis->setRange(40, 60);
    page.DrawLine(HundredSamples());
    QCOMPARE(page.plot->itemCount(), 2);
    QCOMPARE(page.Items<QCPItemTracer>().first()->graphKey(), page.plot->xAxis->pixelToCoord(pos.x()));
    page.plot->xAxis->setRange(0, 50);
    emit page.services.spectrumUI.signalDisplayModeChange();
    QCOMPARE(page.plot->itemCount(), 2);
    QCOMPARE(page.Items<QCPItemTracer>().first()->graphKey(), page.plot->xAxis->pixelToCoord(pos.x()));
}

void TestSpectrum2DMouse::tracerStandsWhereItStoodBeforeTheAxisMoves()
{
    PlotPage page;
    QVERIFY(page.Show());
    page.DrawLine(HundredSamples());
    page.plot->replot();
    const QPoint pos = page.PixelOf(20);
    Click(page, pos);
    const double before = page.plot->xAxis->pixelToCoord(pos.x());
    page.services.spectrumUI.zoomAutoFlag = true;
    page.DrawLine(Values(201, 5)); // the tracer comes first, then the range of the longer curve
    QCOMPARE(Text(page.X()), QString("0..200"));
    QCOMPARE(page.Items<QCPItemTracer>().first()->graphKey(), before);
}

void TestSpectrum2DMouse::noTracerBeforeTheFirstClick()
{
    PlotPage page;
    QVERIFY(page.Show());
    page.DrawLine(HundredSamples());
    emit page.services.spectrumUI.signalDisplayModeChange();
    QCOMPARE(page.plot->itemCount(), 0);
}

void TestSpectrum2DMouse::tracerWithoutACurve()
{
    PlotPage page;
    QVERIFY(page.Show());
    Click(page, QPoint(300, 100));
    QCOMPARE(page.Items<QCPItemText>().size(), 1);
    QVERIFY(page.Items<QCPItemText>().first()->text().endsWith("Value : 0]"));
    page.plot->replot();
    for (const QString &line : DebugLines())
        QVERIFY2(!line.contains("graph has no data"), qPrintable(line));
}

void TestSpectrum2DMouse::shortDragIsAClick_data()
{
    QTest::addColumn<QPoint>("way");
    QTest::addColumn<bool>("zooms");
    QTest::newRow("9 to the right") << QPoint(9, 0) << false;
    QTest::newRow("9 to the left") << QPoint(-9, 0) << false;
    QTest::newRow("straight down") << QPoint(0, 80) << false;
    QTest::newRow("10 to the right") << QPoint(10, 0) << true;
    QTest::newRow("10 to the left") << QPoint(-10, 0) << true;
}

void TestSpectrum2DMouse::shortDragIsAClick()
{
    QFETCH(QPoint, way);
    QFETCH(bool, zooms);
    PlotPage page;
    QVERIFY(page.Show());
    page.DrawLine(HundredSamples());
    page.services.spectrumUI.zoomAutoFlag = true;
    page.plot->replot();
    const QCPRange before = page.X();
    CallLog::Clear();
    page.Drag(QPoint(300, 100), QPoint(300, 100) + way);
    QCOMPARE(CallLog::Calls(),
             zooms ? QStringList("SpectrumUIManager::SetZoomAutoFlag(false)") : QStringList());
    QCOMPARE(page.Items<QCPItemTracer>().size(), zooms ? 0 : 1);
    if (!zooms)
        QCOMPARE(Text(page.X()), Text(before));
}

void TestSpectrum2DMouse::dragRightZooms()
{
    PlotPage page;
    QVERIFY(page.Show());
    page.DrawLine(HundredSamples());
    page.plot->replot();
    const QPoint from = page.PixelOf(20);
    const QPoint to = page.PixelOf(60);
    const QCPRange expected(page.plot->xAxis->pixelToCoord(from.x()), page.plot->xAxis->pixelToCoord(to.x()));
    const QCPRange y = page.Y();
    page.Drag(from, to);
    QCOMPARE(Text(page.X()), Text(expected));
    QCOMPARE(Text(page.Y()), Text(y));
}

void TestSpectrum2DMouse::dragRightStaysWithinTheCurve()
{
    PlotPage page;
    QVERIFY(page.Show());
    page.DrawLine(HundredSamples());
    page.plot->xAxis->setRange(-50, 200);
    page.plot->replot();
    page.Drag(page.PixelOf(-40), page.PixelOf(190));
    QCOMPARE(Text(page.X()), QString("0..101")); // to behind the last sample
}

void TestSpectrum2DMouse::dragBesideTheCurve()
{
    PlotPage page;
    QVERIFY(page.Show());
    page.DrawLine(HundredSamples());
    page.plot->xAxis->setRange(-50, 200);
    page.plot->replot();
    page.Drag(page.PixelOf(120), page.PixelOf(190));
    QCOMPARE(Text(page.X()), QString("-50..200"));
}

void TestSpectrum2DMouse::dragLeftStepsBack()
{
    PlotPage page;
    QVERIFY(page.Show());
    page.DrawLine(HundredSamples());
    page.plot->replot();
    page.Drag(page.PixelOf(20), page.PixelOf(80));
    const QCPRange first = page.X();
    page.Drag(page.PixelOf(30), page.PixelOf(50));
    QVERIFY(page.X().size() < first.size());
    page.Drag(page.PixelOf(45), page.PixelOf(35));
    QCOMPARE(Text(page.X()), Text(first));
    page.plot->xAxis->setRange(-50, 200);
    page.plot->yAxis->setRange(-500, 9000);
    page.plot->replot();
    // Back at the start the whole curve is shown, however far away the axes are.
    page.Drag(page.PixelOf(60), page.PixelOf(40));
    QCOMPARE(Text(page.X()), QString("0..100"));
    QCOMPARE(Text(page.Y()), QString("0..1250"));
    page.plot->xAxis->setRange(10, 20);
    page.plot->replot();
    page.Drag(QPoint(400, 100), QPoint(200, 100)); // there is no step left
    QCOMPARE(Text(page.X()), QString("0..100"));
}

GUARDED_TEST_MAIN(TestSpectrum2DMouse)
#include "tst_spectrum2dmouse.moc"
