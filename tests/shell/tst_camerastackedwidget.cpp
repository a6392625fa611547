// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerastackedwidget.h"

#include "acquireprogressui.h"
#include "cropframe.h"
#include "displayscale.h"
#include "drawframebase.h"
#include "drawviewbase.h"
#include "gpudrawframe.h"
#include "guardedtest.h"
#include "imageinfoui.h"
#include "shellfixture.h"
#include "viewcodes.h"
#include "viewtoolbar.h"

#include <QApplication>
#include <QGraphicsScene>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>

namespace {

/// The camera page with its parts.
struct Page
{
    Page()
        : stack(nullptr)
        , toolBar(stack.findChild<ViewToolBar *>())
        , infoBar(stack.findChild<ImageInfoUI *>())
        , frame(stack.GetMainFrame())
        , view(stack.GetMainDrawView())
        , cropFrame(view->GetCropFrame())
    {
    }

    QPushButton *Tool(const char *name) const { return toolBar->findChild<QPushButton *>(name); }
    QString Info(const char *name) const { return infoBar->findChild<QLabel *>(name)->text(); }
    QString Zoom() const { return infoBar->findChild<QLineEdit *>("lineEditZoom")->text(); }

    void Show(const QSize &size)
    {
        stack.resize(size);
        stack.show();
        QVERIFY(QTest::qWaitForWindowExposed(&stack));
        QCOMPARE(stack.size(), size);
    }

    CameraStackedWidget stack;
    ViewToolBar *toolBar;
    ImageInfoUI *infoBar;
    GPUDrawFrame *frame;
    DrawViewBase *view;
    CropFrame *cropFrame;
};

} // namespace

class CameraStackedWidgetTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void declaresSignalsAndSlotsInOrder();
    void asksTheServicesInOrder();
    void isWiredToItsBars();
    void isWiredToThePreviewAndCamera();
    void isWiredToSpectrumAndCropFrame();
    void zoomCommandsCarryTheActiveReportManager();
    void otherManagersZoomDoesNotTouchTheView();
    void typedZoomReachesTheView();
    void zoomBoxIsReachedInAScrolledPicture();
    void liveFrameIsShownAndAnnounced();
    void takesTheStoredDrawingMode();
    void withoutCameraFrameAndToolBarAreDisabled();
    void showsCameraCapabilities_data();
    void showsCameraCapabilities();
    void binnedRegionCannotBeTurned_data();
    void binnedRegionCannotBeTurned();
    void compareButtonOnlyInCameraCompare();
    void barsFollowTheUseArea();
    void informationOnlyWhenItsManagerIsCurrent();
    void closeCompareLeavesCompareOrEndsCounting();
    void placesItsBars();
    void progressPanelTakesTheWholePage();
    void resizeFitsThePicture();
    void restoresItsMainPage();
    void restoredPageFollowsDisplayMode();
};

void CameraStackedWidgetTest::declaresSignalsAndSlotsInOrder()
{
    QCOMPARE(
        OwnMethods(StackedWidgetBase::staticMetaObject),
        QStringList({ "signalScaleView(ReportManager*,int)", "signalSetScaleFactor(ReportManager*,double)",
                      "slotUpdateToolBarPosition()", "slotCloseCompare()", "slotUpdateImageInfoUI()",
                      "slotScaleView(int)", "slotSetScaleFactor(double)" }));
    QCOMPARE(OwnMethods(CameraStackedWidget::staticMetaObject),
             QStringList({ "SlotSpectralineAutoDetectFinish()", "SlotAssitanceFocusClose()",
                           "SlotSpectralineFVB()", "SlotTopBottomChanged(int,int)",
                           "SlotMultiTrackFlagChanged()", "SlotFVBClose()", "slotUpdateImageInfoUI()" }));
}

void CameraStackedWidgetTest::asksTheServicesInOrder()
{
    ShellServices services;
    Page page;
    QCOMPARE(CallLog::Calls(), QStringList({ "UIConfigManager::SetCPUDraw(true, true)",
                                             "GlobalManager::SetCameraGraphicsScene()" }));
    QVERIFY(DebugLines().contains("CameraStackedWidget"));
    QCOMPARE(page.stack.count(), 1);
    QCOMPARE(page.stack.widget(0), static_cast<QWidget *>(page.frame));
    QCOMPARE(page.view->GetViewManager(), static_cast<ReportManager *>(&services.cameraReport));
    QCOMPARE(page.stack.GetProgressPanel()->parentWidget(), static_cast<QWidget *>(&page.stack));
    // The live bar has no file commands and no name.
    QVERIFY(page.Tool("pushButtonSaveAs")->isHidden());
    QVERIFY(page.infoBar->findChild<QLabel *>("labelFileName")->isHidden());
}

void CameraStackedWidgetTest::isWiredToItsBars()
{
    ShellServices services;
    Page page;
    DrawFrameBase *drawFrame = page.frame->GetDrawFrame();
    QCOMPARE(MissingWires({
                 { &page.stack, SIGNAL(signalScaleView(ReportManager *, int)), page.view,
                   SLOT(slotScaleView(ReportManager *, int)) },
                 { &page.stack, SIGNAL(signalSetScaleFactor(ReportManager *, double)), page.view,
                   SLOT(slotSetScaleFactor(ReportManager *, double)) },
                 { page.toolBar, SIGNAL(signalSetZoomType(int)), &page.stack, SLOT(slotScaleView(int)) },
                 { page.toolBar, SIGNAL(signalUpdatePos()), &page.stack, SLOT(slotUpdateToolBarPosition()) },
                 { page.toolBar, SIGNAL(signalCloseCompare()), &page.stack, SLOT(slotCloseCompare()) },
                 { page.infoBar, SIGNAL(signalSetZoomRatio(double)), &page.stack,
                   SLOT(slotSetScaleFactor(double)) },
                 { page.view, SIGNAL(signalEnableScaleFactor(QPoint)), page.infoBar,
                   SLOT(slotEnableScaleFactor(QPoint)) },
                 { drawFrame, SIGNAL(signalEnableScaleFactor(QPoint)), page.infoBar,
                   SLOT(slotEnableScaleFactor(QPoint)) },
                 { page.view, SIGNAL(signalUpdateImageSize(QString)), page.infoBar,
                   SLOT(slotUpdateImageSize(QString)) },
                 { &services.uiConfig, SIGNAL(signalImageInfoChanged()), &page.stack,
                   SLOT(slotUpdateImageInfoUI()) },
             }),
             QStringList());
}

void CameraStackedWidgetTest::isWiredToThePreviewAndCamera()
{
    ShellServices services;
    Page page;
    QCOMPARE(
        MissingWires({
            { &services.preview, SIGNAL(signalPreviewImage(QImage)), page.view,
              SLOT(slotPaintPreview(QImage)) },
            { &services.preview, SIGNAL(signalSetUpdatesEnabled(bool)), page.view,
              SLOT(slotSetUpdatesEnabled(bool)) },
            { &services.uiConfig, SIGNAL(signalSetCPUDraw(bool)), page.frame, SLOT(slotSetCPUDraw(bool)) },
            { page.toolBar, SIGNAL(signalRotateImage(int)), &services.cameraManager,
              SLOT(slotSetMirrorRotate(int)) },
            { page.view, SIGNAL(signalUpdateMousePosition(QPointF)), &services.pixelInfo,
              SLOT(slotUpdateMousePosition(QPointF)) },
            { &services.cameraReport, SIGNAL(signalSetBrush()), page.view, SLOT(slotSetBrush()) },
            { page.view, SIGNAL(signalFinishSetBrush()), &services.cameraReport, SLOT(slotFinishSetBrush()) },
            { &services.cameraManager, SIGNAL(signalUpdateRotateDegree(int)), page.infoBar,
              SLOT(slotUpdateRotateDegree(int)) },
            { &services.pixelInfo, SIGNAL(signalUpdatePixelInfo(QPointF, QString)), page.infoBar,
              SLOT(slotUpdatePixelInfo(QPointF, QString)) },
        }),
        QStringList());
}

void CameraStackedWidgetTest::isWiredToSpectrumAndCropFrame()
{
    ShellServices services;
    Page page;
    QCOMPARE(
        MissingWires({
            { &services.spectrum, SIGNAL(SignalSpectralineAutoDetectFinish()), &page.stack,
              SLOT(SlotSpectralineAutoDetectFinish()) },
            { &services.spectrumUI, SIGNAL(SignalAssitanceFocusClose()), &page.stack,
              SLOT(SlotAssitanceFocusClose()) },
            { &services.spectrum, SIGNAL(SignalSpectralineFVB()), &page.stack, SLOT(SlotSpectralineFVB()) },
            { &services.spectrumUI, SIGNAL(SignalMultiTrackOnFlagChanged()), &page.stack,
              SLOT(SlotMultiTrackFlagChanged()) },
            { &services.spectrumUI, SIGNAL(SignalFVBClose()), &page.stack, SLOT(SlotFVBClose()) },
            { &services.spectrumUI, SIGNAL(SignalFVBModeAll()), &page.stack, SLOT(SlotFVBClose()) },
            { &services.cover, SIGNAL(signalSetCoverFrameVisible(bool)), page.cropFrame,
              SLOT(slotSetCoverFrameVisible(bool)) },
            { &services.cover, SIGNAL(signalFinishFillCover(QRect)), page.cropFrame,
              SLOT(slotFinishFillCover(QRect)) },
            { page.cropFrame, SIGNAL(signalStopManualCover()), &services.cover, SLOT(slotStopManualCover()) },
            { page.cropFrame, SIGNAL(signalManualCoverFinished(QRect)), &services.cover,
              SLOT(slotManualCoverFinished(QRect)) },
            { &services.cover, SIGNAL(signalSetOpacity(float)), page.cropFrame, SLOT(slotSetOpacity(float)) },
            { &services.roi, SIGNAL(signalSetROIFrameVisible(bool, bool)), page.cropFrame,
              SLOT(slotSetROIFrameVisible(bool, bool)) },
            { page.cropFrame, SIGNAL(signalSetSelectRegion(int, int, int, int, bool)), &services.preview,
              SLOT(slotManualROI(int, int, int, int, bool)) },
            { page.cropFrame, SIGNAL(signalStopRegionSelected()), &services.roi, SLOT(slotStopManualROI()) },
            { page.view, SIGNAL(signalScaleFactorChanged(double)), &services.roi,
              SLOT(slotScaleFactorChanged(double)) },
            { page.view, SIGNAL(signalScaleFactorChanged(double)), &services.cover,
              SLOT(slotScaleFactorChanged(double)) },
        }),
        QStringList());
}

void CameraStackedWidgetTest::zoomCommandsCarryTheActiveReportManager()
{
    qRegisterMetaType<ReportManager *>();
    ShellServices services;
    Page page;
    QSignalSpy scale(&page.stack, SIGNAL(signalScaleView(ReportManager *, int)));
    QSignalSpy factor(&page.stack, SIGNAL(signalSetScaleFactor(ReportManager *, double)));
    services.global.reportManager = &services.main;
    emit page.toolBar->signalSetZoomType(ZoomTypeFit);
    emit page.infoBar->signalSetZoomRatio(2.5);
    QCOMPARE(scale.count(), 1);
    QCOMPARE(scale.at(0).at(0).value<ReportManager *>(), static_cast<ReportManager *>(&services.main));
    QCOMPARE(scale.at(0).at(1).toInt(), int(ZoomTypeFit));
    QCOMPARE(factor.count(), 1);
    QCOMPARE(factor.at(0).at(0).value<ReportManager *>(), static_cast<ReportManager *>(&services.main));
    QCOMPARE(factor.at(0).at(1).toDouble(), 2.5);
}

void CameraStackedWidgetTest::otherManagersZoomDoesNotTouchTheView()
{
    ShellServices services;
    FakeCameraMainManager camera;
    Page page;
    page.Show({ 600, 500 });
    emit services.preview.signalPreviewImage(QImage(300, 200, QImage::Format_Grayscale8));
    page.stack.slotSetScaleFactor(1.0);
    QCOMPARE(page.view->transform().m11(), 1.0);
    services.global.reportManager = &services.main;
    page.stack.slotScaleView(ZoomTypeIn);
    QCOMPARE(page.view->transform().m11(), 1.0);
    services.global.reportManager = &services.cameraReport;
    page.stack.slotScaleView(ZoomTypeIn);
    QCOMPARE(page.view->transform().m11(), 2.0);
}

void CameraStackedWidgetTest::typedZoomReachesTheView()
{
    ShellServices services;
    FakeCameraMainManager camera;
    services.cameraReport.imageSize = QSize(300, 200);
    Page page;
    page.Show({ 600, 500 });
    emit services.preview.signalPreviewImage(QImage(300, 200, QImage::Format_Grayscale8));
    auto *zoom = page.infoBar->findChild<QLineEdit *>("lineEditZoom");
    zoom->setText("400%");
    QTest::keyClick(zoom, Qt::Key_Return);
    QCOMPARE(page.view->transform().m11(), 4.0);
    QCOMPARE(services.cameraReport.GetScaleFactor(), 4.0F);
    QCOMPARE(page.Zoom(), QString("400.00%"));
    // A lone point asks for 0, which the view raises to the least scale of its picture.
    zoom->setText(".");
    QTest::keyClick(zoom, Qt::Key_Return);
    QCOMPARE(page.view->transform().m11(), 256.0 / 300); // the longer side on 256 pixels of the screen
}

/// At a high zoom the view is larger than the stack and lies somewhere behind it.
void CameraStackedWidgetTest::zoomBoxIsReachedInAScrolledPicture()
{
    ShellServices services;
    DisplayScale scale(1.0);
    FakeCameraMainManager camera;
    services.cameraReport.imageSize = QSize(300, 200);
    Page page;
    page.Show({ 600, 500 });
    emit services.preview.signalPreviewImage(QImage(300, 200, QImage::Format_Grayscale8));
    page.stack.slotSetScaleFactor(8.0);
    page.frame->MoveImage(QPointF(-700, -500));
    QWidget *viewport = page.view->viewport();
    QVERIFY(viewport->mapTo(&page.stack, QPoint(0, 0)).x() < -100);

    auto *zoom = page.infoBar->findChild<QLineEdit *>("lineEditZoom");
    const auto isReachedAt = [&](const QPoint &place) {
        const QPoint viewPos = viewport->mapFrom(&page.stack, place);
        QMouseEvent move(QEvent::MouseMove, viewPos, viewport->mapToGlobal(viewPos), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
        return !page.infoBar->testAttribute(Qt::WA_TransparentForMouseEvents);
    };
    // All of the box, whose panel the stack lifts a little above its lower edge.
    const QRect box(zoom->mapTo(&page.stack, QPoint(0, 0)), zoom->size());
    QVERIFY(!isReachedAt(QPoint(300, 200)));
    for (const QPoint &place : { box.center(), box.topLeft(), box.bottomRight() })
        QVERIFY(isReachedAt(place));
    QVERIFY(!isReachedAt(box.topLeft() - QPoint(0, 2)));
    QVERIFY(!isReachedAt(box.topLeft() - QPoint(2, 0)));
    QVERIFY(isReachedAt(box.center()));
    QCOMPARE(page.stack.childAt(box.center()), zoom);
}

void CameraStackedWidgetTest::liveFrameIsShownAndAnnounced()
{
    ShellServices services;
    FakeCameraMainManager camera;
    services.cameraReport.imageSize = QSize(300, 200);
    Page page;
    page.Show({ 600, 500 });
    QImage frame(300, 200, QImage::Format_Grayscale8);
    frame.fill(130);
    CallLog::Clear();
    emit services.preview.signalPreviewImage(frame);
    QCOMPARE(page.view->GetImageSize(), QSize(300, 200));
    QCOMPARE(page.Info("labelSizeValue"), QString("300x200"));
    QCOMPARE(CallLog::Count("ROIManager::slotScaleFactorChanged(2)"), 1);
    QCOMPARE(CallLog::Count("CoverConfigManager::slotScaleFactorChanged(2)"), 1);
    QVERIFY(CallLog::Calls().indexOf("ROIManager::slotScaleFactorChanged(2)")
            < CallLog::Calls().indexOf("CoverConfigManager::slotScaleFactorChanged(2)"));
    QCOMPARE(page.Zoom(), QString("200.00%"));
    emit services.pixelInfo.signalUpdatePixelInfo(QPointF(12.9, 7.2), "130");
    QCOMPARE(page.Info("labelPos"), QString("(12, 7)"));
    QCOMPARE(page.Info("labelGrayValue"), QString("130"));
    const QImage shown = page.frame->grab().toImage();
    QCOMPARE(QColor(shown.pixel(shown.width() / 2, shown.height() / 2)), QColor(130, 130, 130));
}

void CameraStackedWidgetTest::takesTheStoredDrawingMode()
{
    ShellServices services;
    services.uiConfig.cpuDraw = false;
    Page page;
    QCOMPARE(CallLog::Count("UIConfigManager::SetCPUDraw(false, true)"), 1);
    QVERIFY(!page.view->IsGPUDraw());
    emit services.uiConfig.signalSetCPUDraw(false);
    QVERIFY(page.view->IsGPUDraw());
    emit services.uiConfig.signalSetCPUDraw(true);
    QVERIFY(!page.view->IsGPUDraw());
}

void CameraStackedWidgetTest::withoutCameraFrameAndToolBarAreDisabled()
{
    ShellServices services;
    Page page;
    QVERIFY(!page.frame->isEnabled());
    QVERIFY(!page.toolBar->isEnabled());
    QVERIFY(!page.Tool("pushButtonRotate90")->isHidden()); // nobody said that it can't be done
    {
        FakeCameraMainManager camera;
        page.stack.UpdateViewOverlays();
        QVERIFY(page.frame->isEnabled());
        QVERIFY(page.toolBar->isEnabled());
    }
    page.stack.UpdateViewOverlays();
    QVERIFY(!page.frame->isEnabled());
}

void CameraStackedWidgetTest::showsCameraCapabilities_data()
{
    QTest::addColumn<bool>("rotation");
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<bool>("vertical");
    QTest::newRow("all") << true << true << true;
    QTest::newRow("none") << false << false << false;
    QTest::newRow("horizontal") << false << true << false;
    QTest::newRow("vertical") << true << false << true;
}

void CameraStackedWidgetTest::showsCameraCapabilities()
{
    QFETCH(bool, rotation);
    QFETCH(bool, horizontal);
    QFETCH(bool, vertical);
    ShellServices services;
    FakeCameraMainManager camera;
    if (rotation)
        camera.capabilities << 26;
    camera.rotateDegree = 90;
    camera.supportHorizontalMirror = horizontal;
    camera.supportVerticalMirror = vertical;
    Page page;
    QCOMPARE(!page.Tool("pushButtonRotate90")->isHidden(), rotation);
    QCOMPARE(!page.Tool("pushButtonHorizontalMirror")->isHidden(), horizontal);
    QCOMPARE(!page.Tool("pushButtonVerticalMirror")->isHidden(), vertical);
    QCOMPARE(!page.infoBar->findChild<QLabel *>("labelRotateValue")->isHidden(), rotation);
    if (rotation)
        QCOMPARE(page.Info("labelRotateValue"), QString("90") + QChar(0xB0));
}

void CameraStackedWidgetTest::binnedRegionCannotBeTurned_data()
{
    QTest::addColumn<bool>("roi");
    QTest::addColumn<bool>("bin");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("neither") << false << false << true;
    QTest::newRow("region") << true << false << true;
    QTest::newRow("binning") << false << true << true;
    QTest::newRow("both") << true << true << false;
}

void CameraStackedWidgetTest::binnedRegionCannotBeTurned()
{
    QFETCH(bool, roi);
    QFETCH(bool, bin);
    ShellServices services;
    FakeCameraMainManager camera;
    camera.capabilities << 26;
    camera.anyBinOpen = bin;
    services.roi.roiChecked = roi;
    Page page;
    QTEST(page.Tool("pushButtonRotate90")->isEnabled(), "enabled");
}

void CameraStackedWidgetTest::compareButtonOnlyInCameraCompare()
{
    ShellServices services;
    FakeCameraMainManager camera;
    Page page;
    for (int view : { CameraView, ImageView, FileView, CameraCompareView, ImageCompareView }) {
        services.uiConfig.currentView = view;
        page.stack.UpdateViewOverlays();
        QCOMPARE(!page.Tool("pushButtonCloseCompare")->isHidden(), view == CameraCompareView);
    }
}

void CameraStackedWidgetTest::barsFollowTheUseArea()
{
    ShellServices services;
    services.useArea.toolBarVisible = false;
    Page page;
    QVERIFY(page.toolBar->isHidden());
    QVERIFY(!page.infoBar->isHidden());
    services.useArea.toolBarVisible = true;
    services.useArea.infoBarVisible = false;
    page.stack.UpdateViewOverlays();
    QVERIFY(!page.toolBar->isHidden());
    QVERIFY(page.infoBar->isHidden());
}

void CameraStackedWidgetTest::informationOnlyWhenItsManagerIsCurrent()
{
    ShellServices services;
    services.cameraReport.imageSize = QSize(640, 480);
    services.cameraReport.SetScaleFactor(0.5F);
    services.global.reportManager = &services.main;
    services.uiConfig.currentView = ImageView;
    Page page;
    emit services.uiConfig.signalImageInfoChanged();
    QCOMPARE(page.Info("labelSizeValue"), QString());
    QCOMPARE(page.Zoom(), QString());

    services.uiConfig.currentView = CameraCompareView;
    emit services.uiConfig.signalImageInfoChanged();
    QCOMPARE(page.Info("labelSizeValue"), QString("640x480"));
    QCOMPARE(page.Zoom(), QString("50.00%"));

    services.uiConfig.currentView = CameraView;
    services.global.reportManager = &services.cameraReport;
    services.cameraReport.imageSize = QSize(320, 240);
    emit services.uiConfig.signalImageInfoChanged();
    QCOMPARE(page.Info("labelSizeValue"), QString("320x240"));
}

void CameraStackedWidgetTest::closeCompareLeavesCompareOrEndsCounting()
{
    ShellServices services;
    Page page;
    CallLog::Clear();
    emit page.toolBar->signalCloseCompare();
    QCOMPARE(CallLog::Calls(), QStringList("UIConfigManager::SetCompareView()"));
    services.autoCount.counting = true;
    CallLog::Clear();
    emit page.toolBar->signalCloseCompare();
    QCOMPARE(CallLog::Calls(), QStringList("main SetProcessType(0)"));
}

void CameraStackedWidgetTest::placesItsBars()
{
    ShellServices services;
    DisplayScale scale(1.0);
    Page page;
    page.Show({ 701, 601 });
    QCOMPARE(page.infoBar->pos(), QPoint(0, 601 - 5 - page.infoBar->height()));
    const QPoint toolPos(701 - 30 - page.toolBar->width(), 601 / 2 - page.toolBar->height() / 2);
    QCOMPARE(page.toolBar->pos(), toolPos);
    QCOMPARE(page.stack.children().last(), static_cast<QObject *>(page.toolBar));

    page.Tool("pushButtonHide")->click(); // disabled without a camera
    QCOMPARE(page.toolBar->pos(), toolPos);
    FakeCameraMainManager camera;
    page.stack.UpdateViewOverlays();
    page.infoBar->raise();
    page.Tool("pushButtonHide")->click();
    QCOMPARE(page.toolBar->height(), 10);
    QCOMPARE(page.toolBar->pos(), QPoint(701 - 30 - page.toolBar->width(), 300 - 5));
    QCOMPARE(page.stack.children().last(), static_cast<QObject *>(page.toolBar));
}

void CameraStackedWidgetTest::progressPanelTakesTheWholePage()
{
    ShellServices services;
    DisplayScale scale(1.0);
    Page page;
    page.Show({ 600, 500 });
    AcquireProgressUI *panel = page.stack.GetProgressPanel();
    panel->move(40, 30);
    page.stack.resize(610, 510);
    QCOMPARE(panel->pos(), QPoint(40, 30)); // hidden: left where it is

    services.frameSave.autoStop = true;
    emit services.frameSave.signalSaveThreadRunningChanged(true);
    QVERIFY(panel->isVisible());
    page.stack.resize(620, 520);
    QCOMPARE(panel->pos(), QPoint(0, 0));
    QCOMPARE(panel->size(), QSize(200, 50)); // its own fixed size bounds it
    QCOMPARE(page.stack.children().last(), static_cast<QObject *>(panel));

    FakeCameraMainManager camera;
    page.stack.UpdateViewOverlays(); // any change of a camera control
    QCOMPARE(page.stack.children().last(), static_cast<QObject *>(panel));
    QCOMPARE(page.toolBar->y(), 520 / 2 - page.toolBar->height() / 2);
}

void CameraStackedWidgetTest::resizeFitsThePicture()
{
    ShellServices services;
    FakeCameraMainManager camera;
    Page page;
    page.Show({ 600, 500 });
    emit services.preview.signalPreviewImage(QImage(300, 200, QImage::Format_Grayscale8));
    QCOMPARE(page.view->transform().m11(), 2.0);
    page.stack.resize(900, 800);
    QCOMPARE(page.view->transform().m11(), 3.0);
}

void CameraStackedWidgetTest::restoresItsMainPage()
{
    ShellServices services;
    Page page;
    page.Show({ 600, 500 });
    emit services.preview.signalPreviewImage(QImage(300, 200, QImage::Format_Grayscale8));
    QWidget elsewhere;
    page.stack.addWidget(new QWidget(&page.stack));
    page.stack.removeWidget(page.frame);
    page.frame->setParent(&elsewhere);
    page.frame->hide();

    page.stack.RestoreMainPage();
    QCOMPARE(page.stack.count(), 2);
    QCOMPARE(page.stack.widget(0), static_cast<QWidget *>(page.frame));
    QCOMPARE(page.stack.currentIndex(), 0);
    QVERIFY(page.frame->isVisible());
    QCOMPARE(page.view->transform().m11(), 2.0);
    const QObjectList top = page.stack.children().mid(page.stack.children().size() - 2);
    QCOMPARE(top, QObjectList({ page.infoBar, page.toolBar }));
}

void CameraStackedWidgetTest::restoredPageFollowsDisplayMode()
{
    ShellServices services;
    Page page;
    page.stack.addWidget(new QWidget(&page.stack));
    page.stack.removeWidget(page.frame);
    services.spectrumUI.displayModeGeneral = false;
    services.spectrumUI.displayMode = 1;
    page.stack.widget(0)->raise();
    page.stack.RestoreMainPage();
    QCOMPARE(page.stack.widget(0), static_cast<QWidget *>(page.frame));
    QCOMPARE(page.stack.currentIndex(), 1);
    const QObjectList top = page.stack.children().mid(page.stack.children().size() - 2);
    QCOMPARE(top, QObjectList({ page.infoBar, page.toolBar }));
}

GUARDED_TEST_MAIN(CameraStackedWidgetTest)
#include "tst_camerastackedwidget.moc"
