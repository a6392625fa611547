// SPDX-License-Identifier: GPL-3.0-or-later
#include "drawviewfixture.h"
#include "guardedtest.h"

#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSignalSpy>

namespace {

/// A mark that remembers which mouse events the scene brought it.
class RecordingMark : public QGraphicsRectItem
{
public:
    using QGraphicsRectItem::QGraphicsRectItem;

    QVector<QEvent::Type> events;

protected:
    bool sceneEvent(QEvent *event) override
    {
        events << event->type();
        event->accept();
        return true;
    }
};

struct SentMouseEvent
{
    QEvent::Type type;
    QPoint viewPos;

    bool operator==(const SentMouseEvent &other) const
    {
        return type == other.type && viewPos == other.viewPos;
    }
};

} // namespace

/// Panning and position reports of the draw view and its frame.
class TestDrawViewMouse : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase() { StartOpenGLDriver(); }
    void sayingsOfAMove();
    void moveWhileMeasuringLeavesTheScaleFactorAlone();
    void positionIsRounded();
    void pressShowsTheHandOnlyWhenThePictureMayMove_data();
    void pressShowsTheHandOnlyWhenThePictureMayMove();
    void dragPansThePicture();
    void dragStopsWhenAnotherToolTakesTheMouse();
    void releaseAndDoubleClickAreSaid();
    void mouseEventsAreHandedOn();
    void marksGetTheMouseEvents();
    void dragPansWithGPUDrawing();
    void pictureStaysUnderADragBesideTheHostsBars();
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

void TestDrawViewMouse::mouseEventsAreHandedOn()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
    QVector<SentMouseEvent> seen;
    const auto record = [&](QMouseEvent *event) { seen << SentMouseEvent{ event->type(), event->pos() }; };
    connect(fixture.view, &DrawViewBase::signalMousePressEvent, record);
    connect(fixture.view, &DrawViewBase::signalMouseMoveEvent, record);
    connect(fixture.view, &DrawViewBase::signalMouseReleaseEvent, record);
    connect(fixture.view, &DrawViewBase::signalMouseDoubleClickEvent, record);
    const QVector<SentMouseEvent> sent{ { QEvent::MouseButtonPress, { 11, 12 } },
                                        { QEvent::MouseMove, { 13, 14 } },
                                        { QEvent::MouseButtonRelease, { 15, 16 } },
                                        { QEvent::MouseButtonDblClick, { 17, 18 } } };
    for (const SentMouseEvent &event : sent)
        fixture.SendMouse(event.type, event.viewPos, Qt::LeftButton);
    QVERIFY(seen == sent);
}

void TestDrawViewMouse::marksGetTheMouseEvents()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
    RecordingMark mark(QRectF(100, 100, 50, 50));
    fixture.view->scene()->addItem(&mark);
    // At 0.5, so that view (60, 60) is picture (120, 120).
    fixture.SendMouse(QEvent::MouseButtonPress, { 60, 60 }, Qt::LeftButton);
    fixture.SendMouse(QEvent::MouseMove, { 62, 63 }, Qt::LeftButton);
    fixture.SendMouse(QEvent::MouseButtonRelease, { 62, 63 });
    fixture.SendMouse(QEvent::MouseButtonDblClick, { 62, 63 }, Qt::LeftButton);
    for (QEvent::Type type : { QEvent::GraphicsSceneMousePress, QEvent::GraphicsSceneMouseMove,
                               QEvent::GraphicsSceneMouseRelease, QEvent::GraphicsSceneMouseDoubleClick })
        QVERIFY2(mark.events.contains(type), qPrintable(QString::number(type)));
    fixture.view->scene()->removeItem(&mark);
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

void TestDrawViewMouse::pictureStaysUnderADragBesideTheHostsBars()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.host.slotSetCPUDraw(false);
    fixture.view->slotPaintPreview(GreyPicture({ 2000, 1600 }));
    fixture.view->slotZoom1v1();
    fixture.view->slotHorizontalScrollBarValueChanged(500);
    fixture.view->slotVerticalScrollBarValueChanged(400);
    // The host's bars take room from the frame, which can then be scrolled by as much.
    const QWidget *window = fixture.frame->viewport();
    QTRY_VERIFY(fixture.frame->horizontalScrollBar()->maximum() > 0
                && fixture.frame->verticalScrollBar()->maximum() > 0);
    const auto shownAt = [&](const QPoint &framePos) {
        return fixture.view->mapToScene(fixture.view->mapFrom(window, framePos));
    };

    QPoint mouse(200, 150);
    const QPointF grabbed = shownAt(mouse);
    QCOMPARE(grabbed, QPointF(700, 550));
    fixture.SendMouse(QEvent::MouseButtonPress, fixture.view->mapFrom(window, mouse), Qt::LeftButton);
    for (const QPoint &step : { QPoint(-10, -7), QPoint(-30, -40), QPoint(5, 3), QPoint(60, 60) }) {
        mouse += step;
        fixture.SendMouse(QEvent::MouseMove, fixture.view->mapFrom(window, mouse), Qt::LeftButton);
        QCOMPARE(shownAt(mouse), grabbed);
    }
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
