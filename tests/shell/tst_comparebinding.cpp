// SPDX-License-Identifier: GPL-3.0-or-later
#include "comparingwindow.h"
#include "drawframebase.h"
#include "drawviewbase.h"
#include "guardedtest.h"
#include "imageinfoui.h"
#include "viewtoolbar.h"

/// The compare frame gets the pictures of its two sides, and gives them back.
class CompareBindingTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void cameraCompareLendsTheFrames();
    void cameraCompareTwiceDoesNotRebind();
    void leavingCameraCompare();
    void picturesFitTheirPagesAfterAComparison_data();
    void picturesFitTheirPagesAfterAComparison();
    void imageCompareLendsTheFrames();
    void imageCompareTwiceDoesNotRebind();
    void leavingImageCompare();
    void fileViewLeavesTheCompareFrameInPlace();
    void fromImageCompareToCameraCompare();
    void fromCameraCompareToImageCompare();
    void pictureIsBackWhateverTheDisplayMode_data();
    void pictureIsBackWhateverTheDisplayMode();
    void activeHalfFollowsTheActiveManager();
};

void CompareBindingTest::cameraCompareLendsTheFrames()
{
    ComparingWindow host;
    host.SwitchTo(CameraCompareView);
    QCOMPARE(host.CameraStack()->currentWidget(), static_cast<QWidget *>(host.Compare()));
    QVERIFY(host.Compare()->isVisible());
    QCOMPARE(host.Lent(), QList<GPUDrawFrame *>({ host.CameraFrame(), host.ImageFrame() }));
    QCOMPARE(host.Names(), QStringList({ "", "active 10x20" }));
    QCOMPARE(host.Checked(), QList<bool>({ true, false }));
    QCOMPARE(host.CameraStack()->indexOf(host.CameraFrame()), -1);
    QVERIFY(host.CameraFrame()->isVisible());
    QVERIFY(host.ImageFrame()->isVisible());
    QVERIFY(host.SecondFrame()->isHidden());
    // The picture's name follows its manager.
    emit host.services.active.signalUpdateFileNameAndSize("other 1x1");
    QCOMPARE(host.Names(), QStringList({ "", "other 1x1" }));
    const QObjectList &children = host.CameraStack()->children();
    QVERIFY(children.indexOf(host.CameraStack()->findChild<ViewToolBar *>())
            > children.indexOf(host.Compare()));
    QVERIFY(children.indexOf(host.CameraStack()->findChild<ImageInfoUI *>())
            > children.indexOf(host.Compare()));
}

void CompareBindingTest::cameraCompareTwiceDoesNotRebind()
{
    ComparingWindow host;
    host.SwitchTo(CameraCompareView);
    host.Compare()->SetLeftChecked(false);
    emit host.services.active.signalUpdateFileNameAndSize("renamed");
    for (int view : { CameraCompareView, FileView, CameraCompareView }) {
        host.SwitchTo(view);
        QCOMPARE(host.Lent(), QList<GPUDrawFrame *>({ host.CameraFrame(), host.ImageFrame() }));
        QCOMPARE(host.Names(), QStringList({ "", "renamed" }));
        QCOMPARE(host.Checked(), QList<bool>({ false, true }));
    }
    QCOMPARE(host.CameraStack()->currentWidget(), static_cast<QWidget *>(host.Compare()));
}

void CompareBindingTest::leavingCameraCompare()
{
    for (int view : { CameraView, ImageView }) {
        ComparingWindow host;
        host.SwitchTo(CameraCompareView);
        CallLog::Clear();
        host.SwitchTo(view);
        host.VerifyAtHome();
        QCOMPARE(CallLog::Count("GlobalManager::QuitCompare()"), 0);
        QCOMPARE(CallLog::Count("compare CloseImage()"), 0);
        QCOMPARE(host.CameraFrame()->isVisible(), view == CameraView);
        QCOMPARE(host.ImageFrame()->isVisible(), view == ImageView);
    }
}

void CompareBindingTest::picturesFitTheirPagesAfterAComparison_data()
{
    QTest::addColumn<int>("compareView");
    QTest::addColumn<int>("nextView");
    QTest::addColumn<int>("lastView");
    QTest::newRow("camera compare, camera, image") << int(CameraCompareView) << int(CameraView) << int(ImageView);
    QTest::newRow("camera compare, image, camera") << int(CameraCompareView) << int(ImageView) << int(CameraView);
    QTest::newRow("image compare, camera, image") << int(ImageCompareView) << int(CameraView) << int(ImageView);
    QTest::newRow("image compare, image, camera") << int(ImageCompareView) << int(ImageView) << int(CameraView);
}

void CompareBindingTest::picturesFitTheirPagesAfterAComparison()
{
    QFETCH(int, compareView);
    QFETCH(int, nextView);
    QFETCH(int, lastView);
    ComparingWindow host;
    DrawViewBase *live = host.CameraFrame()->GetDrawFrame()->GetDrawView();
    DrawViewBase *opened = host.ImageFrame()->GetDrawFrame()->GetDrawView();
    const QImage picture(1600, 200, QImage::Format_Grayscale8); // as wide as it is shown
    for (int view : { ImageView, CameraView }) {
        host.SwitchTo(view);
        (view == CameraView ? live : opened)->slotPaintPreview(picture);
        (view == CameraView ? live : opened)->slotZoomFit();
    }
    const double fitted = live->transform().m11();
    QCOMPARE(opened->transform().m11(), fitted);

    host.SwitchTo(compareView);
    QVERIFY(opened->transform().m11() < fitted);
    host.SwitchTo(nextView);
    host.SwitchTo(lastView);
    QCOMPARE(live->transform().m11(), fitted);
    QCOMPARE(opened->transform().m11(), fitted);
}

void CompareBindingTest::imageCompareLendsTheFrames()
{
    ComparingWindow host;
    host.SwitchTo(ImageCompareView);
    QCOMPARE(host.ImageStack()->currentWidget(), static_cast<QWidget *>(host.Compare()));
    QVERIFY(host.Compare()->isVisible());
    QCOMPARE(host.Lent(), QList<GPUDrawFrame *>({ host.ImageFrame(), host.SecondFrame() }));
    QCOMPARE(host.Names(), QStringList({ "main 30x40", "compare 50x60" }));
    QCOMPARE(host.Checked(), QList<bool>({ true, false }));
    QVERIFY(host.ImageFrame()->isVisible());
    QVERIFY(host.SecondFrame()->isVisible());
    QCOMPARE(host.CameraStack()->widget(0), static_cast<QWidget *>(host.CameraFrame()));
    emit host.services.main.signalUpdateFileNameAndSize("left");
    emit host.services.compare.signalUpdateFileNameAndSize("right");
    QCOMPARE(host.Names(), QStringList({ "left", "right" }));
}

void CompareBindingTest::imageCompareTwiceDoesNotRebind()
{
    ComparingWindow host;
    host.SwitchTo(ImageCompareView);
    emit host.services.main.signalUpdateFileNameAndSize("left");
    for (int view : { ImageCompareView, FileView, ImageCompareView }) {
        host.SwitchTo(view);
        QCOMPARE(host.Lent(), QList<GPUDrawFrame *>({ host.ImageFrame(), host.SecondFrame() }));
        QCOMPARE(host.Names(), QStringList({ "left", "compare 50x60" }));
    }
    QVERIFY(host.Compare()->isVisible());
    QVERIFY(host.SecondFrame()->isVisible());
}

void CompareBindingTest::leavingImageCompare()
{
    for (int view : { ImageView, CameraView }) {
        ComparingWindow host;
        host.SwitchTo(ImageCompareView);
        CallLog::Clear();
        host.SwitchTo(view);
        host.VerifyAtHome();
        QCOMPARE(Calls({ "GlobalManager", "compare " }),
                 QStringList({ "GlobalManager::QuitCompare()", "compare CloseImage()",
                               "GlobalManager::UpdateReportManager()" }));
        CallLog::Clear();
        host.SwitchTo(view); // nothing is left to leave
        QCOMPARE(CallLog::Count("GlobalManager::QuitCompare()"), 0);
    }
}

void CompareBindingTest::fileViewLeavesTheCompareFrameInPlace()
{
    for (int view : { CameraCompareView, ImageCompareView }) {
        ComparingWindow host;
        host.SwitchTo(view);
        const QList<GPUDrawFrame *> lent = host.Lent();
        QWidget *page = host.Compare()->parentWidget();
        CallLog::Clear();
        host.SwitchTo(FileView);
        QCOMPARE(host.Lent(), lent);
        QCOMPARE(host.Compare()->parentWidget(), page);
        QVERIFY(!host.Compare()->isHidden());
        QCOMPARE(CallLog::Count("GlobalManager::QuitCompare()"), 0);
    }
}

void CompareBindingTest::fromImageCompareToCameraCompare()
{
    ComparingWindow host;
    host.SwitchTo(ImageCompareView);
    host.SwitchTo(CameraCompareView);
    QCOMPARE(host.Lent(), QList<GPUDrawFrame *>({ host.CameraFrame(), host.ImageFrame() }));
    QCOMPARE(host.Names(), QStringList({ "", "active 10x20" }));
    QVERIFY(host.SecondFrame()->isHidden());
    QCOMPARE(host.CameraStack()->currentWidget(), static_cast<QWidget *>(host.Compare()));
    host.SwitchTo(CameraView);
    host.VerifyAtHome();
}

void CompareBindingTest::fromCameraCompareToImageCompare()
{
    ComparingWindow host;
    host.SwitchTo(CameraCompareView);
    host.SwitchTo(ImageCompareView);
    QCOMPARE(host.Lent(), QList<GPUDrawFrame *>({ host.ImageFrame(), host.SecondFrame() }));
    // The live frame is back on its own page.
    QCOMPARE(host.CameraStack()->currentWidget(), static_cast<QWidget *>(host.CameraFrame()));
    host.SwitchTo(ImageView);
    host.VerifyAtHome();
}

void CompareBindingTest::pictureIsBackWhateverTheDisplayMode_data()
{
    QTest::addColumn<int>("compareView");
    QTest::addColumn<int>("mode");
    for (int mode : { 1, 2, 3, 4 }) { // the compare frame has the place of the first
        QTest::addRow("camera compare, mode %d", mode) << int(CameraCompareView) << mode;
        QTest::addRow("image compare, mode %d", mode) << int(ImageCompareView) << mode;
    }
}

/// A spectrum page was chosen during the comparison: behind it the picture is in its place again, as wide as the page.
void CompareBindingTest::pictureIsBackWhateverTheDisplayMode()
{
    QFETCH(int, compareView);
    QFETCH(int, mode);
    const bool isLive = compareView == CameraCompareView;
    ComparingWindow host;
    const int homeView = isLive ? CameraView : ImageView;
    host.SwitchTo(homeView);
    StackedWidgetBase *stack =
        isLive ? static_cast<StackedWidgetBase *>(host.CameraStack()) : host.ImageStack();
    GPUDrawFrame *frame = stack->GetMainFrame();
    DrawViewBase *view = stack->GetMainDrawView();
    view->slotPaintPreview(QImage(1600, 200, QImage::Format_Grayscale8)); // as wide as it is shown
    view->slotZoomFit();
    const double fitted = view->transform().m11();

    host.SwitchTo(compareView);
    host.services.spectrumUI.displayModeGeneral = false;
    host.services.spectrumUI.displayMode = mode;
    host.services.displayModeUI.currentDisplayMode = mode;
    emit host.services.spectrumUI.signalDisplayModeChange();
    host.SwitchTo(homeView);
    QVERIFY(host.Compare()->isHidden());
    QCOMPARE(stack->currentWidget(), static_cast<QWidget *>(frame));
    QVERIFY(!frame->isHidden());
    QCOMPARE(view->transform().m11(), fitted);

    host.services.spectrumUI.displayModeGeneral = true;
    host.services.spectrumUI.displayMode = 0;
    host.services.displayModeUI.currentDisplayMode = 0;
    emit host.services.spectrumUI.signalDisplayModeChange();
    QVERIFY(frame->isVisible());
    QCOMPARE(view->transform().m11(), fitted);
    host.VerifyAtHome();
}

void CompareBindingTest::activeHalfFollowsTheActiveManager()
{
    ComparingWindow host;
    host.SwitchTo(ImageCompareView);
    host.services.global.activeImageManager = &host.services.compare;
    emit host.services.global.signalUpdateImageCompareFrame();
    QCOMPARE(host.Checked(), QList<bool>({ false, true }));
    host.services.global.activeImageManager = &host.services.main;
    emit host.services.global.signalUpdateImageCompareFrame();
    QCOMPARE(host.Checked(), QList<bool>({ true, false }));

    host.SwitchTo(CameraCompareView);
    host.services.global.activeImageManager = &host.services.compare;
    emit host.services.global.signalUpdateImageCompareFrame(); // not in this view
    QCOMPARE(host.Checked(), QList<bool>({ true, false }));
}

GUARDED_TEST_MAIN(CompareBindingTest)
#include "tst_comparebinding.moc"
