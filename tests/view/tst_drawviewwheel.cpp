// SPDX-License-Identifier: GPL-3.0-or-later
#include "drawviewfixture.h"
#include "guardedtest.h"

#include <QScrollBar>
#include <QSignalSpy>

/// The wheel over the draw view: it zooms around the mouse and does nothing else.
class TestDrawViewWheel : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase() { StartOpenGLDriver(); }
    void wheelZooms_data();
    void wheelZooms();
    void slantingTurnZoomsOnce_data();
    void slantingTurnZoomsOnce();
    void wheelNeverScrolls_data();
    void wheelNeverScrolls();
    void wheelNeverScrollsTheFrameWithGPUDrawing();
    void wheelKeepsThePointUnderTheMouse_data();
    void wheelKeepsThePointUnderTheMouse();
    void wheelKeepsThePointUnderTheMouseWithGPUDrawing_data();
    void wheelKeepsThePointUnderTheMouseWithGPUDrawing();
    void sayingsOfTheWheel();
    void sayingsOfTheWheelWithGPUDrawing();
};

void TestDrawViewWheel::wheelZooms_data()
{
    QTest::addColumn<QPoint>("angleDelta");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("delta");
    QTest::newRow("forward") << QPoint(0, 120) << int(Qt::NoModifier) << 2.0 << 120;
    QTest::newRow("backward") << QPoint(0, -120) << int(Qt::NoModifier) << 0.5 << -120;
    QTest::newRow("with Ctrl") << QPoint(0, 120) << int(Qt::ControlModifier) << 2.0 << 120;
    QTest::newRow("with Alt, turned sideways") << QPoint(120, 0) << int(Qt::AltModifier) << 2.0 << 120;
    QTest::newRow("slanting: up and down counts") << QPoint(-240, 120) << int(Qt::NoModifier) << 2.0 << 120;
    QTest::newRow("slanting back") << QPoint(3, -120) << int(Qt::NoModifier) << 0.5 << -120;
    QTest::newRow("finest step forward") << QPoint(0, 1) << int(Qt::NoModifier) << 2.0 << 1;
}

void TestDrawViewWheel::wheelZooms()
{
    QFETCH(QPoint, angleDelta);
    QFETCH(int, modifiers);
    QFETCH(double, scale);
    QFETCH(int, delta);
    for (bool cpuDraw : { true, false }) {
        DrawViewFixture fixture;
        fixture.host.slotSetCPUDraw(cpuDraw);
        fixture.view->slotPaintPreview(GreyPicture({ 2000, 1600 }));
        fixture.view->slotZoom1v1();
        QSignalSpy compare(fixture.view, SIGNAL(signalCompareScale(int, QPointF)));
        fixture.SendWheel({ 10, 10 }, angleDelta, Qt::KeyboardModifiers(modifiers));
        QCOMPARE(fixture.Scale(), scale);
        QCOMPARE(compare.count(), 1);
        QCOMPARE(compare.first().first().toInt(), delta);
    }
}

void TestDrawViewWheel::slantingTurnZoomsOnce_data()
{
    QTest::addColumn<bool>("cpuDraw");
    QTest::newRow("CPU drawing") << true;
    QTest::newRow("GPU drawing") << false;
}

void TestDrawViewWheel::slantingTurnZoomsOnce()
{
    QFETCH(bool, cpuDraw);
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.host.slotSetCPUDraw(cpuDraw);
    fixture.view->slotPaintPreview(GreyPicture({ 2000, 1600 }));
    fixture.view->slotZoom1v1();
    QSignalSpy compare(fixture.view, SIGNAL(signalCompareScale(int, QPointF)));
    // A turn on both axes comes as two events, the second of them without an angle.
    fixture.SendWheel({ 10, 10 }, { 3, 120 });
    const QPoint frameScroll = fixture.FrameScroll();
    const QPoint viewScroll = fixture.ViewScroll();
    fixture.SendWheel({ 10, 10 }, { 0, 0 });
    QCOMPARE(fixture.Scale(), 2.0);
    QCOMPARE(compare.count(), 1);
    QCOMPARE(compare.first().first().toInt(), 120);
    QCOMPARE(fixture.FrameScroll(), frameScroll);
    QCOMPARE(fixture.ViewScroll(), viewScroll);
}

void TestDrawViewWheel::wheelNeverScrolls_data()
{
    QTest::addColumn<int>("angle");
    QTest::addColumn<QPoint>("reached");
    // The frame's middle (200, 150) shows picture (700, 550) at 1.0. The slider goes to
    // (700, 550) x scale - (200, 150), and 60 further in the vertical direction of travel.
    QTest::newRow("forward") << 120 << QPoint(1200, 950 + 60);
    QTest::newRow("backward") << -120 << QPoint(150, 125 - 60);
}

void TestDrawViewWheel::wheelNeverScrolls()
{
    QFETCH(int, angle);
    QFETCH(QPoint, reached);
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->slotPaintPreview(GreyPicture({ 2000, 1600 }));
    fixture.view->slotZoom1v1();
    fixture.frame->SetSliderPosition({ 500, 400 });
    QCOMPARE(fixture.FrameScroll(), QPoint(500, 400));
    fixture.SendWheel(fixture.view->mapFrom(fixture.frame->viewport(), { 200, 150 }), { 0, angle });
    QCOMPARE(fixture.FrameScroll(), reached);
}

void TestDrawViewWheel::wheelNeverScrollsTheFrameWithGPUDrawing()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.host.slotSetCPUDraw(false);
    fixture.view->slotPaintPreview(GreyPicture({ 2000, 1600 }));
    fixture.view->slotSetScaleFactor(4.0);
    // The host's scroll bars take room, by which the frame could be scrolled.
    QTRY_VERIFY(fixture.frame->verticalScrollBar()->maximum() > 0);
    fixture.SendWheel({ 200, 150 }, { 0, -120 });
    QCOMPARE(fixture.Scale(), 2.0);
    QCOMPARE(fixture.FrameScroll(), QPoint(0, 0));
}

void TestDrawViewWheel::wheelKeepsThePointUnderTheMouse_data()
{
    QTest::addColumn<int>("angle");
    QTest::addColumn<int>("bias"); // screen pixels, in the direction of travel
    QTest::newRow("in: further down") << 120 << 60;
    QTest::newRow("out: further up") << -120 << -60;
}

void TestDrawViewWheel::wheelKeepsThePointUnderTheMouse()
{
    QFETCH(int, angle);
    QFETCH(int, bias);
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->slotPaintPreview(GreyPicture({ 4000, 3200 }));
    fixture.view->slotSetScaleFactor(2.0);
    fixture.frame->SetSliderPosition({ 3000, 2500 });
    const QPoint mouse(123, 77); // in the frame
    const QPoint viewPos = fixture.view->mapFrom(fixture.frame->viewport(), mouse);
    const QPointF before = fixture.view->mapToScene(viewPos);
    fixture.SendWheel(viewPos, { 0, angle });

    const QPointF after = fixture.view->mapToScene(fixture.view->mapFrom(fixture.frame->viewport(), mouse));
    // A screen pixel is 1 / scale picture pixels; the vertical position goes 60 screen pixels further.
    QVERIFY2(qAbs(after.x() - before.x()) * fixture.Scale() <= 1.0,
             qPrintable(QString::number(after.x() - before.x())));
    QVERIFY2(qAbs((after.y() - before.y()) * fixture.Scale() - bias) <= 1.0,
             qPrintable(QString::number(after.y() - before.y())));
}

void TestDrawViewWheel::wheelKeepsThePointUnderTheMouseWithGPUDrawing_data()
{
    QTest::addColumn<int>("angle");
    QTest::newRow("in") << 120;
    QTest::newRow("out") << -120;
}

void TestDrawViewWheel::wheelKeepsThePointUnderTheMouseWithGPUDrawing()
{
    QFETCH(int, angle);
    DrawViewFixture fixture;
    fixture.view->SetGPUDrawView();
    fixture.view->slotPaintPreview(GreyPicture({ 4000, 3200 }));
    fixture.view->slotSetScaleFactor(2.0);
    fixture.view->slotHorizontalScrollBarValueChanged(3000);
    fixture.view->slotVerticalScrollBarValueChanged(2500);
    const QPoint mouse(123, 77);
    const QPointF before = fixture.view->mapToScene(mouse);
    fixture.SendWheel(mouse, { 0, angle });
    const QPointF after = fixture.view->mapToScene(mouse);
    QVERIFY2(qAbs(after.x() - before.x()) * fixture.Scale() <= 1.0,
             qPrintable(QString::number(after.x() - before.x())));
    QVERIFY2(qAbs(after.y() - before.y()) * fixture.Scale() <= 1.0,
             qPrintable(QString::number(after.y() - before.y())));
    // What the GPU draws is what the view shows.
    const QRectF viewRect = fixture.view->GetGPUViewRect();
    const QPointF corner = fixture.view->mapToScene(QPoint(0, 0));
    QVERIFY(qAbs(viewRect.x() * 4000 - corner.x()) < 0.01);
    QVERIFY(qAbs(viewRect.y() * 3200 - corner.y()) < 0.01);
}

void TestDrawViewWheel::sayingsOfTheWheel()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
    fixture.LogSignals();
    // At 0.5 the mouse is at 0.25 of the width and 0.5 of the height; the view lies at the frame's (1, 51).
    fixture.SendWheel({ 100, 100 }, { 0, 120 });
    const QPoint origin = fixture.view->pos();
    const QPointF slider(800 * 0.25 - (100 + origin.x()), 400 * 0.5 - (100 + origin.y()));
    QCOMPARE(CallLog::Calls(), (QStringList{
                                   "UIConfigManager::signalImageInfoChanged()",
                                   "signalScaleFactorChanged(1)",
                                   "signalSetSliderPosition(" + Text(slider) + ")",
                                   "signalCompareScale(120, " + Text(slider) + ")",
                               }));
}

void TestDrawViewWheel::sayingsOfTheWheelWithGPUDrawing()
{
    DrawViewFixture fixture;
    fixture.view->SetGPUDrawView();
    fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
    fixture.LogSignals();
    fixture.SendWheel({ 100, 100 }, { 0, 120 });
    // At 1.0 picture (200, 200) stays under the mouse, at a quarter of the old width 400 and half of
    // the old height 200; the new viewport is 400 x 300.
    const QStringList updates{ "signalUpdateHorizontalScrollBar()", "signalUpdateVerticalScrollBar()" };
    QCOMPARE(CallLog::Calls().mid(0, 2), (QStringList{ "signalSetHorizontalScrollBarVisible(true)",
                                                       "signalSetVerticalScrollBarVisible(true)" }));
    QCOMPARE(CallLog::Calls().last(), QString("signalCompareScale(120, (100, 50))"));
    QCOMPARE(CallLog::Count("signalScaleFactorChanged(1)"), 1);
    QCOMPARE(CallLog::Count("signalSetSliderPosition((100, 50))"), 0);
    QCOMPARE(CallLog::Calls().mid(CallLog::Calls().size() - 3, 2), updates);
}

GUARDED_TEST_MAIN(TestDrawViewWheel)
#include "tst_drawviewwheel.moc"
