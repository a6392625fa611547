// SPDX-License-Identifier: GPL-3.0-or-later
#include "imagestackedwidget.h"

#include "cropframe.h"
#include "drawviewbase.h"
#include "gpudrawframe.h"
#include "guardedtest.h"
#include "imageinfoui.h"
#include "shellfixture.h"
#include "viewcodes.h"
#include "viewtoolbar.h"

#include <QGraphicsScene>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

/// The image page in a window, with its parts.
struct Page
{
    Page()
        : stack(&window)
        , toolBar(stack.findChild<ViewToolBar *>())
        , infoBar(stack.findChild<ImageInfoUI *>())
        , view(stack.GetMainDrawView())
        , second(stack.GetSecondDrawView())
    {
    }

    QPushButton *Tool(const char *name) const { return toolBar->findChild<QPushButton *>(name); }
    QString Info(const char *name) const { return infoBar->findChild<QLabel *>(name)->text(); }

    QWidget window;
    ImageStackedWidget stack;
    ViewToolBar *toolBar;
    ImageInfoUI *infoBar;
    DrawViewBase *view;
    DrawViewBase *second;
};

} // namespace

class ImageStackedWidgetTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void declaresItsSlotsInOrder();
    void asksTheServicesInOrder();
    void secondFrameIsHiddenBesideTheStack();
    void isWired();
    void toolBarCommandsReachTheActiveImage();
    void cropDoesNothingInImageCompare();
    void showsTheOpenFile();
    void emptyWithoutFile();
    void quietWhileTheCameraIsActive();
    void barFollowsViewAndFile();
    void zoomReachesTheViewOfTheActiveManager();
};

void ImageStackedWidgetTest::declaresItsSlotsInOrder()
{
    QCOMPARE(OwnMethods(ImageStackedWidget::staticMetaObject),
             QStringList({ "slotUpdateImageInfoUI()", "slotRotateImage(int)", "slotSaveImageAs()",
                           "slotImageCrop()", "slotImageInfo()" }));
}

void ImageStackedWidgetTest::asksTheServicesInOrder()
{
    ShellServices services;
    Page page;
    QCOMPARE(
        CallLog::Calls(),
        QStringList({ "GlobalManager::SetImageGraphicsScene()", "active ConnectWidthDrawView(false)",
                      "GlobalManager::SetImageGraphicsSceneEx()", "compare ConnectWidthDrawView(false)" }));
    QCOMPARE(services.active.connectedViews, QVector<QObject *>{ page.view });
    QCOMPARE(services.compare.connectedViews, QVector<QObject *>{ page.second });
    QCOMPARE(page.view->GetViewManager(), static_cast<ReportManager *>(&services.main));
    QCOMPARE(page.second->GetViewManager(), static_cast<ReportManager *>(&services.compare));
    QVERIFY(!page.Tool("pushButtonSaveAs")->isHidden());
    QVERIFY(!page.infoBar->findChild<QLabel *>("labelFileName")->isHidden());
}

void ImageStackedWidgetTest::secondFrameIsHiddenBesideTheStack()
{
    ShellServices services;
    Page page;
    QCOMPARE(page.stack.GetSecondFrame()->parentWidget(), &page.window);
    QVERIFY(page.stack.GetSecondFrame()->isHidden());
    QCOMPARE(page.stack.count(), 1);
    QCOMPARE(page.stack.widget(0), static_cast<QWidget *>(page.stack.GetMainFrame()));
}

void ImageStackedWidgetTest::isWired()
{
    ShellServices services;
    Page page;
    CropFrame *cropFrame = page.view->GetCropFrame();
    QCOMPARE(
        MissingWires({
            { &services.main, SIGNAL(signalSetBrush()), page.view, SLOT(slotSetBrush()) },
            { page.view, SIGNAL(signalFinishSetBrush()), &services.main, SLOT(slotFinishSetBrush()) },
            { &services.frameProcess, SIGNAL(signalDraw(QImage)), page.view, SLOT(slotPaintPreview(QImage)) },
            { page.view, SIGNAL(signalScaleFactorChanged(double)), &services.frameProcess,
              SLOT(slotScaleFactorChanged(double)) },
            { &services.active, SIGNAL(signalSetCropState(int, bool)), cropFrame,
              SLOT(slotSetCropState(int, bool)) },
            { cropFrame, SIGNAL(signalSetSelectRegion(int, int, int, int, bool)), &services.active,
              SLOT(slotCrop(int, int, int, int, bool)) },
            { page.toolBar, SIGNAL(signalRotateImage(int)), &page.stack, SLOT(slotRotateImage(int)) },
            { page.toolBar, SIGNAL(signalSaveAs()), &page.stack, SLOT(slotSaveImageAs()) },
            { page.toolBar, SIGNAL(signalCrop()), &page.stack, SLOT(slotImageCrop()) },
            { page.toolBar, SIGNAL(signalImageInfo()), &page.stack, SLOT(slotImageInfo()) },
            { &services.active, SIGNAL(signalUpdateFileName(QString)), page.infoBar,
              SLOT(slotUpdateFileName(QString)) },
            { &services.compare, SIGNAL(signalSetBrush()), page.second, SLOT(slotSetBrush()) },
            { page.second, SIGNAL(signalFinishSetBrush()), &services.compare, SLOT(slotFinishSetBrush()) },
            { page.second, SIGNAL(signalGraphicsViewPressed(QGraphicsScene *)), &services.global,
              SLOT(slotSetGraphicsScene(QGraphicsScene *)) },
            { &page.stack, SIGNAL(signalScaleView(ReportManager *, int)), page.second,
              SLOT(slotScaleView(ReportManager *, int)) },
            { &page.stack, SIGNAL(signalSetScaleFactor(ReportManager *, double)), page.second,
              SLOT(slotSetScaleFactor(ReportManager *, double)) },
        }),
        QStringList());
}

void ImageStackedWidgetTest::toolBarCommandsReachTheActiveImage()
{
    ShellServices services;
    Page page;
    CallLog::Clear();
    emit page.toolBar->signalRotateImage(FlipVertical);
    emit page.toolBar->signalSaveAs();
    emit page.toolBar->signalCrop();
    emit page.toolBar->signalImageInfo();
    emit page.view->GetCropFrame()->signalSetSelectRegion(1, 2, 30, 40, true);
    QCOMPARE(CallLog::Calls(),
             QStringList({ "active slotRotateImage(2)", "active slotSaveImageAs()", "active slotImageCrop()",
                           "active slotImageInfo()", "active slotCrop((1, 2, 30, 40), true)" }));

    // The manager that is active now, not the one at the start.
    services.global.activeImageManager = &services.compare;
    CallLog::Clear();
    page.stack.slotSaveImageAs();
    QCOMPARE(CallLog::Calls(), QStringList("compare slotSaveImageAs()"));
}

void ImageStackedWidgetTest::cropDoesNothingInImageCompare()
{
    ShellServices services;
    Page page;
    CallLog::Clear();
    services.uiConfig.currentView = ImageCompareView;
    page.stack.slotImageCrop();
    QCOMPARE(CallLog::Calls(), QStringList());
    services.uiConfig.currentView = CameraCompareView;
    page.stack.slotImageCrop();
    QCOMPARE(CallLog::Calls(), QStringList("active slotImageCrop()"));
}

void ImageStackedWidgetTest::showsTheOpenFile()
{
    ShellServices services;
    services.global.reportManager = &services.main;
    services.active.nonImage = false;
    services.active.imageSizeString = "1000x800";
    services.active.pixelString = "(1, 2, 3)";
    services.active.rotateDegree = 180;
    services.main.imageSize = QSize(500, 400);
    services.main.fileName = "cells.tif";
    services.main.SetScaleFactor(0.25F);
    Page page;
    QCOMPARE(page.Info("labelSizeValue"), QString("500x400")); // the report manager's comes last
    QCOMPARE(page.Info("labelRGBValue"), QString("(1, 2, 3)"));
    QCOMPARE(page.Info("labelRotateValue"), QString("180") + QChar(0xB0));
    QCOMPARE(page.infoBar->findChild<QLineEdit *>("lineEditZoom")->text(), QString("25.00%"));
    QCOMPARE(page.Info("labelFileName"), QString("cells.tif"));

    services.main.imageSize = QSize(0, 0);
    emit services.uiConfig.signalImageInfoChanged();
    QCOMPARE(page.Info("labelSizeValue"), QString("1000x800"));
}

void ImageStackedWidgetTest::emptyWithoutFile()
{
    ShellServices services;
    services.global.reportManager = &services.main;
    services.active.nonImage = false;
    services.main.fileName = "cells.tif";
    Page page;
    services.active.nonImage = true;
    emit services.uiConfig.signalImageInfoChanged();
    QCOMPARE(page.Info("labelFileName"), QString());
    QCOMPARE(page.infoBar->findChild<QLineEdit *>("lineEditZoom")->text(), QString());
}

void ImageStackedWidgetTest::quietWhileTheCameraIsActive()
{
    ShellServices services;
    services.active.nonImage = false;
    services.active.imageSizeString = "1000x800";
    Page page; // the camera's report manager is the current one
    emit services.uiConfig.signalImageInfoChanged();
    QCOMPARE(page.Info("labelSizeValue"), QString());
}

void ImageStackedWidgetTest::barFollowsViewAndFile()
{
    ShellServices services;
    Page page;
    for (int view : { CameraView, ImageView, FileView, CameraCompareView, ImageCompareView }) {
        services.uiConfig.currentView = view;
        page.stack.UpdateViewOverlays();
        QCOMPARE(!page.Tool("pushButtonCloseCompare")->isHidden(), view == ImageCompareView);
    }
    QVERIFY(page.Tool("pushButtonImageInfo")->isHidden());
    services.active.senImage = true;
    page.stack.UpdateViewOverlays();
    QVERIFY(!page.Tool("pushButtonImageInfo")->isHidden());
    services.useArea.toolBarVisible = services.useArea.infoBarVisible = false;
    page.stack.UpdateViewOverlays();
    QVERIFY(page.toolBar->isHidden());
    QVERIFY(page.infoBar->isHidden());
}

void ImageStackedWidgetTest::zoomReachesTheViewOfTheActiveManager()
{
    ShellServices services;
    Page page;
    const QImage picture(400, 300, QImage::Format_Grayscale8);
    page.view->slotPaintPreview(picture);
    page.second->slotPaintPreview(picture);
    page.view->slotSetScaleFactor(1.0);
    page.second->slotSetScaleFactor(1.0);
    services.global.reportManager = &services.compare;
    page.stack.slotScaleView(ZoomTypeIn);
    QCOMPARE(page.view->transform().m11(), 1.0);
    QCOMPARE(page.second->transform().m11(), 2.0);
    services.global.reportManager = &services.main;
    page.stack.slotSetScaleFactor(4.0);
    QCOMPARE(page.view->transform().m11(), 4.0);
    QCOMPARE(page.second->transform().m11(), 2.0);
}

GUARDED_TEST_MAIN(ImageStackedWidgetTest)
#include "tst_imagestackedwidget.moc"
