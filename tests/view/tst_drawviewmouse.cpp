// SPDX-License-Identifier: GPL-3.0-or-later
#include "drawviewfixture.h"
#include "guardedtest.h"

#include <QGraphicsScene>
#include <QScrollBar>
#include <QSignalSpy>

/// Panning, wheel zoom and position reports of the draw view and its frame.
class TestDrawViewMouse : public GuardedTest
{
    Q_OBJECT

private slots:
    void sayingsOfAMove();
    void moveWhileMeasuringLeavesTheScaleFactorAlone();
    void positionIsRounded();
    void pressShowsTheHandOnlyWhenThePictureMayMove_data();
    void pressShowsTheHandOnlyWhenThePictureMayMove();
    void dragPansThePicture();
    void dragStopsWhenAnotherToolTakesTheMouse();
    void releaseAndDoubleClickAreSaid();
    void dragPansWithGPUDrawing();
    void wheelZoomsAndNeverScrolls_data();
    void wheelZoomsAndNeverScrolls();
    void wheelKeepsThePointUnderTheMouse_data();
    void wheelKeepsThePointUnderTheMouse();
    void wheelKeepsThePointUnderTheMouseWithGPUDrawing_data();
    void wheelKeepsThePointUnderTheMouseWithGPUDrawing();
    void sayingsOfTheWheel();
    void sayingsOfTheWheelWithGPUDrawing();
    void verticalSliderGoesFurther_data();
    void verticalSliderGoesFurther();
    void framePositionsAreCut();
    void frameReportsTheMouseBesideThePicture();
    void frameCentresASmallPicture();
};

void TestDrawViewMouse::sayingsOfAMove()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
    fixture.LogSignals();
    fixture.SendMouse(QEvent::MouseMove, { 100, 30 });
    QCOMPARE(CallLog::Calls(), (QStringList{
                                   "signalEnableScaleFactor((100, 30))",
                                   "signalUpdateMousePosition((200, 60))",
                                   "UIConfigManager::signalImageInfoChanged()",
                                   "signalUpdateImageGrayValueInfo()",
                                   "signalMouseMoveEvent()",
                               }));
    QCOMPARE(fixture.report.GetMousePosition(), QPoint(200, 60));
    QCOMPARE(fixture.services.cameraReport.GetMousePosition(), QPoint(0, 0));
}

void TestDrawViewMouse::moveWhileMeasuringLeavesTheScaleFactorAlone()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
    fixture.services.cameraMeasure.measurementInProgress = true;
    fixture.LogSignals();
    fixture.SendMouse(QEvent::MouseMove, { 100, 30 });
    QCOMPARE(CallLog::Calls().first(), QString("signalUpdateMousePosition((200, 60))"));
}

void TestDrawViewMouse::positionIsRounded()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({ 1600, 1200 }));
    fixture.view->slotSetScaleFactor(4.0);
    QSignalSpy position(fixture.view, SIGNAL(signalUpdateMousePosition(QPointF)));
    fixture.view->slotUpdateMousePosition({ 11, 9 });
    QCOMPARE(position.first().first().toPointF(), QPointF(2.75, 2.25));
    QCOMPARE(fixture.report.GetMousePosition(), QPoint(3, 2));
}

void TestDrawViewMouse::pressShowsTheHandOnlyWhenThePictureMayMove_data()
{
    QTest::addColumn<bool>("canMove");
    QTest::addColumn<int>("pressed");
    QTest::newRow("pan") << true << int(Qt::SizeAllCursor);
    QTest::newRow("another tool owns the mouse") << false << int(Qt::ArrowCursor);
}

void TestDrawViewMouse::pressShowsTheHandOnlyWhenThePictureMayMove()
{
    QFETCH(bool, canMove);
    QFETCH(int, pressed);
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
    fixture.services.global.drawViewCanMove = canMove;
    QSignalSpy scenes(fixture.view, SIGNAL(signalGraphicsViewPressed(QGraphicsScene *)));
    fixture.LogSignals();
    fixture.SendMouse(QEvent::MouseButtonPress, { 100, 30 }, Qt::LeftButton);
    QCOMPARE(CallLog::Calls(), (QStringList{
                                   "signalGraphicsViewPressed()",
                                   "signalMousePressEvent((200, 60))",
                               }));
    QCOMPARE(scenes.first().first().value<QGraphicsScene *>(), fixture.view->scene());
    QCOMPARE(int(fixture.view->viewport()->cursor().shape()), pressed);
    fixture.SendMouse(QEvent::MouseButtonRelease, { 100, 30 });
    QCOMPARE(int(fixture.view->viewport()->cursor().shape()), int(Qt::ArrowCursor));
}

void TestDrawViewMouse::dragPansThePicture()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->slotPaintPreview(GreyPicture({ 2000, 1600 }));
    fixture.view->slotZoom1v1();
    fixture.frame->SetSliderPosition({ 500, 400 });
    const QPoint start = fixture.view->mapFrom(fixture.frame->viewport(), { 150, 150 });
    fixture.SendMouse(QEvent::MouseButtonPress, start, Qt::LeftButton);
    fixture.LogSignals();

    // 30 to the right and 20 up: the picture follows.
    fixture.SendMouse(QEvent::MouseMove, start + QPoint(30, -20), Qt::LeftButton);
    QCOMPARE(CallLog::Calls().mid(1, 2),
             (QStringList{ "signalMoveImage((30, -20))", "signalCompareMove((30, -20))" }));
    QCOMPARE(fixture.FrameScroll(), QPoint(470, 420));
    QCOMPARE(fixture.view->mapTo(fixture.frame->viewport(), start), QPoint(180, 130));

    // The mouse rests: the picture does too.
    const QPoint rest = fixture.view->mapFrom(fixture.frame->viewport(), { 180, 130 });
    fixture.SendMouse(QEvent::MouseMove, rest, Qt::LeftButton);
    QCOMPARE(fixture.FrameScroll(), QPoint(470, 420));

    fixture.SendMouse(QEvent::MouseButtonRelease, rest);
    CallLog::Clear();
    fixture.SendMouse(QEvent::MouseMove, rest + QPoint(50, 50));
    QCOMPARE(CallLog::Count("signalMoveImage((50, 50))"), 0);
    QCOMPARE(fixture.FrameScroll(), QPoint(470, 420));
}

void TestDrawViewMouse::dragStopsWhenAnotherToolTakesTheMouse()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->slotPaintPreview(GreyPicture({ 2000, 1600 }));
    fixture.view->slotZoom1v1();
    fixture.SendMouse(QEvent::MouseButtonPress, { 150, 150 }, Qt::LeftButton);
    fixture.services.global.drawViewCanMove = false;
    fixture.SendMouse(QEvent::MouseMove, { 100, 100 }, Qt::LeftButton);
    QCOMPARE(fixture.FrameScroll(), QPoint(0, 0));
}

void TestDrawViewMouse::releaseAndDoubleClickAreSaid()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
    fixture.LogSignals();
    fixture.SendMouse(QEvent::MouseButtonRelease, { 1, 1 });
    fixture.SendMouse(QEvent::MouseButtonDblClick, { 1, 1 }, Qt::LeftButton);
    QCOMPARE(CallLog::Calls(), (QStringList{ "signalMouseReleaseEvent()", "signalMouseDoubleClickEvent()" }));
}

void TestDrawViewMouse::dragPansWithGPUDrawing()
{
    DrawViewFixture fixture;
    fixture.view->SetGPUDrawView();
    fixture.view->slotPaintPreview(GreyPicture({ 2000, 1600 }));
    fixture.view->slotZoom1v1();
    fixture.view->slotHorizontalScrollBarValueChanged(500);
    fixture.view->slotVerticalScrollBarValueChanged(400);
    fixture.SendMouse(QEvent::MouseButtonPress, { 100, 100 }, Qt::LeftButton);
    fixture.SendMouse(QEvent::MouseMove, { 70, 120 }, Qt::LeftButton);
    QCOMPARE(fixture.ViewScroll(), QPoint(530, 380));
    const QRectF viewRect = fixture.view->GetGPUViewRect();
    QCOMPARE(float(viewRect.x()), 530.0F / 2000);
    QCOMPARE(float(viewRect.y()), 380.0F / 1600);
}

void TestDrawViewMouse::wheelZoomsAndNeverScrolls_data()
{
    QTest::addColumn<QPoint>("angleDelta");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("delta");
    QTest::newRow("forward") << QPoint(0, 120) << int(Qt::NoModifier) << 2.0 << 120;
    QTest::newRow("backward") << QPoint(0, -120) << int(Qt::NoModifier) << 0.5 << -120;
    QTest::newRow("with Ctrl") << QPoint(0, 120) << int(Qt::ControlModifier) << 2.0 << 120;
    QTest::newRow("with Alt, turned sideways") << QPoint(120, 0) << int(Qt::AltModifier) << 2.0 << 120;
    QTest::newRow("the larger component counts") << QPoint(-240, 120) << int(Qt::NoModifier) << 0.5 << -240;
    QTest::newRow("finest step forward") << QPoint(0, 1) << int(Qt::NoModifier) << 2.0 << 1;
    QTest::newRow("no step is backward") << QPoint(0, 0) << int(Qt::NoModifier) << 0.5 << 0;
}

void TestDrawViewMouse::wheelZoomsAndNeverScrolls()
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

void TestDrawViewMouse::wheelKeepsThePointUnderTheMouse_data()
{
    QTest::addColumn<int>("angle");
    QTest::addColumn<int>("bias"); // screen pixels, in the direction of travel
    QTest::newRow("in: further down") << 120 << 60;
    QTest::newRow("out: further up") << -120 << -60;
}

void TestDrawViewMouse::wheelKeepsThePointUnderTheMouse()
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

void TestDrawViewMouse::wheelKeepsThePointUnderTheMouseWithGPUDrawing_data()
{
    QTest::addColumn<int>("angle");
    QTest::newRow("in") << 120;
    QTest::newRow("out") << -120;
}

void TestDrawViewMouse::wheelKeepsThePointUnderTheMouseWithGPUDrawing()
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

void TestDrawViewMouse::sayingsOfTheWheel()
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

void TestDrawViewMouse::sayingsOfTheWheelWithGPUDrawing()
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

void TestDrawViewMouse::verticalSliderGoesFurther_data()
{
    QTest::addColumn<QPointF>("wanted");
    QTest::addColumn<QPoint>("reached");
    // From (300, 300).
    QTest::newRow("down") << QPointF(400.9, 400.9) << QPoint(400, 460);
    QTest::newRow("up") << QPointF(100.9, 200.9) << QPoint(100, 140);
    QTest::newRow("where it is: up") << QPointF(300, 300) << QPoint(300, 240);
    QTest::newRow("not beyond the start") << QPointF(-10, 20) << QPoint(0, 0);
}

void TestDrawViewMouse::verticalSliderGoesFurther()
{
    QFETCH(QPointF, wanted);
    QFETCH(QPoint, reached);
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->slotPaintPreview(GreyPicture({ 2000, 2000 }));
    fixture.view->slotZoom1v1();
    fixture.frame->SetSliderPosition({ 300, 300 });
    emit fixture.view->signalSetSliderPosition(wanted);
    QCOMPARE(fixture.FrameScroll(), reached);
}

void TestDrawViewMouse::framePositionsAreCut()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->slotPaintPreview(GreyPicture({ 2000, 2000 }));
    fixture.view->slotZoom1v1();
    fixture.frame->SetSliderPosition({ 300.9, 200.9 });
    QCOMPARE(fixture.FrameScroll(), QPoint(300, 200));
    // 300 - 10.5 and 200 + 10.5, towards zero.
    fixture.frame->slotMoveImage({ 10.5, -10.5 });
    QCOMPARE(fixture.FrameScroll(), QPoint(289, 210));
    fixture.frame->MoveImage({ -0.5, 0.5 });
    QCOMPARE(fixture.FrameScroll(), QPoint(289, 209));
}

void TestDrawViewMouse::frameReportsTheMouseBesideThePicture()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.frame->hasMouseTracking());
    QSignalSpy enabled(fixture.frame, SIGNAL(signalEnableScaleFactor(QPoint)));
    QMouseEvent move(QEvent::MouseMove, QPointF(5, 7), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(fixture.frame->viewport(), &move);
    QCOMPARE(enabled.count(), 1);
    QCOMPARE(enabled.first().first().toPoint(), QPoint(5, 7));

    fixture.services.mainMeasure.measurementInProgress = true;
    QApplication::sendEvent(fixture.frame->viewport(), &move);
    QCOMPARE(enabled.count(), 1);
}

void TestDrawViewMouse::frameCentresASmallPicture()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    QCOMPARE(fixture.frame->alignment(), Qt::AlignCenter);
    fixture.view->slotPaintPreview(GreyPicture({ 200, 100 }));
    fixture.view->slotZoom1v1();
    const QSize window = fixture.frame->viewport()->size();
    QCOMPARE(fixture.view->pos(), QPoint((window.width() - 200) / 2, (window.height() - 100) / 2));
}

GUARDED_TEST_MAIN(TestDrawViewMouse)
#include "tst_drawviewmouse.moc"
