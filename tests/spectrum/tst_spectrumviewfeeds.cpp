// SPDX-License-Identifier: GPL-3.0-or-later
#include "crossitem.h"
#include "drawareaitem.h"
#include "gradientcolorlayoutitem.h"
#include "guardedtest.h"
#include "intensitycurvehorizontal.h"
#include "intensitycurvevertical.h"
#include "plotpage.h"
#include "rulerbarhorizontal.h"
#include "rulerbarvertical.h"
#include "spectrumpage.h"

#include <QGraphicsScene>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <functional>
#include <limits>

namespace {

using PayloadChange = std::function<void(SpectrumCurvePayload &)>;

/// What the widget paints, on black.
QImage Painted(QWidget *item)
{
    QImage image(item->size(), QImage::Format_RGB32);
    image.fill(Qt::black);
    item->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

/// A page in Physics mode with a frame of 2048 x 512 at one screen pixel per two, and pixel levels as line colour.
class FedPage : public SpectrumPage
{
public:
    FedPage()
        : SpectrumPage(QSize(1164, 436), // 1024 x 256 for the image
                       [](FakeServices &services) {
                           services.frame.frameWidth = 2048;
                           services.frame.frameHeight = 512;
                           services.spectrumUI.displayModePhysics = true;
                           services.spectrumUI.lineColor = Qt::red;
                       })
        , row(Find<IntensityCurveHorizontal>())
        , column(Find<IntensityCurveVertical>())
    {
        ShowLive(QSize(2048, 512));
        CallLog::Clear();
    }

    /// The height at which the row's curve is drawn in this column of its widget; -1 without one.
    int RowAt(int x) const { return FirstRed(Painted(row), QPoint(x, 1), QPoint(0, 1)); }
    int ColumnAt(int y) const { return FirstRed(Painted(column), QPoint(1, y), QPoint(1, 0)); }
    QWidget *GrayRuler() const { return page->layout()->itemAt(1)->widget(); }
    QWidget *PixelRuler() const { return page->layout()->itemAt(4)->layout()->itemAt(0)->widget(); }
    CrossItem *Cross() const
    {
        for (QGraphicsItem *item : view->scene()->items()) {
            if (auto *cross = dynamic_cast<CrossItem *>(item))
                return cross;
        }
        return nullptr;
    }
    DrawAreaItem *Area() const
    {
        for (QGraphicsItem *item : view->scene()->items()) {
            if (auto *area = dynamic_cast<DrawAreaItem *>(item))
                return area;
        }
        return nullptr;
    }

    IntensityCurveHorizontal *row;
    IntensityCurveVertical *column;

private:
    static int FirstRed(const QImage &image, QPoint pos, const QPoint &step)
    {
        for (int way = 1; image.rect().contains(pos); pos += step, ++way) {
            if (image.pixelColor(pos) == QColor(Qt::red))
                return way;
        }
        return -1;
    }
};

/// A row whose samples are 100 from `from` to `to` and 0 elsewhere.
std::vector<int> Bump(int size, int from, int to)
{
    std::vector<int> samples(size_t(size), 0);
    std::fill(samples.begin() + from, samples.begin() + to, 100);
    return samples;
}

} // namespace

Q_DECLARE_METATYPE(PayloadChange)

/// What the spectrum page is fed with, and what it hands on.
class TestSpectrumViewFeeds : public GuardedTest
{
    Q_OBJECT

private slots:
    void pickedPoint();
    void pickedPointOfAStillPicture();
    void pointsThatAreNoNumbers();
    void dragShowsARectangle();
    void dragThatNeverBegan();
    void pageGoesDuringADrag();
    void anchorReachesBothCurves();
    void profilesOfTheRegion();
    void profilesNeedPhysicsMode();
    void profilesThatDoNotFit_data();
    void profilesThatDoNotFit();
    void levelsOfProfilesShowOnTheGrayRuler();
    void shiftOfProfiles_data();
    void shiftOfProfiles();
    void profilesWithoutACamera();
    void imageCurves();
    void imageCurvesThatDoNotFit();
    void imageCurvesWithoutAPicture();
    void levelUpdate();
    void paletteReachesTheBar();
    void linePen_data();
    void linePen();
    void titleAndArea();
    void ranges();
    void rulersCountInThePicture();
};

void TestSpectrumViewFeeds::pickedPoint()
{
    FedPage p;
    p.page->SlotPressPosChange(QPointF(300.9, 99.99), QRectF(0.1, 0.2, 0.8, 0.9));
    QCOMPARE(CallLog::Calls(), QStringList("IntensityManager::SetAnchorPoint(300, 99, (0.1, 0.2, 0.8, 0.9))"));
    QCOMPARE(p.Cross()->center, QPointF(300.9, 99.99));
    QVERIFY(p.Cross()->isVisible());
    QCOMPARE(p.page->GetLastRect(), QRectF(0.1, 0.2, 0.8, 0.9));
    p.Cross()->setVisible(false);
    p.page->SlotPressPosChange(QPointF(-0.9, 12), QRectF(0, 0, 1, 1));
    QCOMPARE(p.Cross()->previousCenter, QPointF(300.9, 99.99));
    QVERIFY(p.Cross()->isVisible());
    QCOMPARE(CallLog::Calls().last(), QString("IntensityManager::SetAnchorPoint(0, 12, (0, 0, 1, 1))"));
}

void TestSpectrumViewFeeds::pickedPointOfAStillPicture()
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

void TestSpectrumViewFeeds::pointsThatAreNoNumbers()
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
    QCOMPARE(CallLog::Calls(), QStringList("IntensityManager::SetAnchorPoint(2147483647, -2147483648, (0, 0, 1, 1))"));
}

void TestSpectrumViewFeeds::dragShowsARectangle()
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

void TestSpectrumViewFeeds::dragThatNeverBegan()
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

void TestSpectrumViewFeeds::pageGoesDuringADrag()
{
    FakeServices services;
    auto page = std::make_unique<SpectrumView>(nullptr);
    page->SlotDrawArea(QPointF(100, 100), true, true);
    page->SlotDrawArea(QPointF(200, 200), false, false);
    QPointer<QGraphicsScene> scene = page->GetDrawView()->scene();
    page.reset();
    QVERIFY(!scene);
}

void TestSpectrumViewFeeds::anchorReachesBothCurves()
{
    FedPage p;
    emit p.view->SignalAnchorPosChange(QPointF(100, 60));
    QCOMPARE(Painted(p.row).pixelColor(100, 20), QColor(Qt::white));
    QCOMPARE(Painted(p.column).pixelColor(20, 60), QColor(Qt::white));
    QVERIFY(Painted(p.row).pixelColor(512, 20) != QColor(Qt::white));
}

void TestSpectrumViewFeeds::profilesOfTheRegion()
{
    FedPage p;
    // Of the row the part from 512 to 1536 fills the curve of 1024 pixels, one sample a pixel.
    CurvePayload payload(Bump(2048, 612, 712), Bump(512, 0, 128));
    payload.record.region = QRectF(0.25, 0.0, 0.75, 1.0);
    payload.record.rightLevel = 100;
    p.page->SlotUpdateCurve(payload.Param());
    QCOMPARE(payload.record.horizontalShow, payload.row.data());
    QCOMPARE(payload.record.verticalShow, payload.column.data());
    QCOMPARE(p.RowAt(50), 48);  // the baseline
    QCOMPARE(p.RowAt(150), 2);  // 100 of 100
    QCOMPARE(p.RowAt(250), 48);
    QCOMPARE(p.ColumnAt(30), 47); // the upper quarter of the column
    QCOMPARE(p.ColumnAt(120), 1);
}

void TestSpectrumViewFeeds::profilesNeedPhysicsMode()
{
    FedPage p;
    p.services.spectrumUI.displayModePhysics = false;
    CurvePayload payload(Bump(2048, 0, 2048), Bump(512, 0, 512));
    payload.record.region = QRectF(0, 0, 1, 1);
    payload.record.rightLevel = 100;
    p.page->SlotUpdateCurve(payload.Param());
    QCOMPARE(payload.record.horizontalShow, payload.oldRow.data());
    QCOMPARE(p.RowAt(150), -1);
    p.page->SlotUpdateCurve(nullptr);
}

void TestSpectrumViewFeeds::profilesThatDoNotFit_data()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::addColumn<PayloadChange>("change");
    QTest::newRow("row too long") << PayloadChange([](SpectrumCurvePayload &payload) { payload.horizontalSize = 4096; });
    QTest::newRow("row too short") << PayloadChange([](SpectrumCurvePayload &payload) { payload.horizontalSize = 100; });
    QTest::newRow("column below 0") << PayloadChange([](SpectrumCurvePayload &payload) { payload.verticalSize = -1; });
    QTest::newRow("no row") << PayloadChange([](SpectrumCurvePayload &payload) { payload.horizontalFill = nullptr; });
    QTest::newRow("no lock") << PayloadChange([](SpectrumCurvePayload &payload) { payload.lock = nullptr; });
    QTest::newRow("region below 0") << PayloadChange([](SpectrumCurvePayload &payload) { payload.region.setX(-0.5); });
    QTest::newRow("region above 1") << PayloadChange([](SpectrumCurvePayload &payload) { payload.region = QRectF(0, 0, 1.5, 1); });
    QTest::newRow("no number") << PayloadChange([nan](SpectrumCurvePayload &payload) { payload.region = QRectF(nan, 0, 1, 1); });
}

void TestSpectrumViewFeeds::profilesThatDoNotFit()
{
    QFETCH(PayloadChange, change);
    FedPage p;
    CurvePayload good(Bump(2048, 0, 2048), Bump(512, 0, 512));
    good.record.region = QRectF(0, 0, 1, 1);
    good.record.rightLevel = 100;
    p.page->SlotUpdateCurve(good.Param());
    const QImage before = p.page->grab().toImage();
    CurvePayload bad(Bump(2048, 0, 1), Bump(512, 0, 1));
    bad.record.region = QRectF(0, 0, 1, 1);
    bad.record.rightLevel = 7;
    change(bad.record);
    p.page->SlotUpdateCurve(bad.Param());
    QCOMPARE(p.page->grab().toImage(), before); // the picture stays
}

void TestSpectrumViewFeeds::levelsOfProfilesShowOnTheGrayRuler()
{
    FedPage p;
    QVERIFY(p.Show());
    const QImage before = Painted(p.GrayRuler());
    CurvePayload payload(Bump(2048, 0, 1), Bump(512, 0, 1));
    payload.record.region = QRectF(0, 0, 1, 1);
    payload.record.leftLevel = 0;
    payload.record.rightLevel = 255; // as it is born
    p.page->SlotUpdateCurve(payload.Param());
    QCOMPARE(Painted(p.GrayRuler()), before);
    payload.record.rightLevel = 65535;
    p.page->SlotUpdateCurve(payload.Param());
    QVERIFY(Painted(p.GrayRuler()) != before);
    // A frame later than a refit: the ruler's place is still its own.
    QCOMPARE(p.GrayRuler()->geometry(), QRect(15, 25, 1134, 40));
}

void TestSpectrumViewFeeds::shiftOfProfiles_data()
{
    QTest::addColumn<int>("bitDepth");
    QTest::addColumn<int>("shift");
    QTest::newRow("8 bits") << 8 << 0;
    QTest::newRow("12 bits") << 12 << 4;
    QTest::newRow("16 bits") << 16 << 8;
    QTest::newRow("fewer than 8") << 1 << 0;
}

void TestSpectrumViewFeeds::shiftOfProfiles()
{
    QFETCH(int, bitDepth);
    FedPage p;
    p.camera.bitDepth = bitDepth;
    CurvePayload payload(Bump(2048, 0, 2048), Bump(512, 0, 512));
    payload.record.region = QRectF(0, 0, 1, 1);
    payload.record.rightLevel = 200;
    p.page->SlotUpdateCurve(payload.Param());
    QTEST(p.row->GetShift(), "shift");
    QTEST(p.column->GetShift(), "shift");
    QCOMPARE(p.RowAt(150), 25); // whatever the shift
}

void TestSpectrumViewFeeds::profilesWithoutACamera()
{
    FakeServices services;
    services.frame.frameWidth = services.frame.frameHeight = 1;
    services.spectrumUI.displayModePhysics = true;
    SpectrumView page(nullptr);
    CurvePayload payload({ 7 }, { 7 });
    payload.record.region = QRectF(0, 0, 1, 1);
    page.SlotUpdateCurve(payload.Param());
    QCOMPARE(page.findChild<IntensityCurveHorizontal *>()->GetShift(), 0);
}

void TestSpectrumViewFeeds::imageCurves()
{
    FedPage p;
    for (int depth : { 1, 2, 4 }) {
        p.services.imageCore.depth = depth;
        p.services.imageCore.leftLevel = 0;
        p.services.imageCore.rightLevel = 100;
        std::vector<int> row = Bump(2048, 612, 712);
        p.page->SlotUpdateHorizontalCurve(row.data(), 2048, 512, 1024);
        QCOMPARE(p.RowAt(50), 48);
        QCOMPARE(p.RowAt(150), 2);
        std::vector<int> column = Bump(512, 0, 128);
        p.page->SlotUpdateVerticalCurve(column.data(), 512, 0, 512);
        QCOMPARE(p.ColumnAt(30), 47);
        QCOMPARE(p.row->GetShift(), depth == 2 ? 8 : 0);
        QCOMPARE(p.column->GetShift(), depth == 2 ? 8 : 0);
        p.services.imageCore.rightLevel = 200; // with the next samples
        p.page->SlotUpdateVerticalCurve(column.data(), 512, 0, 512);
        QCOMPARE(p.ColumnAt(30), 24);
    }
}

void TestSpectrumViewFeeds::imageCurvesThatDoNotFit()
{
    FedPage p;
    p.services.imageCore.rightLevel = 100;
    std::vector<int> row = Bump(100, 0, 100);
    p.page->SlotUpdateHorizontalCurve(row.data(), 100, 90, 20);
    p.page->SlotUpdateHorizontalCurve(row.data(), 100, -1, 20);
    p.page->SlotUpdateHorizontalCurve(nullptr, 100, 0, 20);
    p.page->SlotUpdateVerticalCurve(row.data(), 0, 0, 0);
    QCOMPARE(p.RowAt(150), -1);
    p.page->SlotUpdateHorizontalCurve(row.data(), 100, 90, 10);
    QCOMPARE(p.RowAt(150), 2);
}

void TestSpectrumViewFeeds::imageCurvesWithoutAPicture()
{
    FedPage p;
    std::vector<int> row = Bump(100, 0, 100);
    p.services.mainImage.imageCore = nullptr;
    p.page->SlotUpdateHorizontalCurve(row.data(), 100, 0, 100);
    p.services.global.activeImageManager = nullptr;
    p.page->SlotUpdateVerticalCurve(row.data(), 100, 0, 100);
    p.page->SlotPressPosChangeStatic(QPointF(3, 4), QRectF(0, 0, 1, 1), true);
    p.page->SetStaticMode(true);
    p.page->SlotSpectrumUIChange();
    QCOMPARE(p.RowAt(50), -1);
    QCOMPARE(p.ColumnAt(50), -1);
}

void TestSpectrumViewFeeds::levelUpdate()
{
    FedPage p;
    const QImage before = Painted(p.GrayRuler());
    p.page->SlotUpdateLevel(100, 4000);
    QVERIFY(Painted(p.GrayRuler()) != before);
    p.page->SlotUpdateLevel(0, 255);
    QCOMPARE(Painted(p.GrayRuler()), before);
}

void TestSpectrumViewFeeds::paletteReachesTheBar()
{
    FedPage p;
    auto *bar = p.Find<GradientColorLayoutItem>();
    QSignalSpy changed(bar, SIGNAL(changeColors(QVector<QColor>)));
    QVector<QColor> colors;
    for (int level = 0; level < 256; ++level)
        colors << QColor(level, 0, 255 - level);
    p.page->SlotPseudoColorsChanged(colors);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(Painted(bar).pixelColor(5, 5), QColor(0, 0, 255));
    p.page->SlotPseudoColorsChanged({}); // an empty palette paints no cell
    QCOMPARE(Painted(bar).pixelColor(5, 5), QColor(Qt::black));
}

void TestSpectrumViewFeeds::linePen_data()
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

void TestSpectrumViewFeeds::linePen()
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
                count += image.pixelColor(horizontal ? place : across, horizontal ? across : place) == QColor(Qt::green);
            thickest = qMax(thickest, count);
            empty += count == 0 ? 1 : 0;
        }
        QCOMPARE(thickest, thickness);
        QCOMPARE(empty > 2, gaps); // the anchor covers a pixel
    }
}

void TestSpectrumViewFeeds::titleAndArea()
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

void TestSpectrumViewFeeds::ranges()
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

/// A page that was made before the first frame counts as one made after it.
void TestSpectrumViewFeeds::rulersCountInThePicture()
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
    QVERIFY(expected.pixelColor(50, 2) == QColor(Qt::white) && expected.pixelColor(50, 5) != QColor(Qt::white));
}

GUARDED_TEST_MAIN(TestSpectrumViewFeeds)
#include "tst_spectrumviewfeeds.moc"
