// SPDX-License-Identifier: GPL-3.0-or-later
#include "fedpage.h"
#include "guardedtest.h"

#include <limits>

/// Picked points, drags and settings of the spectrum page, and what it hands on of them.
class TestSpectrumViewPicks : public GuardedTest
{
    Q_OBJECT

private slots:
    void pickedPoint();
    void pickedPointOfAStillPicture();
    void pointsThatAreNoNumbers();
    void dragShowsARectangle();
    void dragThatNeverBegan();
    void pageGoesDuringADrag();
    void pageIsHiddenDuringADrag_data();
    void pageIsHiddenDuringADrag();
    void anchorReachesBothCurves();
    void linePen_data();
    void linePen();
    void titleAndArea();
    void ranges();
    void rulersBeginWithTheHeight();
    void rulersCountInThePicture();
};

void TestSpectrumViewPicks::pickedPoint()
{
    FedPage p;
    p.page->SlotPressPosChange(QPointF(300.9, 99.99), QRectF(0.1, 0.2, 0.8, 0.9));
    QCOMPARE(CallLog::Calls(),
             QStringList("IntensityManager::SetAnchorPoint(300, 99, (0.1, 0.2, 0.8, 0.9))"));
    QCOMPARE(p.Cross()->center, QPointF(300.9, 99.99));
    QVERIFY(p.Cross()->isVisible());
    QCOMPARE(p.page->GetLastRect(), QRectF(0.1, 0.2, 0.8, 0.9));
    p.Cross()->setVisible(false);
    p.page->SlotPressPosChange(QPointF(-0.9, 12), QRectF(0, 0, 1, 1));
    QCOMPARE(p.Cross()->previousCenter, QPointF(300.9, 99.99));
    QVERIFY(p.Cross()->isVisible());
    QCOMPARE(CallLog::Calls().last(), QString("IntensityManager::SetAnchorPoint(0, 12, (0, 0, 1, 1))"));
}

void TestSpectrumViewPicks::pickedPointOfAStillPicture()
{
    FedPage p;
    p.page->SlotPressPosChangeStatic(QPointF(300.5, 99), QRectF(0, 0, 1, 1), false);
    QCOMPARE(CallLog::Calls(), QStringList());
    QCOMPARE(p.Cross()->center, QPointF(300.5, 99));
    p.page->SlotPressPosChangeStatic(QPointF(10, 20), QRectF(0.1, 0, 0.5, 1), true);
    QCOMPARE(CallLog::Calls(),
             QStringList("ImageManager::GetIntensityCurveHistogramData((10, 20), (0.1, 0, 0.5, 1), 0)"));
    QCOMPARE(p.Cross()->previousCenter, QPointF(300.5, 99));
    QCOMPARE(p.page->GetLastRect(), QRectF(0.1, 0, 0.5, 1));
    QVERIFY(DebugLines().contains("center point:[300.500000, 99.000000]"));
}

void TestSpectrumViewPicks::pointsThatAreNoNumbers()
{
    FedPage p;
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    p.page->SlotPressPosChange(QPointF(5, 6), QRectF(0, 0, 1, 1));
    CallLog::Clear();
    p.page->SlotPressPosChange(QPointF(nan, 6), QRectF(0, 0, 1, 1));
    p.page->SlotPressPosChange(QPointF(5, -inf), QRectF(0, 0, 1, 1));
    p.page->SlotPressPosChangeStatic(QPointF(nan, nan), QRectF(0, 0, 1, 1), true);
    QCOMPARE(CallLog::Calls(), QStringList());
    QCOMPARE(p.Cross()->center, QPointF(5, 6));
    // As far away as an int goes.
    p.page->SlotPressPosChange(QPointF(1e300, -1e300), QRectF(0, 0, 1, 1));
    QCOMPARE(CallLog::Calls(),
             QStringList("IntensityManager::SetAnchorPoint(2147483647, -2147483648, (0, 0, 1, 1))"));
}

void TestSpectrumViewPicks::dragShowsARectangle()
{
    FedPage p;
    p.page->SlotDrawArea(QPointF(100, 100), true, true);
    QVERIFY(p.Area());
    QImage image = p.view->grab().toImage();
    p.page->SlotDrawArea(QPointF(500, 300), false, false);
    image = p.view->grab().toImage();
    // One screen pixel for two of the picture.
    QCOMPARE(image.pixelColor(150, 50), QColor(Qt::white));
    QCOMPARE(image.pixelColor(250, 100), QColor(Qt::white));
    QVERIFY(image.pixelColor(150, 100) != QColor(Qt::white));
    p.page->SlotDrawArea(QPointF(500, 300), true, false);
    QVERIFY(!p.Area());
    QVERIFY(p.view->grab().toImage().pixelColor(250, 100) != QColor(Qt::white));
    // The next press makes a fresh one.
    p.page->SlotDrawArea(QPointF(20, 20), true, true);
    QVERIFY(p.Area());
    p.page->SlotDrawArea(QPointF(40, 40), true, true); // and without a release before it there is still one
    QCOMPARE(p.view->scene()->items().size(), 2);
}

void TestSpectrumViewPicks::dragThatNeverBegan()
{
    FedPage p;
    p.page->SlotDrawArea(QPointF(100, 100), false, false);
    p.page->SlotDrawArea(QPointF(100, 100), true, false);
    QVERIFY(!p.Area());
    p.page->SlotDrawArea(QPointF(100, 100), true, true);
    p.page->SlotDrawArea(QPointF(100, 100), true, false);
    p.page->SlotDrawArea(QPointF(120, 120), false, false); // after the release
    p.page->SlotDrawArea(QPointF(120, 120), true, false);
    QVERIFY(!p.Area());
}

void TestSpectrumViewPicks::pageGoesDuringADrag()
{
    FakeServices services;
    auto page = std::make_unique<SpectrumView>(nullptr);
    page->SlotDrawArea(QPointF(100, 100), true, true);
    page->SlotDrawArea(QPointF(200, 200), false, false);
    QPointer<QGraphicsScene> scene = page->GetDrawView()->scene();
    page.reset();
    QVERIFY(!scene);
}

void TestSpectrumViewPicks::pageIsHiddenDuringADrag_data()
{
    QTest::addColumn<bool>("closed");
    QTest::newRow("another page is shown") << false;
    QTest::newRow("the picture is closed") << true;
}

/// The release goes nowhere.
void TestSpectrumViewPicks::pageIsHiddenDuringADrag()
{
    QFETCH(bool, closed);
    FedPage p;
    QVERIFY(p.Show());
    p.Press(QPointF(100, 50));
    p.Move(QPointF(250, 150));
    QVERIFY(p.Area());
    if (closed) {
        p.page->slotResetImageInfo();
        p.view->slotResetImageInfo();
        p.ShowLive(QSize(2048, 512));
    } else {
        p.page->hide();
        p.page->show();
    }
    QVERIFY(!p.Area());
    QVERIFY(p.view->isVisible());
    p.LogSignals();
    p.Move(QPointF(300, 180)); // the button is not known to be held
    p.Release(QPointF(300, 180));
    QCOMPARE(p.TakeSignals("SignalNewRect"), QStringList());
    QVERIFY(!p.Area());
}

void TestSpectrumViewPicks::anchorReachesBothCurves()
{
    FedPage p;
    emit p.view->SignalAnchorPosChange(QPointF(100, 60));
    QCOMPARE(Painted(p.row).pixelColor(100, 20), QColor(Qt::white));
    QCOMPARE(Painted(p.column).pixelColor(20, 60), QColor(Qt::white));
    QVERIFY(Painted(p.row).pixelColor(512, 20) != QColor(Qt::white));
}

void TestSpectrumViewPicks::linePen_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("thickness");
    QTest::addColumn<bool>("gaps");
    QTest::newRow("0.6, solid") << 0.6 << 0 << 1 << false;
    QTest::newRow("0, solid") << 0.0 << 0 << 1 << false;
    QTest::newRow("below 0") << -3.0 << 0 << 1 << false;
    QTest::newRow("3.9, solid") << 3.9 << 0 << 3 << false;
    QTest::newRow("1, dashed") << 1.0 << 1 << 1 << true;
    QTest::newRow("1, dotted") << 1.0 << 2 << 1 << true;
}

void TestSpectrumViewPicks::linePen()
{
    QFETCH(double, width);
    QFETCH(int, style);
    QFETCH(int, thickness);
    QFETCH(bool, gaps);
    FedPage p;
    p.services.imageCore.rightLevel = 200;
    std::vector<int> row = Bump(1, 0, 1);
    p.page->SlotUpdateHorizontalCurve(row.data(), 1, 0, 1); // a level line in the middle of the curve
    p.page->SlotUpdateVerticalCurve(row.data(), 1, 0, 1);
    p.services.spectrumUI.lineColor = Qt::green;
    p.services.spectrumUI.lineWidth = width;
    p.services.spectrumUI.lineStyle = style;
    p.page->SlotSpectralPropertyChanged();
    for (bool horizontal : { true, false }) {
        const QImage image = horizontal ? Painted(p.row) : Painted(p.column);
        const int along = horizontal ? image.width() : image.height();
        int thickest = 0;
        int empty = 0;
        for (int place = 5; place < along - 5; ++place) {
            int count = 0;
            for (int across = 2; across < 47; ++across)
                count += image.pixelColor(horizontal ? place : across, horizontal ? across : place)
                         == QColor(Qt::green);
            thickest = qMax(thickest, count);
            empty += count == 0 ? 1 : 0;
        }
        QCOMPARE(thickest, thickness);
        QCOMPARE(empty > 2, gaps); // the anchor covers a pixel
    }
}

void TestSpectrumViewPicks::titleAndArea()
{
    FedPage p;
    const QImage pixelsBefore = Painted(p.PixelRuler());
    const QImage rowsBefore = Painted(p.Find<RulerBarVertical>());
    p.services.spectrumUI.titleName = "Wavelength (nm)";
    emit p.services.spectrumUI.signalDisplayModeChange();
    QCOMPARE(CallLog::Calls(), QStringList("DisplayModeUIManager::CalculatePreviewArea()"));
    QVERIFY(Painted(p.PixelRuler()) != pixelsBefore);
    QVERIFY(Painted(p.Find<RulerBarVertical>()) != rowsBefore);
    CallLog::Clear();
    p.page->SetStaticMode(true);
    emit p.services.spectrumUI.signalDisplayModePropertyChange();
    QCOMPARE(CallLog::Calls(), QStringList("SpectrumUIManager::CalculateImageArea()"));
}

void TestSpectrumViewPicks::ranges()
{
    FedPage p;
    FakeDisplayModeManager live;
    FakeDisplayModeManager image;
    p.page->ConnectLiveRanges(nullptr);
    p.page->ConnectLiveRanges(&live);
    p.page->ConnectImageRanges(&image);
    QWidget *rulers[] = { p.PixelRuler(), p.Find<RulerBarVertical>() };
    const auto paint = [&rulers] { return QVector<QImage>{ Painted(rulers[0]), Painted(rulers[1]) }; };
    QVector<QImage> before = paint();
    emit live.SignalChangeHShowValueRange(200, 900);
    QVector<QImage> after = paint();
    QVERIFY(after.at(0) != before.at(0));
    QCOMPARE(after.at(1), before.at(1));
    emit live.SignalChangeVShowValueRange(7, 77);
    QVERIFY(paint().at(1) != before.at(1));
    emit live.SignalImageChangeHShowValueRange(1, 10000);
    QCOMPARE(paint().at(0), after.at(0));
    emit image.SignalImageChangeHShowValueRange(1, 10000);
    QVERIFY(paint().at(0) != after.at(0));
    before = paint();
    emit image.SignalImageChangeVShowValueRange(1, 10000);
    QVERIFY(paint().at(1) != before.at(1));
}

/// The columns' ruler too: its first range ends with the height.
void TestSpectrumViewPicks::rulersBeginWithTheHeight()
{
    FedPage p;
    const QImage columns = Painted(p.PixelRuler());
    const QImage rows = Painted(p.Find<RulerBarVertical>());
    FakeDisplayModeManager sender;
    p.page->ConnectLiveRanges(&sender);
    emit sender.SignalChangeHShowValueRange(0, 512);
    emit sender.SignalChangeVShowValueRange(0, 512);
    QCOMPARE(Painted(p.PixelRuler()), columns);
    QCOMPARE(Painted(p.Find<RulerBarVertical>()), rows);
    emit sender.SignalChangeHShowValueRange(0, 2048);
    QVERIFY(Painted(p.PixelRuler()) != columns);
}

/// A page that was made before the first frame counts as one made after it.
void TestSpectrumViewPicks::rulersCountInThePicture()
{
    const auto painted = [](SpectrumPage *p) {
        p->ShowLive(QSize(2048, 512));
        FakeDisplayModeManager sender;
        p->page->ConnectLiveRanges(&sender);
        emit sender.SignalChangeHShowValueRange(0, 2048);
        emit sender.SignalChangeVShowValueRange(0, 512);
        return QVector<QImage>{ Painted(p->page->layout()->itemAt(4)->layout()->itemAt(0)->widget()),
                                Painted(p->Find<RulerBarVertical>()) };
    };
    QVector<QImage> early;
    {
        SpectrumPage p(QSize(1164, 436));
        early = painted(&p);
    }
    FedPage late;
    QCOMPARE(early, painted(&late));
    const QImage &expected = early.first();
    QCOMPARE(expected.size(), QSize(1024, 50));
    // Long ticks at 0, 500, 1000, 1500 and 2000 of 2048, on half as many screen pixels.
    for (int x : { 0, 250, 500, 750, 1000 })
        QCOMPARE(expected.pixelColor(x, 5), QColor(Qt::white));
    QVERIFY(expected.pixelColor(50, 2) == QColor(Qt::white)
            && expected.pixelColor(50, 5) != QColor(Qt::white));
}

GUARDED_TEST_MAIN(TestSpectrumViewPicks)
#include "tst_spectrumviewpicks.moc"
