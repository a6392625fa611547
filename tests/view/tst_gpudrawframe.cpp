// SPDX-License-Identifier: GPL-3.0-or-later
#include "drawviewfixture.h"
#include "guardedtest.h"

#include <QGridLayout>
#include <QScrollBar>
#include <QSignalSpy>

namespace {

/// Asks for a frame in the background, like the service that needs one.
class BrushReceiver : public QObject
{
    Q_OBJECT

public:
    int finished = 0;
    bool asksAgain = false;

public slots:
    void slotFinishSetBrush()
    {
        ++finished;
        if (asksAgain)
            emit signalSetBrush();
    }

signals:
    void signalSetBrush();
};

} // namespace

/// The host with its external scroll bars.
class TestGPUDrawFrame : public GuardedTest
{
    Q_OBJECT

private slots:
    void form();
    void barsAreShownAndHidden();
    void barsMirrorTheViewsBars();
    void smallerRangeDoesNotScrollTheView();
    void barsScrollTheView();
    void modeIsHandedDown();
    void moveImageMovesFrameAndBars();
    void brushConversation();
    void brushCanBeAskedForAgainAtOnce();
    void barsFollowZoomWithGPUDrawing();
};

void TestGPUDrawFrame::form()
{
    FakeServices services;
    GPUDrawFrame host;
    QCOMPARE(host.objectName(), QString("GPUDrawFrame"));
    QCOMPARE(host.size(), QSize(680, 576));
    QCOMPARE(host.windowTitle(), QString("Form"));

    const auto *layout = host.findChild<QGridLayout *>("gridLayout");
    QCOMPARE(static_cast<const QLayout *>(layout), static_cast<const QLayout *>(host.layout()));
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->itemAtPosition(0, 0)->widget(), static_cast<QWidget *>(host.GetDrawFrame()));

    auto *horizontal = host.findChild<QScrollBar *>("horizontalScrollBar");
    QCOMPARE(layout->itemAtPosition(1, 0)->widget(), static_cast<QWidget *>(horizontal));
    QCOMPARE(horizontal->orientation(), Qt::Horizontal);
    QVERIFY(!horizontal->isVisibleTo(&host));
    auto *vertical = host.findChild<QScrollBar *>("verticalScrollBar");
    QCOMPARE(layout->itemAtPosition(0, 1)->widget(), static_cast<QWidget *>(vertical));
    QCOMPARE(vertical->orientation(), Qt::Vertical);
    QVERIFY(!vertical->isVisibleTo(&host));

    QCOMPARE(host.GetDrawFrame()->parentWidget(), static_cast<QWidget *>(&host));
    QCOMPARE(host.GetDrawFrame()->widget(), static_cast<QWidget *>(host.GetDrawFrame()->GetDrawView()));
}

void TestGPUDrawFrame::barsAreShownAndHidden()
{
    DrawViewFixture fixture;
    const auto *horizontal = fixture.host.findChild<QScrollBar *>("horizontalScrollBar");
    const auto *vertical = fixture.host.findChild<QScrollBar *>("verticalScrollBar");
    fixture.host.slotSetHorizontalScrollBarVisible(true);
    QVERIFY(horizontal->isVisibleTo(&fixture.host));
    QVERIFY(!vertical->isVisibleTo(&fixture.host));
    fixture.host.slotSetVerticalScrollBarVisible(true);
    QVERIFY(vertical->isVisibleTo(&fixture.host));
    fixture.host.slotSetHorizontalScrollBarVisible(false);
    QVERIFY(!horizontal->isVisibleTo(&fixture.host));
}

void TestGPUDrawFrame::barsMirrorTheViewsBars()
{
    DrawViewFixture fixture;
    QScrollBar bar;
    bar.setRange(10, 500);
    bar.setPageStep(70);
    bar.setSliderPosition(123);
    fixture.host.slotUpdateHorizontalScrollBar(&bar);
    bar.setSliderPosition(321);
    fixture.host.slotUpdateVerticalScrollBar(&bar);

    const auto *horizontal = fixture.host.findChild<QScrollBar *>("horizontalScrollBar");
    const auto *vertical = fixture.host.findChild<QScrollBar *>("verticalScrollBar");
    for (const QScrollBar *external : { horizontal, vertical }) {
        QCOMPARE(external->minimum(), 10);
        QCOMPARE(external->maximum(), 500);
        QCOMPARE(external->pageStep(), 70);
    }
    QCOMPARE(horizontal->sliderPosition(), 123);
    QCOMPARE(vertical->sliderPosition(), 321);
}

void TestGPUDrawFrame::smallerRangeDoesNotScrollTheView()
{
    DrawViewFixture fixture;
    QScrollBar bar;
    bar.setRange(0, 1000);
    bar.setSliderPosition(900);
    fixture.host.slotUpdateHorizontalScrollBar(&bar);
    QSignalSpy changed(&fixture.host, SIGNAL(signalHorizontalScrollBarValueChanged(int)));
    bar.setRange(0, 100);
    bar.setSliderPosition(40);
    fixture.host.slotUpdateHorizontalScrollBar(&bar);
    // Not by way of 100.
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().toInt(), 40);
}

void TestGPUDrawFrame::barsScrollTheView()
{
    DrawViewFixture fixture;
    fixture.host.slotSetCPUDraw(false);
    fixture.view->slotPaintPreview(GreyPicture({ 800, 600 }));
    fixture.view->slotZoom1v1();
    QSignalSpy horizontal(&fixture.host, SIGNAL(signalHorizontalScrollBarValueChanged(int)));
    QSignalSpy vertical(&fixture.host, SIGNAL(signalVerticalScrollBarValueChanged(int)));
    fixture.host.findChild<QScrollBar *>("horizontalScrollBar")->setValue(100);
    fixture.host.findChild<QScrollBar *>("verticalScrollBar")->setValue(75);
    QCOMPARE(fixture.ViewScroll(), QPoint(100, 75));
    QCOMPARE(fixture.view->GetGPUViewRect(), QRectF(0.125, 0.125, 0.625, 0.625));
    QCOMPARE(horizontal.count(), 1);
    QCOMPARE(horizontal.first().first().toInt(), 100);
    QCOMPARE(vertical.count(), 1);
    QCOMPARE(vertical.first().first().toInt(), 75);
}

void TestGPUDrawFrame::modeIsHandedDown()
{
    DrawViewFixture fixture;
    fixture.host.slotSetCPUDraw(false);
    QVERIFY(fixture.view->IsGPUDraw());
    QCOMPARE(fixture.frame->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(fixture.frame->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);

    fixture.host.slotSetHorizontalScrollBarVisible(true);
    fixture.host.slotSetVerticalScrollBarVisible(true);
    fixture.host.slotSetCPUDraw(true);
    QVERIFY(!fixture.view->IsGPUDraw());
    QCOMPARE(fixture.frame->horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QCOMPARE(fixture.frame->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QVERIFY(!fixture.host.findChild<QScrollBar *>("horizontalScrollBar")->isVisibleTo(&fixture.host));
    QVERIFY(!fixture.host.findChild<QScrollBar *>("verticalScrollBar")->isVisibleTo(&fixture.host));
}

void TestGPUDrawFrame::moveImageMovesFrameAndBars()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->slotPaintPreview(GreyPicture({ 2000, 1600 }));
    fixture.view->slotZoom1v1();
    fixture.frame->SetSliderPosition({ 500, 400 });
    auto *horizontal = fixture.host.findChild<QScrollBar *>("horizontalScrollBar");
    auto *vertical = fixture.host.findChild<QScrollBar *>("verticalScrollBar");
    horizontal->setRange(0, 1000);
    horizontal->setValue(300);
    vertical->setRange(0, 1000);
    vertical->setValue(200);
    fixture.host.MoveImage({ 10.5, -20.5 });
    QCOMPARE(fixture.FrameScroll(), QPoint(489, 420));
    QCOMPARE(horizontal->sliderPosition(), 289);
    QCOMPARE(vertical->sliderPosition(), 220);
}

void TestGPUDrawFrame::brushConversation()
{
    DrawViewFixture fixture;
    BrushReceiver receiver;
    fixture.host.ConnectSetBrush(&receiver);
    fixture.host.ConnectSetBrush(nullptr);
    emit receiver.signalSetBrush();
    QCOMPARE(receiver.finished, 1);

    fixture.host.slotSetCPUDraw(false);
    emit receiver.signalSetBrush();
    QCOMPARE(receiver.finished, 1);
    fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
    QCOMPARE(receiver.finished, 2);
}

void TestGPUDrawFrame::brushCanBeAskedForAgainAtOnce()
{
    DrawViewFixture fixture;
    BrushReceiver receiver;
    fixture.host.ConnectSetBrush(&receiver);
    fixture.host.slotSetCPUDraw(false);
    receiver.asksAgain = true;
    emit receiver.signalSetBrush();
    for (int frames = 1; frames <= 3; ++frames) {
        fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }, frames));
        QCOMPARE(receiver.finished, frames);
    }
}

void TestGPUDrawFrame::barsFollowZoomWithGPUDrawing()
{
    DrawViewFixture fixture;
    fixture.host.slotSetCPUDraw(false);
    fixture.view->slotPaintPreview(GreyPicture({ 800, 600 }));
    const auto *horizontal = fixture.host.findChild<QScrollBar *>("horizontalScrollBar");
    const auto *vertical = fixture.host.findChild<QScrollBar *>("verticalScrollBar");
    QVERIFY(!horizontal->isVisibleTo(&fixture.host));
    QVERIFY(!vertical->isVisibleTo(&fixture.host));
    fixture.view->slotSetScaleFactor(2.0);
    QVERIFY(horizontal->isVisibleTo(&fixture.host));
    QCOMPARE(horizontal->maximum(), 1600 - 400);
    QCOMPARE(horizontal->pageStep(), 400);
    QCOMPARE(horizontal->value(), fixture.ViewScroll().x());
    QVERIFY(vertical->isVisibleTo(&fixture.host));
    QCOMPARE(vertical->maximum(), 1200 - 300);
    QCOMPARE(vertical->pageStep(), 300);
    fixture.view->slotVerticalScrollBarValueChanged(123);
    QCOMPARE(vertical->value(), 123);
    fixture.view->slotZoomFit();
    QVERIFY(!horizontal->isVisibleTo(&fixture.host));
    QCOMPARE(fixture.ViewScroll(), QPoint(0, 0));
}

GUARDED_TEST_MAIN(TestGPUDrawFrame)
#include "tst_gpudrawframe.moc"
