// SPDX-License-Identifier: GPL-3.0-or-later
#include "intensitycurvehorizontal.h"
#include "intensitycurvevertical.h"

#include "guardedtest.h"

#include <QImage>
#include <QRandomGenerator>
#include <QSignalSpy>

#include <limits>
#include <numeric>

namespace {

/// Opens what the view does not see.
template<typename Curve>
class OpenCurve : public Curve
{
public:
    OpenCurve()
        : Curve(nullptr)
    {
    }
    using Curve::anchor;
    using Curve::curveLines;
    using Curve::DragTo;
    using Curve::itemSize;
    using Curve::MapToAxis;
    using Curve::pressPosition;
    using Curve::reversed;
    using Curve::samples;
};
using Horizontal = OpenCurve<IntensityCurveHorizontal>;
using Vertical = OpenCurve<IntensityCurveVertical>;

QImage Painted(QWidget *item)
{
    QImage image(item->size(), QImage::Format_RGB32);
    image.fill(Qt::black);
    item->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

} // namespace

class TestIntensityCurve : public GuardedTest
{
    Q_OBJECT

private slots:
    void startsAsDescribed();
    void contract_data();
    void contract();
    void levelsLieAtTheirEdges();
    void equalLevelsGiveTheBaseline();
    void randomCurves();
    void buffersAreKept();
    void tinyItems();
    void sixteenBitSamplesAreCopiedRaw();
    void reversedSamples();
    void levelsWaitForSamples();
    void painted();
    void anchors();
    void dragAndMap();
};

void TestIntensityCurve::startsAsDescribed()
{
    Horizontal horizontal;
    QCOMPARE(horizontal.geometry(), QRect(0, 0, 401, 51));
    QCOMPARE(horizontal.anchor, 200);
    Vertical vertical;
    QCOMPARE(vertical.geometry(), QRect(0, 0, 51, 401));
    QCOMPARE(vertical.anchor, 200);
    vertical.move(7, 9);
    vertical.SetItemSize(60.9, 300.2);
    QCOMPARE(vertical.geometry(), QRect(7, 9, 61, 301));
    vertical.SetItemSize(std::numeric_limits<double>::quiet_NaN(), 300);
    QCOMPARE(vertical.itemSize, QSize(60, 300));
}

void TestIntensityCurve::contract_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("counts");
    QTest::addColumn<QVector<int>>("shown");
    const QVector<int> before{7, 8};
    QTest::newRow("past the end") << 100 << 90 << 20 << before;
    QTest::newRow("none at the end") << 100 << 100 << 0 << before;
    QTest::newRow("last two") << 100 << 98 << 2 << QVector<int>{98, 99};
    QTest::newRow("three") << 100 << 10 << 3 << QVector<int>{10, 11, 12};
    QTest::newRow("no size") << 0 << 0 << 0 << before;
    QTest::newRow("offset below 0") << 100 << -1 << 1 << before;
    QTest::newRow("offset past the size") << 100 << 101 << 0 << before;
    QTest::newRow("count below 0") << 100 << 1 << -1 << before;
    QTest::newRow("sum beyond int") << 100 << 50 << std::numeric_limits<int>::max() << before;
}

void TestIntensityCurve::contract()
{
    QFETCH(int, size);
    QFETCH(int, offset);
    QFETCH(int, counts);
    QFETCH(QVector<int>, shown);
    Horizontal curve;
    QVector<int> before{7, 8};
    curve.updateCurve(before.data(), 2, 0, 2);
    QVector<int> data(100);
    std::iota(data.begin(), data.end(), 0);
    curve.updateCurve(data.data(), size, offset, counts);
    curve.updateCurve(static_cast<int *>(nullptr), 1, 0, 1);
    QCOMPARE(QVector<int>(curve.samples.begin(), curve.samples.end()), shown);
}

void TestIntensityCurve::levelsLieAtTheirEdges()
{
    Horizontal horizontal;
    horizontal.setLeftAndRightLevel(100, 300);
    int row[] = {50, 100, 300, 300};
    horizontal.updateCurve(row, 4, 0, 4);
    QCOMPARE(horizontal.curveLines.size(), 398); // pixels 1 to 399
    QCOMPARE(horizontal.curveLines.first(), QLineF(1, 48, 2, 48));
    QCOMPARE(horizontal.curveLines.at(150).p2(), QPointF(152, 48));
    QCOMPARE(horizontal.curveLines.last().p2(), QPointF(399, 2));

    Vertical vertical;
    vertical.setLeftAndRightLevel(100, 300);
    vertical.updateCurve(row, 4, 0, 4);
    QCOMPARE(vertical.curveLines.size(), 397); // pixels 1 to 398
    QCOMPARE(vertical.curveLines.first(), QLineF(-10.5, 1, -10.5, 2));
    QCOMPARE(vertical.curveLines.last().p2(), QPointF(47, 398));
}

void TestIntensityCurve::equalLevelsGiveTheBaseline()
{
    int row[] = {0, 1000};
    Horizontal horizontal;
    horizontal.setLeftAndRightLevel(10, 10);
    horizontal.updateCurve(row, 2, 0, 2);
    QCOMPARE(horizontal.curveLines.last(), QLineF(398, 48, 399, 48));
    Vertical vertical;
    vertical.setLeftAndRightLevel(10, 10);
    vertical.updateCurve(row, 2, 0, 2);
    QCOMPARE(vertical.curveLines.last(), QLineF(1, 397, 1, 398));
}

/// Point by point, each on its own.
void TestIntensityCurve::randomCurves()
{
    QRandomGenerator random(33);
    for (int round = 0; round < 300; ++round) {
        const QSize size(random.bounded(2, 1500), random.bounded(3, 1500));
        const int left = random.bounded(-100, 3000);
        const int right = left + random.bounded(1, 60000);
        std::vector<int> samples(size_t(random.bounded(1, 5000)));
        for (int &sample : samples)
            sample = random.bounded(-1000, 65536);
        const float count = float(samples.size());
        for (const bool horizontal : {true, false}) {
            const double ratio = double(count / float(horizontal ? size.width() : std::max(size.height() - 1, 1)));
            const int limit = horizontal ? size.width() - 1 : size.height() - 2;
            const auto pointAt = [&](int pixel) {
                const int index = pixel == 1 ? 0 : pixel == 2 ? int(ratio) : int(pixel * ratio);
                const double sample = samples.at(size_t(index));
                if (horizontal)
                    return QPointF(pixel, qMin(size.height() - 2.0, size.height() - 2 - (sample - left) * (double(size.height() - 4) / (right - left))));
                return QPointF(qMin(size.width() - 2.0, (sample - left) * (double(size.width() - 4) / (right - left)) + 1), pixel);
            };
            QVector<QLineF> expected{QLineF(pointAt(1), pointAt(2))};
            for (int pixel = 3; pixel <= limit; ++pixel)
                expected.append(QLineF(pointAt(pixel - 1), pointAt(pixel)));
            QVector<QLineF> lines;
            (horizontal ? BuildHorizontalCurve : BuildVerticalCurve)(samples, {size, 1, left, right}, &lines);
            QCOMPARE(lines, expected);
        }
    }
}

void TestIntensityCurve::buffersAreKept()
{
    Horizontal curve;
    curve.SetItemSize(1200, 50);
    std::vector<int> row(4096, 7);
    curve.updateCurve(row.data(), 4096, 0, 4096);
    const QLineF *lines = curve.curveLines.constData();
    const int *samples = curve.samples.data();
    for (int &sample : row) {
        sample = 200;
        curve.updateCurve(row.data(), 4096, 0, 4096);
        QCOMPARE(curve.curveLines.constData(), lines);
        QCOMPARE(static_cast<const int *>(curve.samples.data()), samples);
    }
    QVERIFY(curve.curveLines.last().y2() < 20.0);
}

void TestIntensityCurve::tinyItems()
{
    QVector<QLineF> lines{QLineF(0, 0, 1, 1)};
    BuildHorizontalCurve({}, {QSize(400, 50), 1, 0, 255}, &lines);
    BuildVerticalCurve({}, {QSize(50, 400), 1, 0, 255}, &lines);
    QCOMPARE(lines.size(), 1); // without samples it stays
    BuildHorizontalCurve({5}, {QSize(2, 50), 1, 0, 255}, &lines);
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines.first().x2(), 2.0);
    BuildHorizontalCurve({5}, {QSize(1, 50), 1, 0, 255}, &lines);
    QVERIFY(lines.isEmpty());
    BuildVerticalCurve({5}, {QSize(50, 3), 1, 0, 255}, &lines);
    QCOMPARE(lines.size(), 1);
    BuildVerticalCurve({5}, {QSize(50, 2), 1, 0, 255}, &lines);
    QVERIFY(lines.isEmpty());
}

void TestIntensityCurve::sixteenBitSamplesAreCopiedRaw()
{
    Horizontal curve;
    ushort data[] = {1, 2, 3, 4};
    curve.updateCurve(data, 0);
    curve.updateCurve(static_cast<ushort *>(nullptr), 4);
    QVERIFY(curve.samples.empty());
    curve.updateCurve(data, 4);
    QCOMPARE(curve.samples, (std::vector<int>{0x20001, 0x40003, 0, 0}));
}

void TestIntensityCurve::reversedSamples()
{
    Vertical curve;
    curve.reversed = true;
    int data[] = {1, 2, 3};
    curve.updateCurve(data, 3, 0, 3);
    QCOMPARE(curve.samples, (std::vector<int>{3, 2, 1}));
}

void TestIntensityCurve::levelsWaitForSamples()
{
    Horizontal curve;
    int data[] = {0, 255};
    curve.updateCurve(data, 2, 0, 2);
    const QVector<QLineF> lines = curve.curveLines;
    curve.setLeftAndRightLevel(0, 510);
    QCOMPARE(curve.curveLines, lines);
    curve.updateCurve(data, 2, 2, 0);
    QCOMPARE(curve.curveLines.last().y2(), 25.0);
}

void TestIntensityCurve::painted()
{
    Horizontal curve;
    int data[] = {0};
    curve.updateCurve(data, 1, 0, 1);
    const QImage image = Painted(&curve);
    QCOMPARE(image.pixelColor(100, 0), QColor(Qt::white));
    QCOMPARE(image.pixelColor(399, 20), QColor(Qt::white));
    QCOMPARE(image.pixelColor(100, 48), QColor(40, 128, 140));
    QCOMPARE(image.pixelColor(200, 48), QColor(Qt::white)); // the anchor lies over the curve
    curve.SetCurveColor(Qt::red);
    QCOMPARE(Painted(&curve).pixelColor(100, 48), QColor(Qt::red));
    curve.SetCurvePenStyle(Qt::NoPen);
    QVERIFY(Painted(&curve).pixelColor(100, 48) != QColor(Qt::red));
}

void TestIntensityCurve::anchors()
{
    Horizontal horizontal;
    horizontal.changedAnchorPosition(QPointF(99.6, 5));
    QCOMPARE(Painted(&horizontal).pixelColor(100, 30), QColor(Qt::white));
    horizontal.changedAnchorPosition(QPointF(std::numeric_limits<double>::quiet_NaN(), 0));
    QCOMPARE(horizontal.anchor, 100);
    horizontal.changedAnchorPosition(QPointF(400, 5));
    QVERIFY(Painted(&horizontal).pixelColor(400, 30) != QColor(Qt::white));
    Vertical vertical;
    vertical.changedAnchorPosition(QPointF(5, 400));
    QCOMPARE(Painted(&vertical).pixelColor(30, 400), QColor(Qt::white));
}

void TestIntensityCurve::dragAndMap()
{
    Horizontal horizontal;
    Vertical vertical;
    QSignalSpy across(&horizontal, SIGNAL(scrollDistance(int)));
    QSignalSpy down(&vertical, SIGNAL(scrollDistance(int)));
    horizontal.pressPosition = vertical.pressPosition = QPointF(50, 70);
    horizontal.DragTo(QPointF(20.4, 1));
    vertical.DragTo(QPointF(1, 75.5));
    QCOMPARE(across.takeFirst().first().toInt(), 30);
    QCOMPARE(down.takeFirst().first().toInt(), -6);
    QPointF out(1, 2);
    horizontal.MapToAxis(QPointF(8, 9), out);
    QCOMPARE(out, QPointF(1, 9));
    vertical.MapToAxis(QPointF(8, 3), out);
    QCOMPARE(out, QPointF(8, 9));
    QTest::mousePress(&horizontal, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QCOMPARE(horizontal.pressPosition, QPointF(QCursor::pos()));
}

GUARDED_TEST_MAIN(TestIntensityCurve)
#include "tst_intensitycurve.moc"
