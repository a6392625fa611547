// SPDX-License-Identifier: GPL-3.0-or-later
#include "cropframe.h"
#include "drawviewfixture.h"
#include "guardedtest.h"

#include <QGraphicsScene>
#include <QScrollBar>
#include <QSignalSpy>

/// The draw view with CPU drawing: construction, frames, zoom, and whom it tells.
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
    void zoomWithoutAPictureDoesNothing();
    void zoomCommands_data();
    void zoomCommands();
    void zoomInAndOutFromOneToOne();
    void zoomStepsAfterAFitAreExact();
    void zoomByDelta_data();
    void zoomByDelta();
    void scaleIsReported();
    void othersManagersAreNotObeyed();
    void largestPictureAtTheHighestZoom();
    void setBrushIsFinishedAtOnce();
    void updatesEnabledIsLogged_data();
    void updatesEnabledIsLogged();
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
    view.slotPaintPreview(GreyPicture({300, 200}));
    QCOMPARE(view.sceneRect(), QRectF(0, 0, 300, 200));
    view.slotZoom1v1();
    QCOMPARE(view.size(), QSize(300, 200));
    QTest::ignoreMessage(QtDebugMsg, "[drawviewbase.cpp:304 DrawViewBase::slotSetUpdatesEnabled] slotSetUpdatesEnabled 1");
    view.slotSetUpdatesEnabled(true);
}

void TestDrawView::sayingsOfAFrameOfANewSize()
{
    DrawViewFixture fixture;
    fixture.LogSignals();
    fixture.view->slotPaintPreview(GreyPicture({1000, 500}));

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
    fixture.view->slotPaintPreview(GreyPicture({1000, 800}));
    fixture.view->slotZoom1v1();
    fixture.frame->SetSliderPosition({120, 80});
    fixture.LogSignals();

    const QImage next = GreyPicture({1000, 800}, 100);
    fixture.view->slotPaintPreview(next);
    QCOMPARE(CallLog::Calls(), QStringList());
    QCOMPARE(fixture.Scale(), 1.0);
    QCOMPARE(fixture.FrameScroll(), QPoint(120, 80));
    QCOMPARE(fixture.view->scene()->backgroundBrush().texture().toImage(), next);
}

void TestDrawView::sizeChangeInMidStream()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({1000, 800}));
    fixture.view->slotScale(2);
    fixture.view->slotPaintPreview(GreyPicture({1000, 800}));
    fixture.LogSignals();

    fixture.view->slotPaintPreview(GreyPicture({801, 333}));
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
    fixture.view->slotPaintPreview(GreyPicture({1, 1}));
    QCOMPARE(fixture.Scale(), 32.0);
    QCOMPARE(fixture.view->size(), QSize(32, 32));
    QCOMPARE(CallLog::Count("signalUpdateImageSize(1x1)"), 1);
    fixture.view->slotPaintPreview(GreyPicture({1, 1}, 9));
    QCOMPARE(CallLog::Count("signalUpdateImageSize(1x1)"), 1);
}

void TestDrawView::frameWithoutPixelsShowsNothing()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({600, 300}));
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
    fixture.view->slotPaintPreview(GreyPicture({600, 300}));
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
    fixture.view->slotPaintPreview(GreyPicture({600, 300}));
    fixture.view->slotUpdateMousePosition({3, 4});
    QCOMPARE(CallLog::Count("ReportManager::ClearAll()"), 1);
    QCOMPARE(CallLog::Count("MeasureManager::SetScaleFactor()"), 0);
    QCOMPARE(CallLog::Count("UIConfigManager::signalImageInfoChanged()"), 2);
}

void TestDrawView::zoomWithoutAPictureDoesNothing()
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

void TestDrawView::zoomCommands_data()
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

void TestDrawView::zoomCommands()
{
    QFETCH(int, type);
    QFETCH(double, scale);
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({800, 400}));
    fixture.view->slotSetScaleFactor(4.0);
    QSignalSpy changed(fixture.view, SIGNAL(signalScaleFactorChanged(double)));
    fixture.view->slotScale(type);
    QCOMPARE(fixture.Scale(), scale);
    QCOMPARE(fixture.view->transform().m22(), scale);
    QCOMPARE(fixture.view->size(), QSize(800, 400) * scale);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().toDouble(), scale);
}

void TestDrawView::zoomInAndOutFromOneToOne()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({4096, 512}));
    fixture.view->slotZoom1v1();
    for (double scale : {2.0, 4.0, 8.0, 16.0, 32.0, 32.0}) {
        fixture.view->slotZoomIn();
        QCOMPARE(fixture.Scale(), scale);
    }
    fixture.view->slotZoom1v1();
    for (double scale : {0.5, 0.25, 0.125, 0.0625, 0.0625}) {
        fixture.view->slotZoomOut();
        QCOMPARE(fixture.Scale(), scale);
    }
}

void TestDrawView::zoomStepsAfterAFitAreExact()
{
    DrawViewFixture fixture({397, 293});
    fixture.view->slotPaintPreview(GreyPicture({1003, 701}));
    fixture.view->ZoomFit();
    fixture.view->ZoomIn();
    fixture.view->ZoomIn();
    // 397 / 1003 -> 1 -> 2, without the rounding of a product of scales.
    QCOMPARE(fixture.Scale() - 2.0, 0.0);
    QCOMPARE(fixture.view->size(), QSize(2006, 1402));
    fixture.view->ZoomOut();
    QCOMPARE(fixture.view->size(), QSize(1003, 701));
}

void TestDrawView::zoomByDelta_data()
{
    QTest::addColumn<int>("delta");
    QTest::addColumn<double>("scale");
    QTest::newRow("forward") << 120 << 2.0;
    QTest::newRow("a little forward") << 1 << 2.0;
    QTest::newRow("nothing") << 0 << 0.5;
    QTest::newRow("backward") << -120 << 0.5;
}

void TestDrawView::zoomByDelta()
{
    QFETCH(int, delta);
    QFETCH(double, scale);
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({800, 800}));
    fixture.view->slotZoom1v1();
    fixture.view->ZoomByDelta(delta);
    QCOMPARE(fixture.Scale(), scale);
}

void TestDrawView::scaleIsReported()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({800, 400}));
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

void TestDrawView::othersManagersAreNotObeyed()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({800, 400}));
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

void TestDrawView::largestPictureAtTheHighestZoom()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->slotPaintPreview(GreyPicture({4096, 4096}));
    fixture.view->slotSetScaleFactor(32.0);
    QCOMPARE(fixture.view->size(), QSize(131072, 131072));
    QCOMPARE(fixture.view->viewport()->size(), QSize(131072, 131072));
    fixture.frame->SetSliderPosition({1e6, 1e6});
    const QSize window = fixture.frame->viewport()->size();
    QCOMPARE(fixture.FrameScroll(), QPoint(131072 - window.width(), 131072 - window.height()));
    // The bottom right picture pixel is under the bottom right screen pixel.
    const QPoint corner = fixture.view->mapFrom(fixture.frame->viewport(), QPoint(window.width() - 1, window.height() - 1));
    QCOMPARE(corner, QPoint(131071, 131071));
    QCOMPARE(fixture.view->mapToScene(corner), QPointF(131071 / 32.0, 131071 / 32.0));
}

void TestDrawView::setBrushIsFinishedAtOnce()
{
    DrawViewFixture fixture;
    QSignalSpy finished(fixture.view, SIGNAL(signalFinishSetBrush()));
    fixture.view->slotSetBrush();
    QCOMPARE(finished.count(), 1);
    fixture.view->slotPaintPreview(GreyPicture({800, 400}));
    QCOMPARE(finished.count(), 1);
}

void TestDrawView::updatesEnabledIsLogged_data()
{
    QTest::addColumn<bool>("value");
    QTest::addColumn<QString>("line");
    QTest::newRow("off") << false << "[drawviewbase.cpp:304 DrawViewBase::slotSetUpdatesEnabled] slotSetUpdatesEnabled 0";
    QTest::newRow("on") << true << "[drawviewbase.cpp:304 DrawViewBase::slotSetUpdatesEnabled] slotSetUpdatesEnabled 1";
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

void TestDrawView::cropFrameReportsTheMouse()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({800, 400}));
    fixture.LogSignals();
    // At 0.5, so that view (51, 27) is picture (102, 54).
    emit fixture.view->GetCropFrame()->signalUpdateMousePosition({51, 27});
    QCOMPARE(CallLog::Calls(), (QStringList{
        "signalUpdateMousePosition((102, 54))",
        "UIConfigManager::signalImageInfoChanged()",
    }));
    QCOMPARE(fixture.report.GetMousePosition(), QPoint(102, 54));
}

GUARDED_TEST_MAIN(TestDrawView)
#include "tst_drawview.moc"
