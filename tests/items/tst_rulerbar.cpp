// SPDX-License-Identifier: GPL-3.0-or-later
#include "globalclass.h"
#include "rulerbarhorizontal.h"
#include "rulerbarvertical.h"

#include "guardedtest.h"

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
    using RulerBarLayoutItem::rangeMax;
    using RulerBarLayoutItem::rangeMin;
    using RulerBarLayoutItem::steps;
    using RulerBarLayoutItem::ticks;
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
    void ranges_data();
    void ranges();
    void rangeLabels();
    void sameSizeKeepsTheSteps();
    void emptyRectDrawsNothing();
    void horizontalIsPainted();
    void verticalIsPainted();
    void titleIsPainted();
};

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

void TestRulerBar::titleIsPainted()
{
    HorizontalRuler ruler;
    const QRect titlePlace(200, 28, 100, 22);
    QCOMPARE(WhitePixels(Painted(&ruler), titlePlace), 0);
    ruler.changedTitleName("Gray");
    QVERIFY(WhitePixels(Painted(&ruler), titlePlace) > 0);
}

GUARDED_TEST_MAIN(TestRulerBar)
#include "tst_rulerbar.moc"
