// SPDX-License-Identifier: GPL-3.0-or-later
#include "displayscale.h"
#include "guardedtest.h"
#include "spectrumplacement.h"
#include "spectrumzoomhistory.h"

#include <QRandomGenerator>

#include <cmath>

namespace {

constexpr QSize FreeSpace(600, 400);

QString Text(const PictureRange &range)
{
    return QString("%1..%2, %3..%4").arg(range.xmin).arg(range.xmax).arg(range.ymin).arg(range.ymax);
}

bool IsNear(double a, double b, double distance) { return std::abs(a - b) <= distance; }

} // namespace

class TestSpectrumPlacement : public GuardedTest
{
    Q_OBJECT

private slots:
    void margins_data();
    void margins();
    void fit_data();
    void fit();
    void fittedLevelShowsTheWhole();
    void singleLevelThatIsNotTheWhole();
    void zoomedLevel_data();
    void zoomedLevel();
    void wholePixelsOfTheTarget();
    void randomZoomsStayInTheirRectangle();
    void normalisedRectHoldsRightAndBottom();
    void anchorOfFit_data();
    void anchorOfFit();
    void nearestInPicture();
};

void TestSpectrumPlacement::margins_data()
{
    QTest::addColumn<double>("displayScale");
    QTest::addColumn<bool>("axis");
    QTest::addColumn<bool>("curve");
    QTest::addColumn<bool>("colorCard");
    QTest::addColumn<QSize>("margins");
    QTest::newRow("all") << 1.0 << true << true << true << QSize(140, 180);
    QTest::newRow("no axes") << 1.0 << false << true << true << QSize(80, 130);
    QTest::newRow("no curves") << 1.0 << true << false << true << QSize(90, 130);
    QTest::newRow("no colour card") << 1.0 << true << true << false << QSize(140, 125);
    QTest::newRow("none") << 1.0 << false << false << false << QSize(30, 25);
    QTest::newRow("all, large display") << 1.5 << true << true << true << QSize(210, 270);
    QTest::newRow("none, large display") << 2.0 << false << false << false << QSize(60, 50);
}

void TestSpectrumPlacement::margins()
{
    QFETCH(double, displayScale);
    QFETCH(bool, axis);
    QFETCH(bool, curve);
    QFETCH(bool, colorCard);
    const DisplayScale scale(displayScale);
    QTEST(ComputeSpectrumMargins(axis, curve, colorCard), "margins");
}

void TestSpectrumPlacement::fit_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<float>("scale");
    QTest::addColumn<QSize>("viewSize");
    QTest::newRow("wide") << QSize(1200, 400) << 0.5F << QSize(600, 200);
    QTest::newRow("tall") << QSize(300, 1600) << 0.25F << QSize(75, 400);
    QTest::newRow("small") << QSize(60, 10) << 10.0F << QSize(600, 100);
    QTest::newRow("cut to whole pixels") << QSize(700, 467) << 400.0F / 467.0F << QSize(599, 400);
    QTest::newRow("at least one row") << QSize(6000, 4) << 0.1F << QSize(600, 1);
    QTest::newRow("at least one column") << QSize(4, 6000) << 400.0F / 6000.0F << QSize(1, 400);
}

void TestSpectrumPlacement::fit()
{
    QFETCH(QSize, picture);
    const FittedPicture fitted = FitPicture(picture, FreeSpace);
    QTEST(fitted.scale, "scale");
    QTEST(fitted.viewSize, "viewSize");
    QCOMPARE(fitted.shown, fitted.viewSize);
    // A picture of one row is still one pixel high where there is less.
    QCOMPARE(FitPicture(QSize(6000, 4), QSize(600, 1)).shown, QSize(600, 1));
}

/// Twice as far as its centre, which is the whole picture.
void TestSpectrumPlacement::fittedLevelShowsTheWhole()
{
    const QSize picture(1200, 400);
    const ZoomState fitted{ 0.5F, QPointF(600, 200), QRectF(0, 0, 1200, 400) };
    for (int levels : { 0, 1, 2 }) {
        const PlacedPicture placed = PlacePicture(fitted.rect, fitted, levels, picture, FreeSpace);
        QCOMPARE(placed.shown, QSize(600, 200));
        QCOMPARE(placed.viewSize, QSize(600, 200));
        QCOMPARE(placed.scroll, QPointF(0, 0));
        QCOMPARE(Text(placed.visible), QString("0..1200, 0..400"));
        QCOMPARE(placed.pictureCentre, QPointF(600, 200));
    }
    // With a centre that is remembered from another picture all of it is still seen.
    const ZoomState other{ 0.5F, QPointF(100, 50), fitted.rect };
    QCOMPARE(Text(PlacePicture(fitted.rect, other, 1, picture, FreeSpace).visible),
             QString("0..1200, 0..400"));
    // Cut to whole pixels of the screen it stays the whole picture.
    const ZoomState cut{ 400.0F / 467.0F, QPointF(350, 233.5), QRectF(0, 0, 700, 467) };
    QCOMPARE(Text(PlacePicture(cut.rect, cut, 1, QSize(700, 467), FreeSpace).visible),
             QString("0..700, 0..467"));
}

/// One that was stepped back to reports what is seen of it.
void TestSpectrumPlacement::singleLevelThatIsNotTheWhole()
{
    const QSize picture(1200, 400);
    const QRectF rect(100, 50, 300, 200);
    const PlacedPicture placed =
        PlacePicture(QRectF(0, 0, 1200, 400), { 2.0F, rect.center(), rect }, 1, picture, FreeSpace);
    QCOMPARE(placed.shown, FreeSpace);
    QCOMPARE(placed.scroll, QPointF(200, 100));
    QCOMPARE(Text(placed.visible), QString("100..400, 50..250"));
}

void TestSpectrumPlacement::zoomedLevel_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<float>("scale");
    QTest::addColumn<QSize>("shown");
    QTest::addColumn<QPointF>("scroll");
    QTest::addColumn<QString>("visible");
    QTest::newRow("of the space's shape")
        << QRectF(200, 100, 300, 200) << 2.0F << QSize(600, 400) << QPointF(400, 200) << "200..500, 100..300";
    // The larger scale: 100 rows fill the height, so 150 of the 300 columns are seen.
    QTest::newRow("wide") << QRectF(200, 100, 300, 100) << 4.0F << QSize(600, 400) << QPointF(1100, 400)
                          << "275..425, 100..200";
    // 2 x 2 pixels at the largest scale do not fill the space; what lies around them does.
    QTest::newRow("tiny") << QRectF(600, 200, 2, 2) << 32.0F << QSize(600, 400) << QPointF(18932, 6232)
                          << "591.625..610.375, 194.75..207.25";
    QTest::newRow("tiny, in the corner")
        << QRectF(0, 0, 2, 2) << 32.0F << QSize(600, 400) << QPointF(-268, -168) << "0..18.75, 0..12.5";
    QTest::newRow("tiny, in the far corner") << QRectF(1198, 398, 2, 2) << 32.0F << QSize(600, 400)
                                             << QPointF(38068, 12568) << "1181.25..1200, 387.5..400";
}

void TestSpectrumPlacement::zoomedLevel()
{
    QFETCH(QRectF, rect);
    QFETCH(float, scale);
    const QSize picture(1200, 400);
    const PlacedPicture placed = PlacePicture(rect, { scale, rect.center(), rect }, 2, picture, FreeSpace);
    QTEST(placed.shown, "shown");
    QTEST(placed.scroll, "scroll");
    QCOMPARE(placed.viewSize, picture * double(scale));
    QCOMPARE(placed.pictureCentre, rect.center());
    QTEST(Text(placed.visible), "visible");
}

void TestSpectrumPlacement::wholePixelsOfTheTarget()
{
    const QSize picture(1200, 400);
    // 99.6 x 49.5 count as 100 x 50; smaller than the space, they are shown alone only by a single level.
    const QRectF target(10, 10, 99.6, 49.5);
    const ZoomState level{ 3.0F, target.center(), target };
    QCOMPARE(PlacePicture(target, level, 1, picture, FreeSpace).shown, QSize(300, 150));
    QCOMPARE(PlacePicture(target, level, 2, picture, FreeSpace).shown, FreeSpace);
    // Of a picture of few rows one is left.
    const ZoomState low{ 0.1F, QPointF(3000, 2), QRectF(0, 0, 6000, 4) };
    QCOMPARE(PlacePicture(low.rect, low, 1, QSize(6000, 4), FreeSpace).viewSize, QSize(600, 1));
    QCOMPARE(PlacePicture(low.rect, low, 1, QSize(6000, 4), FreeSpace).shown, QSize(600, 1));
    // Larger in one direction: as much as there is room for.
    QCOMPARE(PlacePicture(QRectF(0, 0, 300, 50), level, 2, picture, FreeSpace).shown, QSize(600, 150));
}

/// Point by point: the middle of the rectangle stands in the middle, and nothing outside it is seen.
void TestSpectrumPlacement::randomZoomsStayInTheirRectangle()
{
    QRandomGenerator random(41);
    for (int round = 0; round < 500; ++round) {
        const QSize picture(random.bounded(100, 5000), random.bounded(100, 5000));
        const QSize space(random.bounded(50, 1500), random.bounded(50, 1500));
        const int left = random.bounded(0, picture.width() - 60);
        const int top = random.bounded(0, picture.height() - 60);
        const QRectF rect(left, top, random.bounded(50, picture.width() - left),
                          random.bounded(50, picture.height() - top));
        SpectrumZoomHistory history;
        history.Restart({ 1.0F, QPointF(), QRectF() });
        const float scale = history.Push(rect, true, space);
        QCOMPARE(scale, qMin(32.0F, qMax(float(space.width() / rect.width()),
                                         float(space.height() / rect.height()))));
        const PlacedPicture placed = PlacePicture(rect, history.Current(), history.Count(), picture, space);
        // The view's size is cut to whole pixels, which the whole picture shares in.
        const double slack = 1.01 / scale + 1e-6 * picture.width();
        QVERIFY(IsNear(placed.pictureCentre.x(), rect.center().x(), slack));
        QVERIFY(IsNear(placed.pictureCentre.y(), rect.center().y(), slack));
        QVERIFY(placed.visible.xmin >= rect.left() - slack && placed.visible.xmax <= rect.right() + slack);
        QVERIFY(placed.visible.ymin >= rect.top() - slack && placed.visible.ymax <= rect.bottom() + slack);
        QVERIFY(IsNear((placed.visible.xmax - placed.visible.xmin) * scale, placed.shown.width(), 0.01));
        QVERIFY(IsNear(placed.scroll.x(), placed.visible.xmin * scale, 1.01));
        const QRectF fractions = NormalisedRect(placed.visible, picture);
        QVERIFY(fractions.x() >= 0.0 && fractions.width() <= 1.0 && fractions.x() < fractions.width());
        QVERIFY(fractions.y() >= 0.0 && fractions.height() <= 1.0 && fractions.y() < fractions.height());
    }
}

void TestSpectrumPlacement::normalisedRectHoldsRightAndBottom()
{
    QCOMPARE(NormalisedRect({ 512, 1536, 64, 256 }, QSize(2048, 512)), QRectF(0.25, 0.125, 0.75, 0.5));
}

void TestSpectrumPlacement::anchorOfFit_data()
{
    QTest::addColumn<QPointF>("remembered");
    QTest::addColumn<QPointF>("anchor");
    QTest::newRow("none") << QPointF() << QPointF(602, 0); // 1205 / 2
    QTest::newRow("in the picture") << QPointF(100, 50) << QPointF(100, 50);
    QTest::newRow("on the far edges") << QPointF(1205, 400) << QPointF(1205, 400);
    QTest::newRow("right of it") << QPointF(1300, 50) << QPointF(602, 50);
    QTest::newRow("below it") << QPointF(100, 401) << QPointF(100, 0);
}

void TestSpectrumPlacement::anchorOfFit()
{
    QFETCH(QPointF, remembered);
    QTEST(AnchorOfFit(remembered, QSize(1205, 400)), "anchor");
}

void TestSpectrumPlacement::nearestInPicture()
{
    const QSize picture(1200, 400);
    QCOMPARE(NearestInPicture(QPointF(3.5, 399.9), picture), QPointF(3.5, 399.9));
    QCOMPARE(NearestInPicture(QPointF(-3, -0.1), picture), QPointF(0, 0));
    const QPointF last = NearestInPicture(QPointF(1200, 5000), picture);
    QCOMPARE(int(last.x()), 1199);
    QCOMPARE(int(last.y()), 399);
    QCOMPARE(NearestInPicture(QPointF(7, 8), QSize(0, 0)), QPointF(7, 8));
}

GUARDED_TEST_MAIN(TestSpectrumPlacement)
#include "tst_spectrumplacement.moc"
