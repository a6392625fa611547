// SPDX-License-Identifier: GPL-3.0-or-later
#include "drawviewfixture.h"
#include "fakecameramainmanager.h"
#include "guardedtest.h"

#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QScrollBar>

/// GPU drawing shows the same as CPU drawing of the same frame.
class TestGPUDrawPixels : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase() { StartOpenGLDriver(); }
    void sameAsCPUDrawing_data();
    void sameAsCPUDrawing();
    void marksLieOnThePicture();
    void newWindowGetsThePictureToo();
};

void TestGPUDrawPixels::sameAsCPUDrawing_data()
{
    QTest::addColumn<QSize>("pictureSize");
    QTest::addColumn<bool>("colour");
    QTest::addColumn<double>("scale");
    QTest::addColumn<QPoint>("scroll");
    for (bool colour : { false, true }) {
        const QByteArray kind = colour ? "RGB, " : "mono, ";
        QTest::newRow(kind + "zoom 1") << QSize(256, 200) << colour << 1.0 << QPoint(0, 0);
        QTest::newRow(kind + "odd width") << QSize(257, 201) << colour << 1.0 << QPoint(0, 0);
        QTest::newRow(kind + "enlarged") << QSize(64, 32) << colour << 4.0 << QPoint(0, 0);
        QTest::newRow(kind + "scrolled, zoom 1") << QSize(1601, 999) << colour << 1.0 << QPoint(701, 333);
        QTest::newRow(kind + "scrolled, zoom 8") << QSize(640, 512) << colour << 8.0 << QPoint(1600, 2400);
        QTest::newRow(kind + "largest camera, zoom 32")
            << QSize(4096, 4096) << colour << 32.0 << QPoint(65536, 32768);
    }
}

void TestGPUDrawPixels::sameAsCPUDrawing()
{
    QFETCH(QSize, pictureSize);
    QFETCH(bool, colour);
    QFETCH(double, scale);
    QFETCH(QPoint, scroll);
    FakeCameraMainManager camera;
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    const QImage picture = colour ? ColourPicture(pictureSize) : GreyPicture(pictureSize);
    const RawFrame frame(picture);
    fixture.services.preview.currentRawFrame = frame.Record();

    fixture.view->slotPaintPreview(picture);
    fixture.view->slotSetScaleFactor(scale);
    fixture.frame->SetSliderPosition(scroll);
    QCOMPARE(fixture.FrameScroll(), scroll);
    // What both modes show for certain: beside the external scroll bars.
    const QRect common(QPoint(0, 0), (pictureSize * scale).boundedTo(QSize(370, 270)));
    const QPoint corner(qMax(0, fixture.view->x()), qMax(0, fixture.view->y()));
    QApplication::processEvents();
    const QImage byCPU = GrabFromScreen(fixture.frame->viewport()).copy(common.translated(corner));
    QCOMPARE(byCPU.pixel(0, 0), picture.pixel(int(scroll.x() / scale), int(scroll.y() / scale)));

    fixture.host.slotSetCPUDraw(false);
    fixture.view->slotHorizontalScrollBarValueChanged(scroll.x());
    fixture.view->slotVerticalScrollBarValueChanged(scroll.y());
    fixture.view->slotPaintPreview(picture);
    QCOMPARE(fixture.ViewScroll(), scroll);
    QTRY_COMPARE(GrabFromScreen(fixture.view).copy(common), byCPU);
}

void TestGPUDrawPixels::marksLieOnThePicture()
{
    FakeCameraMainManager camera;
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    const QImage picture = GreyPicture({ 256, 200 });
    const RawFrame frame(picture);
    fixture.services.preview.currentRawFrame = frame.Record();
    // There before the GPU item is.
    auto *mark = fixture.view->scene()->addRect(QRectF(10, 20, 30, 40), Qt::NoPen, Qt::red);
    fixture.view->SetGPUDrawView();
    fixture.view->slotPaintPreview(picture);
    fixture.view->slotZoom1v1();

    QImage expected = picture.convertToFormat(QImage::Format_RGB32);
    for (int y = 20; y < 60; ++y) {
        for (int x = 10; x < 40; ++x)
            expected.setPixelColor(x, y, Qt::red);
    }
    QTRY_COMPARE(GrabFromScreen(fixture.view), expected);

    // Another mark changes alone: nothing else gets lost.
    fixture.view->scene()->addRect(QRectF(100, 100, 20, 20), Qt::NoPen, Qt::green);
    for (int y = 100; y < 120; ++y) {
        for (int x = 100; x < 120; ++x)
            expected.setPixelColor(x, y, Qt::green);
    }
    QTRY_COMPARE(GrabFromScreen(fixture.view), expected);
    delete mark;
}

void TestGPUDrawPixels::newWindowGetsThePictureToo()
{
    FakeCameraMainManager camera;
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    const QImage picture = GreyPicture({ 256, 200 });
    const RawFrame frame(picture);
    fixture.services.preview.currentRawFrame = frame.Record();
    fixture.view->SetGPUDrawView();
    fixture.view->slotPaintPreview(picture);
    fixture.view->slotZoom1v1();
    const QImage expected = picture.convertToFormat(QImage::Format_RGB32);
    QTRY_COMPARE(GrabFromScreen(fixture.view), expected);

    QWidget window(nullptr, Qt::FramelessWindowHint);
    window.resize(500, 400);
    fixture.host.setParent(&window);
    fixture.host.move(20, 30);
    fixture.host.show();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_COMPARE(GrabFromScreen(fixture.view), expected);
    QCOMPARE(DebugLines().filter("errcode").size(), 0);
    fixture.host.setParent(nullptr);
}

GUARDED_TEST_MAIN(TestGPUDrawPixels)
#include "tst_gpudrawpixels.moc"
