// SPDX-License-Identifier: GPL-3.0-or-later
#include "globalclass.h"
#include "rulerbarhorizontal.h"
#include "rulerbarvertical.h"

#include "guardedtest.h"

#include <QFontMetricsF>
#include <QImage>

#include <limits>

namespace {

/// Opens what the view does not see.
class HorizontalRuler : public RulerBarHorizontal
{
public:
    explicit HorizontalRuler(const QString &title = QString())
        : RulerBarHorizontal(title, nullptr)
    {
        changedActualSize(QSize(1000, 800));
        changedActualRect(QRectF(0, 0, 1000, 800), false);
        ApplyGeometry(QRect(0, 0, 500, 50));
    }
    using RulerBarLayoutItem::axesSwapped;
    using RulerBarLayoutItem::imageLength;
    using RulerBarLayoutItem::rangeMax;
    using RulerBarLayoutItem::rangeMin;
    using RulerBarLayoutItem::steps;
    using RulerBarLayoutItem::ticks;
    using RulerBarLayoutItem::ticksHidden;
    using RulerBarLayoutItem::visibleLength;
    using RulerBarLayoutItem::visibleStart;
};

class VerticalRuler : public RulerBarVertical
{
public:
    explicit VerticalRuler(const QString &title = QString(), bool fromBottom = false)
        : RulerBarVertical(title, nullptr, fromBottom)
    {
        changedActualSize(QSize(800, 1000));
        changedActualRect(QRectF(0, 0, 800, 1000), false);
        ApplyGeometry(QRect(0, 0, 60, 500));
    }
    using RulerBarLayoutItem::axesSwapped;
    using RulerBarLayoutItem::imageLength;
    using RulerBarLayoutItem::ticks;
    using RulerBarLayoutItem::ticksHidden;
    using RulerBarLayoutItem::visibleLength;
    using RulerBarLayoutItem::visibleStart;
};

/// As a ruler is born.
class BornRuler : public RulerBarVertical
{
public:
    BornRuler()
        : RulerBarVertical("Rows", nullptr, true)
    {
    }
    using ComponentItem::itemSize;
    using RulerBarLayoutItem::axesSwapped;
    using RulerBarLayoutItem::imageLength;
    using RulerBarLayoutItem::imageSize;
    using RulerBarLayoutItem::labelDecimals;
    using RulerBarLayoutItem::majorDivisions;
    using RulerBarLayoutItem::majorTickLength;
    using RulerBarLayoutItem::minorDivisions;
    using RulerBarLayoutItem::minorTickLength;
    using RulerBarLayoutItem::penColor;
    using RulerBarLayoutItem::penWidth;
    using RulerBarLayoutItem::rangeMax;
    using RulerBarLayoutItem::rangeMin;
    using RulerBarLayoutItem::steps;
    using RulerBarLayoutItem::ticks;
    using RulerBarLayoutItem::ticksHidden;
    using RulerBarLayoutItem::title;
    using RulerBarLayoutItem::visibleLength;
    using RulerBarLayoutItem::visibleRect;
    using RulerBarLayoutItem::visibleStart;
    using RulerBarLayoutItem::zoom;
    using RulerBarVertical::bottomUp;
};

QImage Painted(QWidget *item)
{
    QImage image(item->size(), QImage::Format_RGB32);
    image.fill(Qt::black);
    item->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

int WhitePixels(const QImage &image, const QRect &area)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            count += image.pixelColor(x, y) == QColor(Qt::white) ? 1 : 0;
    return count;
}

} // namespace

class TestRulerBar : public GuardedTest
{
    Q_OBJECT

private slots:
    void bornAs();
    void ranges_data();
    void ranges();
    void rangeLabels();
    void sameSizeKeepsTheSteps();
    void emptyRectDrawsNothing();
    void horizontalIsPainted();
    void verticalIsPainted();
    void verticalSkipsOneNumber();
    void titleIsPainted();
    void verticalTitleReadsUpwards();
    void swappedAxes();
    void hiddenTicks();
    void redSheetIsNotPainted();
};

void TestRulerBar::bornAs()
{
    const BornRuler ruler;
    QCOMPARE(ruler.penWidth, 1);
    QCOMPARE(ruler.penColor, QColor(Qt::white));
    QCOMPARE(ruler.title, QString("Rows"));
    QCOMPARE(ruler.majorDivisions, 5);
    QCOMPARE(ruler.minorDivisions, 5);
    QCOMPARE(ruler.steps.majorCount, 5);
    QCOMPARE(ruler.steps.minorsPerMajor, 5);
    QCOMPARE(ruler.steps.majorStep, 1);
    QCOMPARE(ruler.steps.minorStep, 1);
    QCOMPARE(ruler.steps.scale, 1.0);
    QCOMPARE(ruler.steps.minorStepPx, 1.0);
    QCOMPARE(ruler.majorTickLength, 6);
    QCOMPARE(ruler.minorTickLength, 3);
    QCOMPARE(ruler.imageSize, QSize(400, 400));
    QCOMPARE(ruler.visibleRect, QRect(0, 0, 400, 400));
    QVERIFY(ruler.ticks.lines.isEmpty() && ruler.ticks.majorLines.isEmpty() && ruler.ticks.labels.isEmpty());
    QCOMPARE(ruler.labelDecimals, 0);
    QCOMPARE(ruler.rangeMin, -1.0);
    QCOMPARE(ruler.rangeMax, -1.0);
    QCOMPARE(ruler.zoom, 1.0);
    QVERIFY(!ruler.axesSwapped && !ruler.ticksHidden && ruler.bottomUp);
    QCOMPARE(ruler.imageLength, 400);
    QCOMPARE(ruler.visibleLength, 400);
    QCOMPARE(ruler.visibleStart, 0);
    QCOMPARE(ruler.itemSize, QSize(400, 400));
    QCOMPARE(HorizontalRuler().styleSheet(), QString("background-color:rgb(255,0,0)"));
}

void TestRulerBar::ranges_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("storedMin");
    QTest::addColumn<double>("storedMax");
    QTest::newRow("0 to 3") << 0.0 << 3.0 << -2.0 << 3.0;
    QTest::newRow("10 to 12") << 10.0 << 12.0 << 7.0 << 12.0;
    QTest::newRow("10 to 2000") << 10.0 << 2000.0 << 10.0 << 2000.0;
    QTest::newRow("off") << -1.0 << 2000.0 << -6.0 << -1.0;
    QTest::newRow("no number") << 0.0 << std::numeric_limits<double>::quiet_NaN() << -6.0 << -1.0;
}

void TestRulerBar::ranges()
{
    QFETCH(double, min);
    QFETCH(double, max);
    HorizontalRuler ruler;
    ruler.changedShowValueRange(min, max);
    QTEST(ruler.rangeMin, "storedMin");
    QTEST(ruler.rangeMax, "storedMax");
}

void TestRulerBar::rangeLabels()
{
    HorizontalRuler ruler;
    QCOMPARE(ruler.ticks.labels, QStringList({"200", "400", "600", "800"}));
    ruler.changedShowValueRange(10, 2010);
    QCOMPARE(ruler.ticks.labels, QStringList({"410", "810", "1210", "1610"}));
    ruler.changedShowValueRange(0, 3);
    QCOMPARE(ruler.ticks.labels, QStringList({"200", "400", "600", "800"}));
}

void TestRulerBar::sameSizeKeepsTheSteps()
{
    HorizontalRuler ruler;
    ruler.SetItemSize(250, 50);
    ruler.changedActualRect(QRectF(100, 0, 1000, 800), false);
    QCOMPARE(ruler.steps.minorStepPx, 20.0);
    QCOMPARE(ruler.ticks.lines.first().x1(), 10.0);
    ruler.changedActualRect(QRectF(100, 0, 1000, 800), true);
    QCOMPARE(ruler.steps.minorStepPx, 10.0);
    ruler.changedActualRect(QRectF(0, 0, 500, 800), false);
    QCOMPARE(ruler.steps.minorStepPx, 10.0);
    QCOMPARE(ruler.steps.majorStep, 100);
}

void TestRulerBar::emptyRectDrawsNothing()
{
    HorizontalRuler ruler;
    ruler.changedActualRect(QRectF(0, 0, 0, 0), false);
    QVERIFY(ruler.ticks.lines.isEmpty());
    QCOMPARE(WhitePixels(Painted(&ruler), QRect(0, 0, 500, 50)), 0);
    const double none = std::numeric_limits<double>::quiet_NaN();
    ruler.changedActualRect(QRectF(0, 0, none, 100), true);
    QVERIFY(ruler.ticks.lines.isEmpty());
}

void TestRulerBar::horizontalIsPainted()
{
    HorizontalRuler ruler;
    const QImage image = Painted(&ruler);
    QCOMPARE(image.pixelColor(100, 5), QColor(Qt::white));
    QCOMPARE(image.pixelColor(20, 2), QColor(Qt::white));
    QVERIFY(image.pixelColor(20, 5) != QColor(Qt::white));
    QVERIFY(WhitePixels(image, QRect(85, 8, 30, 16)) > 0);  // "200"
    QCOMPARE(WhitePixels(image, QRect(40, 8, 30, 16)), 0); // no number at a minor tick
}

void TestRulerBar::verticalIsPainted()
{
    RulerBarVertical ruler("", nullptr, false);
    ruler.changedActualSize(QSize(800, 1000));
    ruler.changedActualRect(QRectF(0, 0, 800, 1000), false);
    ruler.ApplyGeometry(QRect(0, 0, 60, 500));
    const QImage image = Painted(&ruler);
    QCOMPARE(image.pixelColor(55, 100), QColor(Qt::white));
    QCOMPARE(image.pixelColor(58, 120), QColor(Qt::white));
    QVERIFY(image.pixelColor(55, 120) != QColor(Qt::white));
    QVERIFY(WhitePixels(image, QRect(20, 92, 30, 16)) > 0);
    QCOMPARE(WhitePixels(image, QRect(0, 112, 50, 16)), 0);
}

/// The one that the upper edge would cut; those below it are there.
void TestRulerBar::verticalSkipsOneNumber()
{
    VerticalRuler ruler;
    ruler.ApplyGeometry(QRect(0, 0, 60, 100)); // 4 px a minor, 20 px a major
    ruler.changedActualRect(QRectF(0, 155, 800, 1000), false);
    QCOMPARE(ruler.ticks.labels.mid(0, 2), QStringList({ "200", "400" }));
    QCOMPARE(ruler.ticks.majorLines.at(0).y1(), 4.0);
    QCOMPARE(ruler.ticks.majorLines.at(1).y1(), 24.0);
    const QImage image = Painted(&ruler);
    QCOMPARE(image.pixelColor(55, 4), QColor(Qt::white));
    QCOMPARE(WhitePixels(image, QRect(0, 0, 52, 13)), 0);
    QVERIFY(WhitePixels(image, QRect(20, 17, 30, 15)) > 0);
}

void TestRulerBar::titleIsPainted()
{
    HorizontalRuler ruler;
    const QRect titlePlace(200, 28, 100, 22);
    QCOMPARE(WhitePixels(Painted(&ruler), titlePlace), 0);
    ruler.changedTitleName("Gray");
    QVERIFY(WhitePixels(Painted(&ruler), titlePlace) > 0);
}

void TestRulerBar::verticalTitleReadsUpwards()
{
    VerticalRuler ruler;
    const QImage before = Painted(&ruler);
    ruler.changedTitleName("Wavelength");
    const QImage after = Painted(&ruler);
    QRect title;
    for (int y = 0; y < after.height(); ++y)
        for (int x = 0; x < after.width(); ++x)
            if (after.pixel(x, y) != before.pixel(x, y))
                title |= QRect(x, y, 1, 1);
    QFont font = ruler.font();
    font.setPixelSize(GlobalClass::GetActualSize(12));
    const QFontMetricsF metrics(font);
    const double width = metrics.horizontalAdvance("Wavelength");
    // Higher than wide, in the middle of the height, above a baseline that stands upright.
    QVERIFY(qAbs(title.height() - width) <= 4.0);
    QVERIFY(qAbs(title.center().y() - 250.0) <= 3.0);
    QVERIFY(title.right() <= int(metrics.height() + 4.0) + int(metrics.descent()));
    QVERIFY(title.left() >= int(metrics.height() + 4.0) - int(metrics.ascent()) - 1);
    // It begins below: the tall W takes more of the lower end than the small letters of the upper one.
    QVERIFY(WhitePixels(after, QRect(title.left(), title.bottom() - 11, 4, 12))
            > WhitePixels(after, QRect(title.left(), title.top(), 4, 12)));
}

void TestRulerBar::swappedAxes()
{
    const QSize image(1000, 800);
    const QRectF visible(100, 50, 500, 300);
    HorizontalRuler horizontal;
    VerticalRuler vertical;
    for (const bool swapped : {false, true}) {
        horizontal.axesSwapped = vertical.axesSwapped = swapped;
        horizontal.changedActualSize(image);
        horizontal.changedActualRect(visible, true);
        vertical.changedActualSize(image);
        vertical.changedActualRect(visible, true);
        QCOMPARE(horizontal.imageLength, swapped ? 800 : 1000);
        QCOMPARE(horizontal.visibleStart, swapped ? 50 : 100);
        QCOMPARE(horizontal.visibleLength, swapped ? 300 : 500);
        QCOMPARE(vertical.imageLength, swapped ? 1000 : 800);
        QCOMPARE(vertical.visibleStart, swapped ? 100 : 50);
        QCOMPARE(vertical.visibleLength, swapped ? 500 : 300);
    }
}

void TestRulerBar::hiddenTicks()
{
    VerticalRuler vertical;
    QVERIFY(!vertical.ticks.lines.isEmpty());
    vertical.ticksHidden = true;
    vertical.changedActualRect(QRectF(0, 0, 800, 1000), true);
    QVERIFY(vertical.ticks.lines.isEmpty() && vertical.ticks.majorLines.isEmpty() && vertical.ticks.labels.isEmpty());
    QCOMPARE(WhitePixels(Painted(&vertical), vertical.rect()), 0);
    HorizontalRuler horizontal; // which knows no hiding
    horizontal.ticksHidden = true;
    horizontal.changedActualRect(QRectF(0, 0, 1000, 800), true);
    QVERIFY(!horizontal.ticks.lines.isEmpty());
}

void TestRulerBar::redSheetIsNotPainted()
{
    QWidget page;
    page.resize(500, 50);
    auto *ruler = new HorizontalRuler;
    ruler->setParent(&page);
    const QImage image = page.grab().toImage();
    for (int x = 0; x < image.width(); ++x)
        QVERIFY(image.pixelColor(x, 45) != QColor(255, 0, 0));
}

GUARDED_TEST_MAIN(TestRulerBar)
#include "tst_rulerbar.moc"
