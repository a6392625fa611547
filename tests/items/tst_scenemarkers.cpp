// SPDX-License-Identifier: GPL-3.0-or-later
#include "crossitem.h"
#include "drawareaitem.h"

#include "guardedtest.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QImage>
#include <QPainter>

namespace {

constexpr double Zoom = 8.0;

/// What the item draws, `Zoom` image pixels per scene unit.
QImage Painted(QGraphicsItem *item)
{
    QImage image(400, 400, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.scale(Zoom, Zoom);
    item->paint(&painter, nullptr, nullptr);
    painter.end();
    return image;
}

/// Where it drew, in image pixels.
QRect Drawn(const QImage &image)
{
    QRect drawn;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != QColor(Qt::black).rgb())
                drawn |= QRect(x, y, 1, 1);
    return drawn;
}

} // namespace

class TestSceneMarkers : public GuardedTest
{
    Q_OBJECT

private slots:
    void bornAs();
    void crossAtEveryZoom_data();
    void crossAtEveryZoom();
    void crossRunsThroughThePixel();
    void boundingRects();
    void sceneWithoutRectangle();
    void area();
    void areaWithoutCorner();
};

void TestSceneMarkers::bornAs()
{
    const CrossItem cross(nullptr);
    QCOMPARE(cross.halfSize, 20);
    QCOMPARE(cross.penWidth, 1);
    QCOMPARE(cross.color, QColor(Qt::white));
    QCOMPARE(cross.center, QPointF(0, 0));
    QCOMPARE(cross.previousCenter, QPointF(0, 0));
    QCOMPARE(cross.pressPoint, QPointF(0, 0));
    QCOMPARE(cross.movePoint, QPointF(0, 0));
}

void TestSceneMarkers::crossAtEveryZoom_data()
{
    QTest::addColumn<double>("zoom");
    for (double zoom : {0.25, 1.0, 4.0, 32.0})
        QTest::addRow("%g", zoom) << zoom;
}

/// In the view itself: 16 screen pixels to each side, one screen pixel wide.
void TestSceneMarkers::crossAtEveryZoom()
{
    QFETCH(double, zoom);
    QGraphicsView view;
    view.resize(200, 200);
    auto *scene = new QGraphicsScene(0, 0, 1000, 1000, &view);
    scene->setBackgroundBrush(Qt::black);
    view.setScene(scene);
    view.scale(zoom, zoom);
    auto *cross = new CrossItem(nullptr);
    scene->addItem(cross);
    cross->center = QPointF(500.2, 500.2);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    view.centerOn(500.5, 500.5);
    const QImage image = view.viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QRect drawn = Drawn(image);
    QVERIFY2(qAbs(drawn.width() - 33) <= 1 && qAbs(drawn.height() - 33) <= 1, qPrintable(QString::number(drawn.width())));
    int white = 0;
    for (int x = drawn.left(); x <= drawn.right(); ++x)
        white += image.pixelColor(x, drawn.top() + 3) == QColor(Qt::black) ? 0 : 1;
    QCOMPARE(white, 1);
}

void TestSceneMarkers::crossRunsThroughThePixel()
{
    QGraphicsView view;
    auto *scene = new QGraphicsScene(0, 0, 50, 50, &view);
    view.scale(Zoom, Zoom);
    auto *cross = new CrossItem(nullptr);
    scene->addItem(cross);
    cross->center = QPointF(10.2, 7.8); // drawn at (10.5, 7.5), two scene units each way
    const QRect drawn = Drawn(Painted(cross));
    QVERIFY2(qAbs(drawn.center().x() - 84) <= 1 && qAbs(drawn.center().y() - 60) <= 1, "middle of the pixel");
    QVERIFY(qAbs(drawn.width() - 32) <= 2 && qAbs(drawn.height() - 32) <= 2);
    cross->center = QPointF(qQNaN(), 1);
    QVERIFY(Drawn(Painted(cross)).isNull());
}

void TestSceneMarkers::boundingRects()
{
    CrossItem alone(nullptr);
    alone.center = QPointF(3, 4);
    QCOMPARE(alone.boundingRect(), QRectF(3, 4, 40, 40));
    QGraphicsView view;
    auto *scene = new QGraphicsScene(0, 0, 50, 60, &view);
    view.setScene(scene);
    view.setSceneRect(1, 2, 30, 40);
    auto *cross = new CrossItem(nullptr);
    scene->addItem(cross);
    QCOMPARE(cross->boundingRect(), QRectF(1, 2, 30, 40));
    QCOMPARE((new DrawAreaItem(scene))->boundingRect(), QRectF(0, 0, 50, 60));
    DrawAreaItem none(nullptr);
    QVERIFY(none.boundingRect().isEmpty());
}

void TestSceneMarkers::sceneWithoutRectangle()
{
    QGraphicsScene scene; // asks its items how large it is
    scene.addItem(new CrossItem(nullptr));
    auto *area = new DrawAreaItem(&scene);
    QVERIFY(area->boundingRect().isEmpty());
    QVERIFY(scene.sceneRect().isEmpty());
}

void TestSceneMarkers::area()
{
    DrawAreaItem area(nullptr);
    area.AddAreaPoint(QPointF(5, 5));
    QVERIFY(Drawn(Painted(&area)).isNull()); // the moving corner is still at (0, 0)
    area.SetAreaCurrentPoint(QPointF(20, 10));
    // Lines one scene unit wide, half of it on each side.
    QCOMPARE(Drawn(Painted(&area)), QRect(36, 36, 128, 48));
    area.AddAreaPoint(QPointF(30, 30));
    area.SetAreaCurrentPoint(QPointF(40, 12));
    const QImage frozen = Painted(&area);
    QCOMPARE(Drawn(frozen), QRect(36, 36, 208, 208));
    QCOMPARE(frozen.pixelColor(140, 140), QColor(Qt::black)); // no fill
    area.SetAreaCurrentPoint(QPointF());
    QVERIFY(Drawn(Painted(&area)).isNull());
}

void TestSceneMarkers::areaWithoutCorner()
{
    DrawAreaItem area(nullptr);
    area.SetAreaCurrentPoint(QPointF(20, 10));
    QVERIFY(Drawn(Painted(&area)).isNull());
}

GUARDED_TEST_MAIN(TestSceneMarkers)
#include "tst_scenemarkers.moc"
