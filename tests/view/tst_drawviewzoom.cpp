// SPDX-License-Identifier: GPL-3.0-or-later
#include "drawviewfixture.h"
#include "guardedtest.h"

#include <QSignalSpy>

/// The zoom commands of the draw view with CPU drawing.
class TestDrawViewZoom : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase() { StartOpenGLDriver(); }
    void zoomWithoutAPictureDoesNothing();
    void zoomCommands_data();
    void zoomCommands();
    void zoomInAndOutFromOneToOne();
    void zoomStepsAfterAFitAreExact();
    void zoomByDelta_data();
    void zoomByDelta();
    void scaleIsReported();
    void smallPictureOneToOne();
    void othersManagersAreNotObeyed();
    void viewWithoutAManagerObeysNobody();
    void fractionalScaleShowsTheFirstPixel_data();
    void fractionalScaleShowsTheFirstPixel();
    void largestPictureAtTheHighestZoom();
};

void TestDrawViewZoom::zoomWithoutAPictureDoesNothing()
{
    DrawViewFixture fixture;
    const QSize size = fixture.view->size();
    fixture.LogSignals();
    for (int type = -1; type < 5; ++type)
        fixture.view->slotScale(type);
    fixture.view->slotZoomIn();
    fixture.view->slotZoomOut();
    fixture.view->slotZoom1v1();
    fixture.view->slotZoomFit();
    fixture.view->slotSetScaleFactor(4.0);
    fixture.view->ZoomByDelta(120);
    QCOMPARE(CallLog::Calls(), QStringList());
    QCOMPARE(fixture.Scale(), 1.0);
    QCOMPARE(fixture.view->size(), size);
    QCOMPARE(fixture.view->sceneRect(), QRectF(0, 0, 1, 1));
}

void TestDrawViewZoom::zoomCommands_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("scale");
    // An 800 x 400 picture in a 400 x 300 host, before the command at 4.0.
    QTest::newRow("in") << 0 << 8.0;
    QTest::newRow("out") << 1 << 2.0;
    QTest::newRow("one to one") << 2 << 1.0;
    QTest::newRow("fit") << 3 << 0.5;
    QTest::newRow("unknown is one to one") << 7 << 1.0;
    QTest::newRow("negative is one to one") << -1 << 1.0;
}

void TestDrawViewZoom::zoomCommands()
{
    QFETCH(int, type);
    QFETCH(double, scale);
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
    fixture.view->slotSetScaleFactor(4.0);
    QSignalSpy changed(fixture.view, SIGNAL(signalScaleFactorChanged(double)));
    fixture.view->slotScale(type);
    QCOMPARE(fixture.Scale(), scale);
    QCOMPARE(fixture.view->transform().m22(), scale);
    QCOMPARE(fixture.view->size(), QSize(800, 400) * scale);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().toDouble(), scale);
}

void TestDrawViewZoom::zoomInAndOutFromOneToOne()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({ 4096, 512 }));
    fixture.view->slotZoom1v1();
    for (double scale : { 2.0, 4.0, 8.0, 16.0, 32.0, 32.0 }) {
        fixture.view->slotZoomIn();
        QCOMPARE(fixture.Scale(), scale);
    }
    fixture.view->slotZoom1v1();
    for (double scale : { 0.5, 0.25, 0.125, 0.0625, 0.0625 }) {
        fixture.view->slotZoomOut();
        QCOMPARE(fixture.Scale(), scale);
    }
}

void TestDrawViewZoom::zoomStepsAfterAFitAreExact()
{
    DrawViewFixture fixture({ 397, 293 });
    fixture.view->slotPaintPreview(GreyPicture({ 1003, 701 }));
    fixture.view->ZoomFit();
    fixture.view->ZoomIn();
    fixture.view->ZoomIn();
    // 397 / 1003 -> 1 -> 2, without the rounding of a product of scales.
    QCOMPARE(fixture.Scale() - 2.0, 0.0);
    QCOMPARE(fixture.view->size(), QSize(2006, 1402));
    fixture.view->ZoomOut();
    QCOMPARE(fixture.view->size(), QSize(1003, 701));
}

void TestDrawViewZoom::zoomByDelta_data()
{
    QTest::addColumn<int>("delta");
    QTest::addColumn<double>("scale");
    QTest::newRow("forward") << 120 << 2.0;
    QTest::newRow("a little forward") << 1 << 2.0;
    QTest::newRow("nothing") << 0 << 0.5;
    QTest::newRow("backward") << -120 << 0.5;
}

void TestDrawViewZoom::zoomByDelta()
{
    QFETCH(int, delta);
    QFETCH(double, scale);
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({ 800, 800 }));
    fixture.view->slotZoom1v1();
    fixture.view->ZoomByDelta(delta);
    QCOMPARE(fixture.Scale(), scale);
}

void TestDrawViewZoom::scaleIsReported()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
    fixture.LogSignals();
    fixture.view->slotSetScaleFactor(40.0);
    QCOMPARE(fixture.report.GetScaleFactor(), 40.0F);
    fixture.view->slotSetScaleFactor(0.001);
    QCOMPARE(fixture.report.GetScaleFactor(), 0.32F);
    QCOMPARE(CallLog::Calls(), (QStringList{
                                   "UIConfigManager::signalImageInfoChanged()",
                                   "signalScaleFactorChanged(40)",
                                   "UIConfigManager::signalImageInfoChanged()",
                                   "signalScaleFactorChanged(0.32)",
                               }));
}

void TestDrawViewZoom::smallPictureOneToOne()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({ 100, 50 }));
    // Its smallest scale is 256 / 100; one to one is the whole number below it.
    fixture.view->slotZoom1v1();
    QCOMPARE(fixture.Scale(), 2.0);
    QCOMPARE(fixture.view->size(), QSize(200, 100));
    fixture.view->slotSetScaleFactor(1.0);
    QCOMPARE(fixture.Scale(), 2.56);
    fixture.view->slotScale(2);
    QCOMPARE(fixture.Scale(), 2.0);
    QCOMPARE(fixture.view->size(), QSize(200, 100));
}

void TestDrawViewZoom::viewWithoutAManagerObeysNobody()
{
    DrawViewFixture fixture;
    fixture.view->SetViewManager(nullptr);
    fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
    fixture.view->slotScaleView(nullptr, 0);
    fixture.view->slotSetScaleFactor(nullptr, 4.0);
    QCOMPARE(fixture.Scale(), 0.5);
}

void TestDrawViewZoom::fractionalScaleShowsTheFirstPixel_data()
{
    QTest::addColumn<double>("scale");
    QTest::newRow("0.55") << 0.55;
    QTest::newRow("0.77") << 0.77;
    QTest::newRow("1.3") << 1.3;
    QTest::newRow("smallest") << 0.0;
}

void TestDrawViewZoom::fractionalScaleShowsTheFirstPixel()
{
    QFETCH(double, scale);
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->slotPaintPreview(GreyPicture({ 1003, 701 }));
    fixture.view->slotSetScaleFactor(scale);
    QCOMPARE(fixture.view->mapToScene(QPoint(0, 0)), QPointF(0, 0));
    // Nor does a key push it out.
    QTest::keyClick(fixture.view, Qt::Key_Right);
    QTest::keyClick(fixture.view, Qt::Key_Down);
    QCOMPARE(fixture.view->mapToScene(QPoint(0, 0)), QPointF(0, 0));
    // And GPU drawing leaves nothing of it behind.
    fixture.host.slotSetCPUDraw(false);
    fixture.host.slotSetCPUDraw(true);
    QCOMPARE(fixture.view->mapToScene(QPoint(0, 0)), QPointF(0, 0));
}

void TestDrawViewZoom::othersManagersAreNotObeyed()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
    fixture.LogSignals();
    fixture.view->slotScaleView(&fixture.services.cameraReport, 0);
    fixture.view->slotSetScaleFactor(&fixture.services.cameraReport, 4.0);
    QCOMPARE(CallLog::Calls(), QStringList());
    QCOMPARE(fixture.Scale(), 0.5);

    fixture.view->slotScaleView(&fixture.report, 0);
    QCOMPARE(fixture.Scale(), 1.0);
    fixture.view->slotSetScaleFactor(&fixture.report, 4.0);
    QCOMPARE(fixture.Scale(), 4.0);
}

void TestDrawViewZoom::largestPictureAtTheHighestZoom()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->slotPaintPreview(GreyPicture({ 4096, 4096 }));
    fixture.view->slotSetScaleFactor(32.0);
    QCOMPARE(fixture.view->size(), QSize(131072, 131072));
    QCOMPARE(fixture.view->viewport()->size(), QSize(131072, 131072));
    fixture.frame->SetSliderPosition({ 1e6, 1e6 });
    const QSize window = fixture.frame->viewport()->size();
    QCOMPARE(fixture.FrameScroll(), QPoint(131072 - window.width(), 131072 - window.height()));
    // The bottom right picture pixel is under the bottom right screen pixel.
    const QPoint corner =
        fixture.view->mapFrom(fixture.frame->viewport(), QPoint(window.width() - 1, window.height() - 1));
    QCOMPARE(corner, QPoint(131071, 131071));
    QCOMPARE(fixture.view->mapToScene(corner), QPointF(131071 / 32.0, 131071 / 32.0));
}

GUARDED_TEST_MAIN(TestDrawViewZoom)
#include "tst_drawviewzoom.moc"
