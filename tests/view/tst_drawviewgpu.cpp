// SPDX-License-Identifier: GPL-3.0-or-later
#include "cropframe.h"
#include "drawviewfixture.h"
#include "guardedtest.h"

#include <QGraphicsScene>
#include <QScrollBar>
#include <QSignalSpy>

/// The draw view with GPU drawing: visible part, scroll bars, frames, crop frame.
class TestDrawViewGPU : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase() { StartOpenGLDriver(); }
    void sayingsOfAFrameOfANewSize();
    void newSizeHidesTheCropFrame();
    void frameGoesIntoTheBackgroundOnRequestOnly();
    void zoomUpdatesTheVisiblePart();
    void smallerPictureThanTheHostIsShownWhole();
    void cropFrameHoldsTheGeometry();
    void geometryCatchesUpWhenTheCropFrameGoes();
    void newSizeUnderTheCropFrameIsFittedOnce();
    void keysScrollThePicture();
    void ownScrollBarsAreSent();
    void viewWithoutWidthKeepsTheVisiblePart();
    void scrollBarValuesAreBounded_data();
    void scrollBarValuesAreBounded();
    void hiddenViewKnowsItsVisiblePart();
};

void TestDrawViewGPU::sayingsOfAFrameOfANewSize()
{
    DrawViewFixture fixture;
    fixture.view->SetGPUDrawView();
    fixture.LogSignals();
    fixture.view->slotPaintPreview(GreyPicture({ 1000, 500 }));
    QCOMPARE(CallLog::Calls(), (QStringList{
                                   "CoverConfigManager::ResetCover()",
                                   "ROIManager::SetManualROIChecked(false)",
                                   "signalSetHorizontalScrollBarVisible(false)",
                                   "signalSetVerticalScrollBarVisible(false)",
                                   "signalUpdateHorizontalScrollBar()",
                                   "signalUpdateVerticalScrollBar()",
                                   "UIConfigManager::signalImageInfoChanged()",
                                   "signalScaleFactorChanged(0.4)",
                                   "signalUpdateHorizontalScrollBar()",
                                   "signalUpdateVerticalScrollBar()",
                                   "signalUpdateImageSize(1000x500)",
                                   "MeasureManager::SetScaleFactor()",
                                   "ReportManager::ClearAll()",
                                   "signalImageSizeChanged()",
                                   "MeasureConfigManager::signalUpdateScaleUI()",
                               }));
    QCOMPARE(fixture.view->size(), QSize(400, 200));
    CallLog::Clear();
    fixture.view->slotPaintPreview(GreyPicture({ 1000, 500 }, 1));
    QCOMPARE(CallLog::Calls(), QStringList());
}

void TestDrawViewGPU::newSizeHidesTheCropFrame()
{
    for (bool cpuDraw : { true, false }) {
        DrawViewFixture fixture;
        fixture.host.slotSetCPUDraw(cpuDraw);
        fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
        fixture.view->GetCropFrame()->show();
        fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
        QVERIFY(fixture.view->GetCropFrame()->isVisibleTo(fixture.view));
        fixture.view->slotPaintPreview(GreyPicture({ 800, 600 }));
        QCOMPARE(fixture.view->GetCropFrame()->isVisibleTo(fixture.view), cpuDraw);
    }
}

void TestDrawViewGPU::frameGoesIntoTheBackgroundOnRequestOnly()
{
    DrawViewFixture fixture;
    fixture.view->SetGPUDrawView();
    fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
    QCOMPARE(fixture.view->scene()->backgroundBrush().style(), Qt::NoBrush);

    QSignalSpy finished(fixture.view, SIGNAL(signalFinishSetBrush()));
    fixture.view->slotSetBrush();
    QCOMPARE(finished.count(), 0);
    const QImage wanted = GreyPicture({ 800, 400 }, 1);
    fixture.view->slotPaintPreview(wanted);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(fixture.view->scene()->backgroundBrush().texture().toImage(), wanted);

    fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }, 2));
    QCOMPARE(finished.count(), 1);
    QCOMPARE(fixture.view->scene()->backgroundBrush().texture().toImage(), wanted);
}

void TestDrawViewGPU::zoomUpdatesTheVisiblePart()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->SetGPUDrawView();
    fixture.view->slotPaintPreview(GreyPicture({ 800, 600 }));
    QCOMPARE(fixture.view->GetGPUViewRect(), QRectF(0, 0, 1, 1));
    fixture.view->slotZoom1v1();
    // The host's 400 x 300 pixels of 800 x 600; zooming keeps the middle but for a pixel or two.
    QCOMPARE(fixture.view->size(), QSize(400, 300));
    QVERIFY((fixture.ViewScroll() - QPoint(200, 150)).manhattanLength() <= 4);
    fixture.view->slotHorizontalScrollBarValueChanged(200);
    fixture.view->slotVerticalScrollBarValueChanged(150);
    QCOMPARE(fixture.view->GetGPUViewRect(), QRectF(0.25, 0.25, 0.75, 0.75));

    fixture.view->slotHorizontalScrollBarValueChanged(0);
    QCOMPARE(fixture.view->GetGPUViewRect(), QRectF(0, 0.25, 0.5, 0.75));
    fixture.view->slotVerticalScrollBarValueChanged(300);
    QCOMPARE(fixture.view->GetGPUViewRect(), QRectF(0, 0.5, 0.5, 1));
    QCOMPARE(fixture.ViewScroll(), QPoint(0, 300));
    fixture.view->slotZoomFit();
    QCOMPARE(fixture.view->GetGPUViewRect(), QRectF(0, 0, 1, 1));
}

void TestDrawViewGPU::smallerPictureThanTheHostIsShownWhole()
{
    DrawViewFixture fixture;
    fixture.view->SetGPUDrawView();
    fixture.view->slotPaintPreview(GreyPicture({ 200, 100 }));
    fixture.view->slotZoom1v1();
    QCOMPARE(fixture.view->size(), QSize(200, 100));
    QCOMPARE(fixture.view->GetGPUViewRect(), QRectF(0, 0, 1, 1));
}

void TestDrawViewGPU::cropFrameHoldsTheGeometry()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->SetGPUDrawView();
    fixture.view->slotPaintPreview(GreyPicture({ 800, 600 }));
    fixture.view->GetCropFrame()->show();
    const QSize size = fixture.view->size();
    fixture.LogSignals();
    fixture.view->slotZoomIn();
    QCOMPARE(fixture.Scale(), 1.0);
    QCOMPARE(fixture.view->size(), size);
    QCOMPARE(CallLog::Calls(), QStringList());
    QCOMPARE(fixture.report.GetScaleFactor(), 0.5F);

    fixture.view->GetCropFrame()->hide();
    fixture.view->slotZoomIn();
    QCOMPARE(CallLog::Count("signalScaleFactorChanged(2)"), 1);
}

void TestDrawViewGPU::scrollBarValuesAreBounded_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("reached");
    QTest::newRow("below the start") << -50 << 0;
    QTest::newRow("within") << 123 << 123;
    QTest::newRow("beyond the end") << 5000 << 400;
}

void TestDrawViewGPU::scrollBarValuesAreBounded()
{
    QFETCH(int, value);
    QFETCH(int, reached);
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->SetGPUDrawView();
    fixture.view->slotPaintPreview(GreyPicture({ 800, 600 }));
    fixture.view->slotZoom1v1();
    fixture.view->slotHorizontalScrollBarValueChanged(value);
    QCOMPARE(fixture.ViewScroll().x(), reached);
    QCOMPARE(float(fixture.view->GetGPUViewRect().x()), reached / 800.0F);
}

void TestDrawViewGPU::hiddenViewKnowsItsVisiblePart()
{
    DrawViewFixture fixture;
    fixture.host.slotSetCPUDraw(false);
    fixture.view->slotPaintPreview(GreyPicture({ 800, 600 }));
    fixture.view->slotZoom1v1();
    const QRectF hidden = fixture.view->GetGPUViewRect();
    QVERIFY(fixture.Show());
    fixture.view->slotZoomFit();
    fixture.view->slotZoom1v1();
    QCOMPARE(fixture.view->GetGPUViewRect(), hidden);
}

void TestDrawViewGPU::geometryCatchesUpWhenTheCropFrameGoes()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.host.slotSetCPUDraw(false);
    fixture.view->slotPaintPreview(GreyPicture({ 800, 600 }));
    fixture.view->GetCropFrame()->show();
    fixture.view->slotZoomIn();
    QCOMPARE(fixture.view->GetGPUViewRect(), QRectF(0, 0, 1, 1));
    fixture.LogSignals();

    fixture.view->GetCropFrame()->hide();
    QCOMPARE(CallLog::Count("signalScaleFactorChanged(1)"), 1);
    QCOMPARE(CallLog::Count("signalSetHorizontalScrollBarVisible(true)"), 1);
    QCOMPARE(fixture.report.GetScaleFactor(), 1.0F);
    // The host's 400 x 300 pixels of 800 x 600.
    const QRectF viewRect = fixture.view->GetGPUViewRect();
    QCOMPARE(float(viewRect.x()), fixture.ViewScroll().x() / 800.0F);
    QCOMPARE(float(viewRect.y()), fixture.ViewScroll().y() / 600.0F);
    QCOMPARE(float(viewRect.width() - viewRect.x()), 0.5F);
    QCOMPARE(float(viewRect.height() - viewRect.y()), 0.5F);

    // Nothing to catch up with: nothing is said.
    fixture.view->GetCropFrame()->show();
    CallLog::Clear();
    fixture.view->GetCropFrame()->hide();
    QCOMPARE(CallLog::Calls(), QStringList());
}

void TestDrawViewGPU::newSizeUnderTheCropFrameIsFittedOnce()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.host.slotSetCPUDraw(false);
    fixture.view->slotPaintPreview(GreyPicture({ 800, 600 }));
    fixture.view->GetCropFrame()->show();
    fixture.view->slotZoomIn();
    fixture.LogSignals();
    fixture.view->slotPaintPreview(GreyPicture({ 1600, 1200 }));
    QCOMPARE(CallLog::Calls().filter("signalScaleFactorChanged"),
             QStringList("signalScaleFactorChanged(0.25)"));
    QCOMPARE(fixture.view->GetGPUViewRect(), QRectF(0, 0, 1, 1));
}

void TestDrawViewGPU::keysScrollThePicture()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.host.slotSetCPUDraw(false);
    fixture.view->slotPaintPreview(GreyPicture({ 2000, 1600 }));
    fixture.view->slotZoom1v1();
    fixture.view->slotHorizontalScrollBarValueChanged(800);
    fixture.view->slotVerticalScrollBarValueChanged(600);
    const auto *horizontal = fixture.host.findChild<QScrollBar *>("horizontalScrollBar");
    const auto *vertical = fixture.host.findChild<QScrollBar *>("verticalScrollBar");
    QPoint before = fixture.ViewScroll();
    for (Qt::Key key : { Qt::Key_Right, Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Left, Qt::Key_PageUp }) {
        QTest::keyClick(fixture.view, key);
        const QPoint scroll = fixture.ViewScroll();
        QVERIFY(scroll != before);
        before = scroll;
        // The picture, and the host's bars with it.
        QCOMPARE(float(fixture.view->GetGPUViewRect().x()), scroll.x() / 2000.0F);
        QCOMPARE(float(fixture.view->GetGPUViewRect().y()), scroll.y() / 1600.0F);
        QCOMPARE(QPoint(horizontal->value(), vertical->value()), scroll);
    }
}

void TestDrawViewGPU::ownScrollBarsAreSent()
{
    DrawViewFixture fixture;
    fixture.view->SetGPUDrawView();
    QVector<QScrollBar *> sent;
    const auto record = [&](QScrollBar *scrollBar) { sent << scrollBar; };
    connect(fixture.view, &DrawViewBase::signalUpdateHorizontalScrollBar, record);
    connect(fixture.view, &DrawViewBase::signalUpdateVerticalScrollBar, record);
    fixture.view->slotHorizontalScrollBarValueChanged(0);
    QCOMPARE(sent, (QVector<QScrollBar *>{ fixture.view->horizontalScrollBar(),
                                           fixture.view->verticalScrollBar() }));
}

void TestDrawViewGPU::viewWithoutWidthKeepsTheVisiblePart()
{
    DrawViewFixture fixture;
    fixture.view->SetGPUDrawView();
    fixture.view->slotPaintPreview(GreyPicture({ 800, 600 }));
    fixture.host.resize(0, 300);
    fixture.view->slotZoom1v1();
    QCOMPARE(fixture.view->size(), QSize(0, 300));
    fixture.view->slotHorizontalScrollBarValueChanged(400);
    fixture.view->slotVerticalScrollBarValueChanged(150);
    const QRectF visible = fixture.view->GetGPUViewRect();
    QCOMPARE(visible, QRectF(0.5, 0.25, 0.5, 0.75));
    // At the end of the picture a view without a width shows nothing of it.
    fixture.view->slotHorizontalScrollBarValueChanged(800);
    QCOMPARE(fixture.ViewScroll().x(), 800);
    QCOMPARE(fixture.view->GetGPUViewRect(), visible);
}

GUARDED_TEST_MAIN(TestDrawViewGPU)
#include "tst_drawviewgpu.moc"
