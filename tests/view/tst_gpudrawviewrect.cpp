// SPDX-License-Identifier: GPL-3.0-or-later
#include "gpuviewrect.h"
#include "guardedtest.h"

class TestGPUDrawViewRect : public GuardedTest
{
    Q_OBJECT

private slots:
    void visiblePartOfThePicture_data();
    void visiblePartOfThePicture();
    void numbersAreOfSinglePrecision();
    void onlyAPartOfThePictureIsAccepted_data();
    void onlyAPartOfThePictureIsAccepted();
};

void TestGPUDrawViewRect::visiblePartOfThePicture_data()
{
    QTest::addColumn<QPoint>("scroll");
    QTest::addColumn<QSize>("viewportSize");
    QTest::addColumn<QSizeF>("sceneSize");
    QTest::addColumn<double>("scale");
    QTest::addColumn<QRectF>("edges");

    const QSizeF scene(1024, 512);
    QTest::newRow("the whole picture")
        << QPoint(0, 0) << QSize(512, 256) << scene << 0.5 << QRectF(0, 0, 1, 1);
    QTest::newRow("top left quarter")
        << QPoint(0, 0) << QSize(512, 256) << scene << 1.0 << QRectF(0, 0, 0.5, 0.5);
    QTest::newRow("bottom right quarter")
        << QPoint(512, 256) << QSize(512, 256) << scene << 1.0 << QRectF(0.5, 0.5, 1, 1);
    QTest::newRow("scrolled across only")
        << QPoint(256, 0) << QSize(512, 512) << scene << 1.0 << QRectF(0.25, 0, 0.75, 1);
    QTest::newRow("scrolled down only")
        << QPoint(0, 128) << QSize(1024, 256) << scene << 1.0 << QRectF(0, 0.25, 1, 0.75);
    QTest::newRow("smaller than the viewport: position does not count")
        << QPoint(10, 10) << QSize(2048, 1024) << scene << 1.0 << QRectF(0, 0, 1, 1);
    QTest::newRow("far edges are cut off at 1")
        << QPoint(900, 0) << QSize(512, 512) << scene << 1.0 << QRectF(900.0F / 1024.0F, 0, 1, 1);
    QTest::newRow("zoom 32") << QPoint(16384, 0) << QSize(512, 512) << scene << 32.0
                             << QRectF(0.5, 0, 0.5 + 512.0 / 32768, 512.0 / 16384);
    QTest::newRow("viewport without a size")
        << QPoint(0, 0) << QSize(0, 0) << scene << 1.0 << QRectF(0, 0, 1, 1);
}

void TestGPUDrawViewRect::visiblePartOfThePicture()
{
    QFETCH(QPoint, scroll);
    QFETCH(QSize, viewportSize);
    QFETCH(QSizeF, sceneSize);
    QFETCH(double, scale);
    QFETCH(QRectF, edges);
    const QRectF viewRect = ComputeGPUViewRect(scroll, viewportSize, sceneSize, scale);
    QCOMPARE(viewRect.x(), edges.x());
    QCOMPARE(viewRect.y(), edges.y());
    QCOMPARE(viewRect.width(), edges.width());
    QCOMPARE(viewRect.height(), edges.height());
}

void TestGPUDrawViewRect::numbersAreOfSinglePrecision()
{
    const QRectF viewRect = ComputeGPUViewRect(QPoint(100, 0), QSize(300, 300), QSizeF(1000, 300), 0.7);
    const float scaledWidth = 1000.0F * 0.7F;
    // A comparison with 0 has no tolerance.
    QCOMPARE(viewRect.x() - double(100.0F / scaledWidth), 0.0);
    QCOMPARE(viewRect.width() - double(100.0F / scaledWidth + 300.0F / scaledWidth), 0.0);
}

void TestGPUDrawViewRect::onlyAPartOfThePictureIsAccepted_data()
{
    QTest::addColumn<QRectF>("viewRect");
    QTest::addColumn<bool>("inside");
    QTest::newRow("all of it") << QRectF(0, 0, 1, 1) << true;
    QTest::newRow("a part") << QRectF(0.2, 0.3, 0.4, 0.5) << true;
    QTest::newRow("left edge at the right end") << QRectF(1, 0, 1, 1) << false;
    QTest::newRow("top edge at the bottom") << QRectF(0, 1, 1, 1) << false;
    QTest::newRow("right edge beyond") << QRectF(0, 0, 1.1, 1) << false;
    QTest::newRow("bottom edge beyond") << QRectF(0, 0, 1, 1.1) << false;
    QTest::newRow("not a number") << QRectF(0, 0, qQNaN(), 1) << false;
}

void TestGPUDrawViewRect::onlyAPartOfThePictureIsAccepted()
{
    QFETCH(QRectF, viewRect);
    QFETCH(bool, inside);
    QCOMPARE(IsGPUViewRectInside(viewRect), inside);
}

GUARDED_TEST_MAIN(TestGPUDrawViewRect)
#include "tst_gpudrawviewrect.moc"
