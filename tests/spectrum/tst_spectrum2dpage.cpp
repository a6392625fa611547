// SPDX-License-Identifier: GPL-3.0-or-later
#include "customaxisticker.h"
#include "guardedtest.h"
#include "plotpage.h"
#include "spectrumzoomui.h"

#include <QMetaMethod>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

Q_DECLARE_METATYPE(QMargins)

namespace {

/// Keeps the ids that it is told.
class ToldPage : public Spectrum2DDrawFrameBase
{
public:
    using Spectrum2DDrawFrameBase::Spectrum2DDrawFrameBase;
    void UpdateObserver(int id, void *) override { ids << id; }

    QVector<int> ids;
};

} // namespace

class TestSpectrum2DPage : public GuardedTest
{
    Q_OBJECT

private slots:
    void methodsInOrder();
    void page_data();
    void page();
    void plot();
    void ticksBetweenTwoPixels();
    void zoomBar_data();
    void zoomBar();
    void trackScroll_data();
    void trackScroll();
    void trackScrollFollowsTheFlag();
    void scrollingShowsAFrameOfTheOpenPicture();
    void resizingShowsTheWholeCurve();
    void isToldNotifications();
    void notificationsChangeNothing();
    void newPropertiesRedraw();
};

void TestSpectrum2DPage::methodsInOrder()
{
    const QMetaObject &meta = Spectrum2DDrawFrameBase::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods << QString::fromLatin1(meta.method(i).methodSignature());
    QCOMPARE(methods, QStringList({ "sglUpdateCurve(void*)",
                                    "sglResetDisplayMode()",
                                    "SignalDisplayModeUpdate()",
                                    "SignalUpdateFVB(void*)",
                                    "SignalUpdateMultiTrack(void*)",
                                    "SlotUpdateCurve(void*)",
                                    "SlotDisplayModeUpdate()",
                                    "SlotUpdateFVB(void*)",
                                    "SlotUpdateMultiTrack(void*)",
                                    "SlotZoomIn()",
                                    "SlotZoomOut()",
                                    "SlotZoomReset()",
                                    "SlotHorizontalZoomIn()",
                                    "SlotHorizontalZoomOut()",
                                    "SlotUpdateResetFlag(bool)",
                                    "SlotMultitrackOnFlagChanged()",
                                    "SlotCustomPlotMousePress(QMouseEvent*)",
                                    "SlotCustomPlotMouseMove(QMouseEvent*)",
                                    "SlotCustomPlotMouseRelease(QMouseEvent*)",
                                    "SlotUpdateImageHorizontalCurve(int*,int,int,int)",
                                    "SlotUpdateImageVerticalCurve(int*,int,int,int)",
                                    "SlotScrollValueChanged(int)",
                                    "SlotSpectralPropertyChanged()",
                                    "SlotUpdateResetFlag()",
                                    "SlotUpdateLevels(int,int)",
                                    "SlotConversationFormulaChanged()" }));
}

void TestSpectrum2DPage::page_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<QMargins>("margins");
    QTest::addColumn<int>("scrollHeight");
    QTest::newRow("usual display") << 1.0 << QMargins(40, 10, 10, 10) << 20;
    QTest::newRow("large display") << 2.0 << QMargins(80, 20, 20, 20) << 40;
}

void TestSpectrum2DPage::page()
{
    QFETCH(double, scale);
    QFETCH(int, scrollHeight);
    DisplayScale displayScale(scale);
    FakeServices services;
    Spectrum2DDrawFrameBase page(nullptr);
    auto *column = qobject_cast<QVBoxLayout *>(page.layout());
    QVERIFY(column);
    QCOMPARE(column->spacing(), 0);
    QTEST(column->contentsMargins(), "margins");
    QCOMPARE(column->count(), 2);
    auto *plot = qobject_cast<QCustomPlot *>(column->itemAt(0)->widget());
    QVERIFY(plot);
    QCOMPARE(column->stretch(0), 1);
    auto *scroll = qobject_cast<QScrollBar *>(column->itemAt(1)->widget());
    QVERIFY(scroll);
    QCOMPARE(scroll->orientation(), Qt::Horizontal);
    QVERIFY(scroll->isHidden());
    QCOMPARE(scroll->minimumHeight(), scrollHeight);
    QCOMPARE(scroll->maximumHeight(), scrollHeight);
    QCOMPARE(plot->xAxis->labelFont().pixelSize(), int(12 * scale));
}

void TestSpectrum2DPage::plot()
{
    const QPen pen(Qt::green, 3, Qt::DashLine);
    PlotPage page([&](FakeServices &services) {
        services.spectrumUI.linePen = pen;
        services.spectrumUI.backgroundColor = QColor(10, 20, 30);
        services.spectrumUI.titleName = "Wavelength (nm)";
    });
    QCustomPlot *plot = page.plot;
    QCOMPARE(plot->graphCount(), 1);
    QCOMPARE(plot->graph(0)->pen(), pen);
    QVERIFY(page.Show());
    QCOMPARE(plot->toPixmap().toImage().pixelColor(1, 1), QColor(10, 20, 30));

    // The wheel zooms upwards only.
    QVERIFY(plot->interactions().testFlag(QCP::iRangeZoom));
    QCOMPARE(plot->axisRect()->rangeZoom(), Qt::Orientations(Qt::Vertical));
    page.DrawLine({ 0, 100, 0 });
    const QCPRange x = page.X();
    const QCPRange y = page.Y();
    const QPoint center = plot->axisRect()->center();
    QWheelEvent wheel(center, plot->mapToGlobal(center), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(plot, &wheel);
    QCOMPARE(Text(page.X()), Text(x));
    QVERIFY(page.Y().size() < y.size());

    QCOMPARE(plot->yAxis->numberFormat(), QString("gb"));
    QCOMPARE(plot->yAxis->numberPrecision(), 4);
    QCOMPARE(plot->xAxis->label(), QString("Wavelength (nm)"));
    QCOMPARE(plot->yAxis->label(), QString("Counts"));
    for (QCPAxis *axis : { plot->xAxis, plot->yAxis }) {
        for (const QFont &font : { axis->labelFont(), axis->tickLabelFont() }) {
            QCOMPARE(font.family(), QString("Segoe UI"));
            QCOMPARE(font.pixelSize(), 12);
        }
    }
    QVERIFY(plot->xAxis->ticker().dynamicCast<CustomAxisTicker>());
    QVERIFY(plot->xAxis->ticks() && plot->xAxis->tickLabels());
    QVERIFY(!plot->xAxis2->visible() && !plot->xAxis2->tickLabels());
    QVERIFY(!plot->yAxis2->visible());
}

void TestSpectrum2DPage::ticksBetweenTwoPixels()
{
    PlotPage page([](FakeServices &services) { services.spectrumUI.calibrationFactor = 0.1; });
    QVERIFY(page.Show());
    page.DrawLine(Values(10, 5));
    page.plot->xAxis->setRange(0.2, 0.8);
    page.plot->replot();
    QVERIFY2(page.plot->xAxis->tickVector().size() > 2, qPrintable(QString::number(page.plot->xAxis->tickVector().size())));
}

void TestSpectrum2DPage::zoomBar_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<QRect>("place");
    QTest::addColumn<QRect>("placeWhenHigher");
    QTest::newRow("usual display") << 1.0 << QRect(5, 185, 30, 205) << QRect(5, 385, 30, 205);
    QTest::newRow("large display") << 2.0 << QRect(5, -30, 60, 410) << QRect(5, 170, 60, 410);
}

void TestSpectrum2DPage::zoomBar()
{
    QFETCH(double, scale);
    PlotPage page;
    DisplayScale displayScale(scale);
    page.page = std::make_unique<Spectrum2DDrawFrameBase>(nullptr);
    page.page->resize(600, 400);
    page.plot = page.page->findChild<QCustomPlot *>();
    QVERIFY(page.Show());
    auto *bar = page.page->findChild<SpectrumZoomUI *>();
    QCOMPARE(bar->parentWidget(), page.page.get());
    QTEST(bar->geometry(), "place");
    QVERIFY(bar->findChild<QPushButton *>("pushButtonRescaleAuto")->isVisible());
    const QObjectList &children = page.page->children();
    QVERIFY(children.indexOf(bar) > children.indexOf(page.plot)); // above the plot
    page.page->resize(600, 600);
    QTRY_COMPARE(page.page->height(), 600);
    QTEST(bar->geometry(), "placeWhenHigher");
}

void TestSpectrum2DPage::trackScroll_data()
{
    QTest::addColumn<bool>("on");
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<int>("tracks");
    QTest::addColumn<int>("maximum");
    QTest::newRow("off") << false << true << 3 << 2;
    QTest::newRow("tracks") << true << true << 3 << 2;
    QTest::newRow("no track") << true << true << 0 << 0;
    QTest::newRow("many tracks") << true << true << 25 << 24;
    QTest::newRow("columns") << true << false << 3 << 10;
}

void TestSpectrum2DPage::trackScroll()
{
    QFETCH(bool, on);
    QFETCH(bool, horizontal);
    QFETCH(int, tracks);
    QFETCH(int, maximum);
    PlotPage page;
    auto *scroll = page.page->findChild<QScrollBar *>();
    scroll->setRange(0, 5);
    scroll->setValue(4);
    page.services.spectrumUI.multiTrackOnFlag = on;
    page.services.spectrumUI.directionHorinzontal = horizontal;
    for (int i = 0; i < tracks; ++i)
        page.services.spectrumUI.multiTrackList << QRectF(0, i, 10, 2); // each over half of the next
    page.page->SlotMultitrackOnFlagChanged();
    QCOMPARE(scroll->isVisibleTo(page.page.get()), on);
    QCOMPARE(scroll->minimum(), 0);
    QCOMPARE(scroll->maximum(), maximum);
    QCOMPARE(scroll->value(), 0);
}

void TestSpectrum2DPage::trackScrollFollowsTheFlag()
{
    PlotPage page([](FakeServices &services) { services.spectrumUI.multiTrackOnFlag = true; });
    QVERIFY(page.page->findChild<QScrollBar *>()->isVisibleTo(page.page.get()));
    page.services.spectrumUI.multiTrackOnFlag = false;
    page.page->SlotMultitrackOnFlagChanged();
    QVERIFY(!page.page->findChild<QScrollBar *>()->isVisibleTo(page.page.get()));
}

void TestSpectrum2DPage::scrollingShowsAFrameOfTheOpenPicture()
{
    PlotPage page;
    auto *scroll = page.page->findChild<QScrollBar *>();
    scroll->setRange(0, 5);
    scroll->setValue(3);
    QCOMPARE(CallLog::Calls(), QStringList());
    page.page->SetStaticMode(true);
    scroll->setValue(2);
    QCOMPARE(CallLog::Calls(), QStringList("ImageManager::SetImage(2)"));
    page.services.global.activeImageManager = nullptr;
    scroll->setValue(1);
    QCOMPARE(CallLog::Calls().size(), 1);
}

void TestSpectrum2DPage::resizingShowsTheWholeCurve()
{
    PlotPage page;
    QVERIFY(page.Show());
    page.DrawLine({ 0, 100, 50 });
    page.plot->xAxis->setRange(1, 1.5);
    page.plot->yAxis->setRange(60, 500);
    page.page->resize(650, 450);
    QTRY_COMPARE(page.page->width(), 650);
    QCOMPARE(Text(page.X()), QString("0..2"));
    QCOMPARE(Text(page.Y()), QString("0..500"));
}

void TestSpectrum2DPage::isToldNotifications()
{
    const FakeServices services;
    const ToldPage page(nullptr);
    GlobalNotifyObserver(NotifyFVBBandChanged, nullptr);
    QCOMPARE(page.ids, QVector<int>{ NotifyFVBBandChanged });
}

void TestSpectrum2DPage::notificationsChangeNothing()
{
    PlotPage page;
    page.DrawLine({ 0, 100, 50 });
    const QStringList before = CallLog::Calls();
    GlobalNotifyObserver(NotifyRefreshOverlays, nullptr);
    QCOMPARE(CallLog::Calls(), before);
    QCOMPARE(page.DrawnValues(), QVector<double>({ 0, 100, 50 }));
    page.page.reset(); // gone from the hub
    GlobalNotifyObserver(NotifyRefreshOverlays, nullptr);
}

void TestSpectrum2DPage::newPropertiesRedraw()
{
    PlotPage page;
    QVERIFY(page.Show());
    page.DrawLine({ 0, 100, 50 });
    page.plot->yAxis->setRange(0, 60);
    const QPen pen(Qt::magenta, 2, Qt::DotLine);
    page.services.spectrumUI.linePen = pen;
    page.services.spectrumUI.backgroundColor = QColor(40, 50, 60);
    page.page->SlotSpectralPropertyChanged();
    QCOMPARE(page.plot->graph(0)->pen(), pen);
    QCOMPARE(page.plot->toPixmap().toImage().pixelColor(1, 1), QColor(40, 50, 60));
    QCOMPARE(Text(page.Y()), QString("0..125")); // 100 and a fifth blank
}

GUARDED_TEST_MAIN(TestSpectrum2DPage)
#include "tst_spectrum2dpage.moc"
