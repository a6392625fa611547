// SPDX-License-Identifier: GPL-3.0-or-later
#include "cropframe.h"
#include "drawviewfixture.h"
#include "guardedtest.h"

#include <QGraphicsScene>
#include <QPaintEvent>
#include <QScrollBar>
#include <QSignalSpy>

namespace {

/// Remembers which part of a widget was painted.
class PaintRecorder : public QObject
{
public:
    QRegion painted;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            painted += static_cast<QPaintEvent *>(event)->region();
        return false;
    }
};

} // namespace

/// The draw view with CPU drawing: construction, frames, and whom it tells.
class TestDrawView : public GuardedTest
{
    Q_OBJECT

private slots:
    void startsEmpty();
    void connectsItselfToTheHost();
    void livesWithoutParents();
    void sayingsOfAFrameOfANewSize();
    void frameOfTheSameSizeOnlyRepaints();
    void sizeChangeInMidStream();
    void firstFrameOfOnePixelIsFitted();
    void frameWithoutPixelsShowsNothing();
    void measurementsOfTheActiveViewAreCleared();
    void managersMayBeMissing();
    void setBrushIsFinishedAtOnce();
    void updatesEnabledIsLogged_data();
    void updatesEnabledIsLogged();
    void updatesEnabledRepaintsTheFrame();
    void cropFrameReportsTheMouse();
};

void TestDrawView::startsEmpty()
{
    DrawViewFixture fixture;
    const DrawViewBase *view = fixture.view;
    QCOMPARE(view->GetImageSize(), QSize(0, 0));
    QCOMPARE(view->GetGPUViewRect(), QRectF(0, 0, 1, 1));
    QVERIFY(!view->IsGPUDraw());
    QCOMPARE(view->styleSheet(), QString("DrawViewBase{background: transparent;border: 0px;}"));
    QVERIFY(view->hasMouseTracking());
    QVERIFY(view->viewport()->hasMouseTracking());
    QCOMPARE(view->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(view->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(view->sceneRect(), QRectF(0, 0, 1, 1));
    QCOMPARE(view->scene()->sceneRect(), QRectF(0, 0, 1, 1));
    QCOMPARE(view->scene()->parent(), static_cast<const QObject *>(view));
    QCOMPARE(view->GetCropFrame()->parentWidget(), static_cast<const QWidget *>(view));
    QVERIFY(!view->GetCropFrame()->isVisibleTo(view));
    QCOMPARE(view->frameWidth(), 0);

    const DrawViewBase *alone = new DrawViewBase(nullptr);
    QVERIFY(!alone->GetViewManager());
    delete alone;
}

void TestDrawView::connectsItselfToTheHost()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    auto *external = fixture.host.findChild<QScrollBar *>("horizontalScrollBar");
    emit fixture.view->signalSetHorizontalScrollBarVisible(true);
    QVERIFY(external->isVisible());
    emit fixture.view->signalSetHorizontalScrollBarVisible(false);
    QVERIFY(!external->isVisible());

    auto *vertical = fixture.host.findChild<QScrollBar *>("verticalScrollBar");
    emit fixture.view->signalSetVerticalScrollBarVisible(true);
    QVERIFY(vertical->isVisible());
}

void TestDrawView::livesWithoutParents()
{
    FakeServices services;
    DrawViewBase view(nullptr);
    view.slotPaintPreview(GreyPicture({ 300, 200 }));
    QCOMPARE(view.sceneRect(), QRectF(0, 0, 300, 200));
    view.slotZoom1v1();
    QCOMPARE(view.size(), QSize(300, 200));
    QTest::ignoreMessage(
        QtDebugMsg, "[drawviewbase.cpp:304 DrawViewBase::slotSetUpdatesEnabled] slotSetUpdatesEnabled 1");
    view.slotSetUpdatesEnabled(true);
}

void TestDrawView::sayingsOfAFrameOfANewSize()
{
    DrawViewFixture fixture;
    fixture.LogSignals();
    fixture.view->slotPaintPreview(GreyPicture({ 1000, 500 }));

    QCOMPARE(CallLog::Calls(), (QStringList{
                                   "UIConfigManager::signalImageInfoChanged()",
                                   "signalScaleFactorChanged(0.4)",
                                   "signalUpdateImageSize(1000x500)",
                                   "MeasureManager::SetScaleFactor()",
                                   "ReportManager::ClearAll()",
                                   "signalImageSizeChanged()",
                                   "MeasureConfigManager::signalUpdateScaleUI()",
                               }));
    QCOMPARE(fixture.view->size(), QSize(400, 200));
    QCOMPARE(fixture.view->GetImageSize(), QSize(1000, 500));
    QCOMPARE(fixture.view->sceneRect(), QRectF(0, 0, 1000, 500));
    QCOMPARE(fixture.view->scene()->sceneRect(), QRectF(0, 0, 1000, 500));
    QCOMPARE(fixture.view->GetCropFrame()->size(), QSize(400, 200));
    QCOMPARE(fixture.report.GetScaleFactor(), 0.4F);
    QCOMPARE(fixture.services.cameraReport.GetScaleFactor(), 1.0F);
}

void TestDrawView::frameOfTheSameSizeOnlyRepaints()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->slotPaintPreview(GreyPicture({ 1000, 800 }));
    fixture.view->slotZoom1v1();
    fixture.frame->SetSliderPosition({ 120, 80 });
    fixture.LogSignals();

    const QImage next = GreyPicture({ 1000, 800 }, 100);
    fixture.view->slotPaintPreview(next);
    QCOMPARE(CallLog::Calls(), QStringList());
    QCOMPARE(fixture.Scale(), 1.0);
    QCOMPARE(fixture.FrameScroll(), QPoint(120, 80));
    QCOMPARE(fixture.view->scene()->backgroundBrush().texture().toImage(), next);
}

void TestDrawView::sizeChangeInMidStream()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({ 1000, 800 }));
    fixture.view->slotScale(2);
    fixture.view->slotPaintPreview(GreyPicture({ 1000, 800 }));
    fixture.LogSignals();

    fixture.view->slotPaintPreview(GreyPicture({ 801, 333 }));
    QCOMPARE(CallLog::Count("signalUpdateImageSize(801x333)"), 1);
    QCOMPARE(CallLog::Count("ReportManager::ClearAll()"), 1);
    QCOMPARE(fixture.view->sceneRect(), QRectF(0, 0, 801, 333));
    QCOMPARE(fixture.Scale(), 400.0 / 801);
    QCOMPARE(fixture.view->size(), QSize(400, 166));
    QCOMPARE(CallLog::Count("CoverConfigManager::ResetCover()"), 0);
    QCOMPARE(CallLog::Count("ROIManager::SetManualROIChecked(false)"), 0);
}

void TestDrawView::firstFrameOfOnePixelIsFitted()
{
    DrawViewFixture fixture;
    fixture.LogSignals();
    fixture.view->slotPaintPreview(GreyPicture({ 1, 1 }));
    QCOMPARE(fixture.Scale(), 32.0);
    QCOMPARE(fixture.view->size(), QSize(32, 32));
    QCOMPARE(CallLog::Count("signalUpdateImageSize(1x1)"), 1);
    fixture.view->slotPaintPreview(GreyPicture({ 1, 1 }, 9));
    QCOMPARE(CallLog::Count("signalUpdateImageSize(1x1)"), 1);
}

void TestDrawView::frameWithoutPixelsShowsNothing()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({ 600, 300 }));
    fixture.LogSignals();
    fixture.view->slotPaintPreview(QImage());
    QCOMPARE(CallLog::Calls(), (QStringList{
                                   "signalUpdateImageSize(0x0)",
                                   "MeasureManager::SetScaleFactor()",
                                   "ReportManager::ClearAll()",
                                   "signalImageSizeChanged()",
                                   "MeasureConfigManager::signalUpdateScaleUI()",
                               }));
    QCOMPARE(fixture.view->sceneRect(), QRectF(0, 0, 600, 300));
    QCOMPARE(fixture.view->scene()->backgroundBrush().style(), Qt::NoBrush);
}

void TestDrawView::measurementsOfTheActiveViewAreCleared()
{
    DrawViewFixture fixture;
    fixture.services.global.reportManager = nullptr;
    fixture.LogSignals();
    fixture.view->slotPaintPreview(GreyPicture({ 600, 300 }));
    // Not those of the view's own manager.
    QCOMPARE(CallLog::Count("ReportManager::ClearAll()"), 0);
    QCOMPARE(CallLog::Count("signalImageSizeChanged()"), 1);
}

void TestDrawView::managersMayBeMissing()
{
    DrawViewFixture fixture;
    fixture.view->SetViewManager(nullptr);
    fixture.services.cameraReport.measureManager = nullptr;
    fixture.LogSignals();
    fixture.view->slotPaintPreview(GreyPicture({ 600, 300 }));
    fixture.view->slotUpdateMousePosition({ 3, 4 });
    QCOMPARE(CallLog::Count("ReportManager::ClearAll()"), 1);
    QCOMPARE(CallLog::Count("MeasureManager::SetScaleFactor()"), 0);
    QCOMPARE(CallLog::Count("UIConfigManager::signalImageInfoChanged()"), 2);
}

void TestDrawView::setBrushIsFinishedAtOnce()
{
    DrawViewFixture fixture;
    QSignalSpy finished(fixture.view, SIGNAL(signalFinishSetBrush()));
    fixture.view->slotSetBrush();
    QCOMPARE(finished.count(), 1);
    fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
    QCOMPARE(finished.count(), 1);
}

void TestDrawView::updatesEnabledIsLogged_data()
{
    QTest::addColumn<bool>("value");
    QTest::addColumn<QString>("line");
    QTest::newRow("off")
        << false << "[drawviewbase.cpp:304 DrawViewBase::slotSetUpdatesEnabled] slotSetUpdatesEnabled 0";
    QTest::newRow("on")
        << true << "[drawviewbase.cpp:304 DrawViewBase::slotSetUpdatesEnabled] slotSetUpdatesEnabled 1";
}

void TestDrawView::updatesEnabledIsLogged()
{
    QFETCH(bool, value);
    QFETCH(QString, line);
    DrawViewFixture fixture;
    fixture.view->slotSetUpdatesEnabled(value);
    QCOMPARE(fixture.view->updatesEnabled(), value);
    QCOMPARE(DebugLines(), QStringList(line));
}

void TestDrawView::updatesEnabledRepaintsTheFrame()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->slotPaintPreview(GreyPicture({ 200, 100 }));
    fixture.view->slotZoom1v1();
    QWidget *window = fixture.frame->viewport();
    window->setAutoFillBackground(false); // else it is left out when what is below it is painted
    PaintRecorder recorder;
    window->installEventFilter(&recorder);
    QTRY_VERIFY(!recorder.painted.isEmpty());
    QApplication::processEvents();
    recorder.painted = QRegion();

    // Beside the picture too.
    fixture.view->slotSetUpdatesEnabled(false);
    QTRY_VERIFY(recorder.painted.contains(QPoint(5, 5)));
}

void TestDrawView::cropFrameReportsTheMouse()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
    fixture.LogSignals();
    // At 0.5, so that view (51, 27) is picture (102, 54).
    emit fixture.view->GetCropFrame()->signalUpdateMousePosition({ 51, 27 });
    QCOMPARE(CallLog::Calls(), (QStringList{
                                   "signalUpdateMousePosition((102, 54))",
                                   "UIConfigManager::signalImageInfoChanged()",
                               }));
    QCOMPARE(fixture.report.GetMousePosition(), QPoint(102, 54));
}

GUARDED_TEST_MAIN(TestDrawView)
#include "tst_drawview.moc"
