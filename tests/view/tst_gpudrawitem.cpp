// SPDX-License-Identifier: GPL-3.0-or-later
#include "drawviewfixture.h"
#include "fakecameramainmanager.h"
#include "guardedtest.h"
#include "lxgpudrawitem.h"
#include "rawcameraframe.h"

#include <QGraphicsScene>
#include <QPainter>

namespace {

const QRectF wholePicture(0, 0, 1, 1);
const QString firstInitLine("addShaderFromSourceCode Vertex success");
const QString initialised("[LxCamGPURender]: initializeGL success!\n");

} // namespace

/// The scene item that lets the renderer draw the preview's frame.
class TestGPUDrawItem : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase() { StartOpenGLDriver(); }
    void boundsFollowTheScene();
    void needsAViewportOfTwoPixels_data();
    void needsAViewportOfTwoPixels();
    void needsACamera();
    void initialisesOnceAndDrawsEveryFrame();
    void withoutAFrameNothingIsDrawn();
    void isSkippedInAPictureOfTheScene();
};

void TestGPUDrawItem::boundsFollowTheScene()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
    LxGPUDrawItem item(false);
    QCOMPARE(item.boundingRect(), QRectF(0, 0, 200, 200));
    QVERIFY(!item.acceptDrops());
    item.SetViewRect(300, 0, wholePicture);
    QCOMPARE(item.boundingRect(), QRectF(0, 0, 200, 200));
    item.SetViewRect(300, 200, wholePicture);
    QCOMPARE(item.boundingRect(), QRectF());
    item.UpdateView(); // in no scene: nobody to ask

    fixture.view->scene()->addItem(&item);
    QCOMPARE(item.boundingRect(), QRectF(0, 0, 800, 400));
    fixture.view->slotPaintPreview(GreyPicture({ 500, 300 }));
    QCOMPARE(item.boundingRect(), QRectF(0, 0, 500, 300));
    fixture.view->scene()->removeItem(&item);
}

void TestGPUDrawItem::needsAViewportOfTwoPixels_data()
{
    QTest::addColumn<QSize>("viewportSize");
    QTest::addColumn<bool>("drawn");
    QTest::newRow("1 x 100") << QSize(1, 100) << false;
    QTest::newRow("100 x 1") << QSize(100, 1) << false;
    QTest::newRow("0 x 0") << QSize(0, 0) << false;
    QTest::newRow("2 x 2") << QSize(2, 2) << true;
}

void TestGPUDrawItem::needsAViewportOfTwoPixels()
{
    QFETCH(QSize, viewportSize);
    QFETCH(bool, drawn);
    FakeCameraMainManager camera;
    DrawViewFixture fixture;
    QOpenGLWidget viewport;
    viewport.setWindowFlag(Qt::FramelessWindowHint);
    viewport.resize(20, 20);
    viewport.show();
    QVERIFY(QTest::qWaitForWindowExposed(&viewport));
    {
        LxGPUDrawItem item(false);
        item.SetViewRect(viewportSize.width(), viewportSize.height(), wholePicture);
        viewport.makeCurrent();
        QPainter painter(&viewport);
        item.paint(&painter, nullptr, nullptr);
    }
    viewport.doneCurrent();
    QCOMPARE(DebugLines().contains(initialised), drawn);
}

void TestGPUDrawItem::needsACamera()
{
    DrawViewFixture fixture;
    const RawFrame frame(GreyPicture({ 300, 200 }));
    fixture.services.preview.currentRawFrame = frame.Record();
    fixture.view->SetGPUDrawView();
    fixture.view->slotPaintPreview(GreyPicture({ 300, 200 }));
    QVERIFY(fixture.Show());
    GrabFromScreen(&fixture.host);
    QVERIFY(!DebugLines().contains(firstInitLine));

    FakeCameraMainManager camera;
    fixture.view->slotPaintPreview(GreyPicture({ 300, 200 }));
    QTRY_VERIFY(DebugLines().contains(initialised));
}

void TestGPUDrawItem::initialisesOnceAndDrawsEveryFrame()
{
    FakeCameraMainManager camera;
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->SetGPUDrawView();
    QImage shown;
    for (int seed = 0; seed < 3; ++seed) {
        const QImage picture = GreyPicture({ 400, 300 }, 60 * seed);
        const RawFrame frame(picture);
        fixture.services.preview.currentRawFrame = frame.Record();
        fixture.view->slotPaintPreview(picture);
        QTRY_COMPARE(GrabFromScreen(fixture.view).copy(0, 0, 300, 200),
                     picture.convertToFormat(QImage::Format_RGB32).copy(0, 0, 300, 200));
        fixture.services.preview.currentRawFrame = nullptr;
    }
    QCOMPARE(DebugLines().count(initialised), 1);
    QCOMPARE(DebugLines().filter("errcode").size(), 0);
}

void TestGPUDrawItem::withoutAFrameNothingIsDrawn()
{
    FakeCameraMainManager camera;
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->SetGPUDrawView();
    fixture.view->slotPaintPreview(GreyPicture({ 400, 300 }));
    QTRY_VERIFY(DebugLines().contains(initialised));
    QVERIFY(!DebugLines().contains("data NULL"));

    RawCameraFrame empty{};
    empty.width = 400;
    empty.height = 300;
    empty.channels = 1;
    empty.headerLength = 64;
    fixture.services.preview.currentRawFrame = &empty;
    fixture.view->slotPaintPreview(GreyPicture({ 400, 300 }));
    QTRY_VERIFY(DebugLines().contains("data NULL"));
}

void TestGPUDrawItem::isSkippedInAPictureOfTheScene()
{
    FakeCameraMainManager camera;
    DrawViewFixture fixture;
    const RawFrame frame(GreyPicture({ 300, 200 }));
    fixture.services.preview.currentRawFrame = frame.Record();
    fixture.view->SetGPUDrawView();
    fixture.view->slotSetBrush();
    const QImage background = GreyPicture({ 300, 200 }, 5);
    fixture.view->slotPaintPreview(background);

    QImage picture(300, 200, QImage::Format_RGB32);
    QPainter painter(&picture);
    fixture.view->scene()->render(&painter);
    painter.end();
    QCOMPARE(picture, background.convertToFormat(QImage::Format_RGB32));
    QVERIFY(!DebugLines().contains(firstInitLine));
}

GUARDED_TEST_MAIN(TestGPUDrawItem)
#include "tst_gpudrawitem.moc"
