// SPDX-License-Identifier: GPL-3.0-or-later
#include "cropframe.h"
#include "drawviewfixture.h"
#include "guardedtest.h"
#include "lxgpudrawitem.h"

#include <QGraphicsScene>
#include <QOpenGLWidget>
#include <QScrollBar>
#include <QSignalSpy>

namespace {

const char glViewportLine[] =
    "[drawviewbase.cpp:589 DrawViewBase::SetGPUDrawView] DrawViewBase::SetGPUDrawView()";

} // namespace

/// GPU drawing as the draw view manages it: change of mode, visible part, scroll bars, frames.
class TestDrawViewModes : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase() { StartOpenGLDriver(); }
    void switchingToGPUDrawing();
    void switchingTwiceChangesNothing();
    void switchingWithoutASceneIsWarnedOf();
    void switchingBackAndForthLeavesNothingBehind();
    void zoomedPictureIsTakenIntoTheHostAndBack();
    void sayingsOfAFrameOfANewSize();
    void newSizeHidesTheCropFrame();
    void frameGoesIntoTheBackgroundOnRequestOnly();
    void zoomUpdatesTheVisiblePart();
    void smallerPictureThanTheHostIsShownWhole();
    void cropFrameHoldsTheGeometry();
    void scrollBarValuesAreBounded_data();
    void scrollBarValuesAreBounded();
    void hiddenViewKnowsItsVisiblePart();
    void removedWithItsItem();
};

void TestDrawViewModes::switchingToGPUDrawing()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
    fixture.LogSignals();
    fixture.view->SetGPUDrawView();
    QVERIFY(fixture.view->IsGPUDraw());
    QVERIFY(qobject_cast<QOpenGLWidget *>(fixture.view->viewport()));
    QVERIFY(fixture.view->viewport()->hasMouseTracking());
    QCOMPARE(fixture.view->viewport()->geometry(), fixture.view->rect());
    QCOMPARE(fixture.view->scene()->items().size(), 1);
    QCOMPARE(DebugLines(), QStringList(glViewportLine));
    QCOMPARE(CallLog::Calls(),
             (QStringList{ "signalUpdateHorizontalScrollBar()", "signalUpdateVerticalScrollBar()" }));
    QCOMPARE(fixture.view->GetGPUViewRect(), QRectF(0, 0, 1, 1));
    // The crop frame is the topmost child.
    QCOMPARE(fixture.view->children().last(), static_cast<QObject *>(fixture.view->GetCropFrame()));
}

void TestDrawViewModes::switchingTwiceChangesNothing()
{
    DrawViewFixture fixture;
    fixture.view->SetCPUDraw(true);
    QVERIFY(!fixture.view->IsGPUDraw());
    fixture.view->SetCPUDraw(false);
    const QWidget *viewport = fixture.view->viewport();
    fixture.view->SetCPUDraw(false);
    QCOMPARE(static_cast<const QWidget *>(fixture.view->viewport()), viewport);
    QCOMPARE(fixture.view->scene()->items().size(), 1);
    QCOMPARE(DebugLines(), QStringList(glViewportLine));
}

void TestDrawViewModes::switchingWithoutASceneIsWarnedOf()
{
    DrawViewFixture fixture;
    const std::unique_ptr<QGraphicsScene> scene(fixture.view->scene());
    fixture.view->setScene(nullptr);
    ExpectWarning(QRegularExpression("^DrawViewBase::SetGPUDrawView\\(\\): Failed to create LxGPUDrawItem$"));
    fixture.view->SetGPUDrawView();
    QVERIFY(!fixture.view->IsGPUDraw());
}

void TestDrawViewModes::switchingBackAndForthLeavesNothingBehind()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
    const int children = fixture.view->findChildren<QObject *>().size();
    for (int i = 0; i < 20; ++i) {
        fixture.host.slotSetCPUDraw(false);
        QVERIFY(fixture.view->IsGPUDraw());
        const QPointer<QWidget> viewport = fixture.view->viewport();
        fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }, i));
        QApplication::processEvents();

        fixture.host.slotSetCPUDraw(true);
        QVERIFY(!viewport);
        QVERIFY(!qobject_cast<QOpenGLWidget *>(fixture.view->viewport()));
        QVERIFY(fixture.view->viewport()->hasMouseTracking());
        QVERIFY(fixture.view->scene()->items().isEmpty());
        QCOMPARE(fixture.view->viewportUpdateMode(), QGraphicsView::MinimalViewportUpdate);
        QCOMPARE(fixture.view->findChildren<QObject *>().size(), children);
        QCOMPARE(DebugLines().count("LxCamGPURender::~LxCamGPURender()"), i + 1);
    }
    QCOMPARE(DebugLines().count(glViewportLine), 20);
}

void TestDrawViewModes::zoomedPictureIsTakenIntoTheHostAndBack()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->slotPaintPreview(GreyPicture({ 4096, 4096 }));
    fixture.view->slotSetScaleFactor(32.0);
    fixture.host.slotSetCPUDraw(false);
    // No viewport of 131072 pixels for OpenGL.
    QCOMPARE(fixture.view->size(), QSize(400, 300));
    QVERIFY(fixture.host.findChild<QScrollBar *>("horizontalScrollBar")->isVisible());
    QVERIFY(fixture.host.findChild<QScrollBar *>("verticalScrollBar")->isVisible());
    QCOMPARE(fixture.Scale(), 32.0);

    fixture.host.slotSetCPUDraw(true);
    QCOMPARE(fixture.view->size(), QSize(131072, 131072));
    QVERIFY(!fixture.host.findChild<QScrollBar *>("horizontalScrollBar")->isVisible());
}

void TestDrawViewModes::sayingsOfAFrameOfANewSize()
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

void TestDrawViewModes::newSizeHidesTheCropFrame()
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

void TestDrawViewModes::frameGoesIntoTheBackgroundOnRequestOnly()
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

void TestDrawViewModes::zoomUpdatesTheVisiblePart()
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

void TestDrawViewModes::smallerPictureThanTheHostIsShownWhole()
{
    DrawViewFixture fixture;
    fixture.view->SetGPUDrawView();
    fixture.view->slotPaintPreview(GreyPicture({ 200, 100 }));
    fixture.view->slotZoom1v1();
    QCOMPARE(fixture.view->size(), QSize(200, 100));
    QCOMPARE(fixture.view->GetGPUViewRect(), QRectF(0, 0, 1, 1));
}

void TestDrawViewModes::cropFrameHoldsTheGeometry()
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

void TestDrawViewModes::scrollBarValuesAreBounded_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("reached");
    QTest::newRow("below the start") << -50 << 0;
    QTest::newRow("within") << 123 << 123;
    QTest::newRow("beyond the end") << 5000 << 400;
}

void TestDrawViewModes::scrollBarValuesAreBounded()
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

void TestDrawViewModes::hiddenViewKnowsItsVisiblePart()
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

void TestDrawViewModes::removedWithItsItem()
{
    {
        DrawViewFixture fixture;
        QVERIFY(fixture.Show());
        fixture.view->SetGPUDrawView();
        fixture.view->slotPaintPreview(GreyPicture({ 800, 600 }));
        QApplication::processEvents();
    }
    QCOMPARE(DebugLines().last(), QString("LxCamGPURender::~LxCamGPURender()"));
}

GUARDED_TEST_MAIN(TestDrawViewModes)
#include "tst_drawviewmodes.moc"
