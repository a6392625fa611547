// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerastackedwidget.h"
#include "comparechildframe.h"
#include "compareframe.h"
#include "drawframebase.h"
#include "drawviewbase.h"
#include "filesystemview.h"
#include "filethumbnail.h"
#include "globalnotify.h"
#include "globalui.h"
#include "gpudrawframe.h"
#include "guardedtest.h"
#include "imageinfoui.h"
#include "imagestackedwidget.h"
#include "shellfixture.h"
#include "viewcodes.h"
#include "viewtoolbar.h"

#include <QCheckBox>
#include <QDir>
#include <QListView>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTreeView>

namespace {

/// A built window with a camera and two open files.
struct Window : ShellHost
{
    explicit Window(Panels panels = WithoutPanels)
        : ShellHost(panels)
    {
        services.active.fileInfo = "active 10x20";
        services.main.fileInfo = "main 30x40";
        services.compare.fileInfo = "compare 50x60";
        Build();
        halves = Compare()->findChildren<CompareChildFrame *>();
    }

    GPUDrawFrame *CameraFrame() const { return CameraStack()->GetMainFrame(); }
    GPUDrawFrame *ImageFrame() const { return ImageStack()->GetMainFrame(); }
    GPUDrawFrame *SecondFrame() const { return ImageStack()->GetSecondFrame(); }
    QList<GPUDrawFrame *> Lent() const { return { halves.at(0)->GetFrame(), halves.at(1)->GetFrame() }; }
    QCheckBox *Name(int half) const { return halves.at(half)->findChild<QCheckBox *>(); }
    QStringList Names() const { return { Name(0)->text(), Name(1)->text() }; }
    QList<bool> Checked() const { return { Name(0)->isChecked(), Name(1)->isChecked() }; }

    /// The pages of both stacks as they are without a comparison.
    void VerifyAtHome() const
    {
        QCOMPARE(CameraStack()->widget(0), static_cast<QWidget *>(CameraFrame()));
        QCOMPARE(CameraStack()->currentIndex(), 0);
        QCOMPARE(ImageStack()->widget(0), static_cast<QWidget *>(ImageFrame()));
        QCOMPARE(ImageStack()->currentIndex(), 0);
        QVERIFY(Compare()->isHidden());
        QVERIFY(SecondFrame()->isHidden());
        QCOMPARE(Lent(), QList<GPUDrawFrame *>({ nullptr, nullptr }));
    }

    FakeCameraMainManager camera;
    QList<CompareChildFrame *> halves;
};

QStringList Calls(const QStringList &classes)
{
    QStringList calls;
    for (const QString &call : CallLog::Calls()) {
        for (const QString &name : classes) {
            if (call.startsWith(name))
                calls << call;
        }
    }
    return calls;
}

const QList<GPUDrawFrame *> nobody{ nullptr, nullptr };

} // namespace

class SwitchViewTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void followsThePages();
    void bottomPagesFollow();
    void cameraUpdateBringsItsBottomPages();
    void foldersAreWatchedInTheFileView();
    void overlaysFollow();
    void logsThePageCount();
    void previewRunsOnlyWhileLive_data();
    void previewRunsOnlyWhileLive();
    void previewIsLeftAloneWithoutCamera();
    void countingEndsOnTheLivePage();
    void compareMenuFollows();
    void asksTheServicesInOrder();
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
    void allViewsAndBack();
    void pictureIsBackWhateverTheDisplayMode_data();
    void pictureIsBackWhateverTheDisplayMode();
    void activeHalfFollowsTheActiveManager();
    void pressedHalfGetsTheFocus();
    void floatingPanelsStayOnTop();
    void notificationRefreshesOverlays();
    void displayModeChangeReachesBothSides();
};

void SwitchViewTest::followsThePages()
{
    Window host;
    for (int view : { FileView, ImageView, CameraView, ImageCompareView, CameraCompareView }) {
        host.SwitchTo(view);
        QCOMPARE(host.ui->GetLeftStackedWidget()->currentIndex(),
                 host.services.uiConfig.leftStackedWidgetIndex);
        QCOMPARE(host.ui->GetCenterStackedWidget()->currentIndex(),
                 host.services.uiConfig.centerStackedWidgetIndex);
    }
}

void SwitchViewTest::bottomPagesFollow()
{
    Window host(ShellHost::WithPanels);
    const QStringList camera{ "File Preview", "Histogram(Live)", "Calibration Table", "Class Counting" };
    const QStringList image{ "File Preview", "Calibration Table", "Class Counting",
                             "Automatic Counting Table" };
    const QStringList expected[] = { camera, image, image, camera, image };
    for (int view : { ImageView, CameraView, FileView, ImageCompareView, CameraCompareView, FileView }) {
        host.SwitchTo(view);
        QCOMPARE(TabTexts(host.ui->GetBottomTabWidget()), expected[view]);
        // A host asks for an update after it has switched.
        host.services.global.cameraView = view == CameraView || view == CameraCompareView;
        host.ui->UpdateUI();
        QCOMPARE(TabTexts(host.ui->GetBottomTabWidget()), expected[view]);
    }
}

void SwitchViewTest::cameraUpdateBringsItsBottomPages()
{
    Window host(ShellHost::WithPanels);
    const QTabWidget *bottom = host.ui->GetBottomTabWidget();
    host.services.global.cameraView = false;
    host.ui->UpdateUI();
    QVERIFY(TabTexts(bottom).contains("Automatic Counting Table"));
    QVERIFY(!TabTexts(bottom).contains("Histogram(Live)"));
    host.services.global.cameraView = true;
    host.ui->UpdateUI();
    QVERIFY(!TabTexts(bottom).contains("Automatic Counting Table"));
    QVERIFY(TabTexts(bottom).contains("Histogram(Live)"));
}

void SwitchViewTest::foldersAreWatchedInTheFileView()
{
    QTemporaryDir folder;
    QVERIFY(folder.isValid());
    const auto write = [&folder](const QString &name) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    };
    Window host;
    auto *tree = host.window.findChild<FileSystemView *>()->findChild<QTreeView *>();
    auto *thumbnails = host.window.findChild<FileThumbnail *>();
    const auto *files = thumbnails->findChild<QListView *>("listViewFiles")->model();
    thumbnails->slotOpenFileDirectory(folder.path());
    const auto folders = [tree] { return tree->model()->rowCount(tree->currentIndex()); };

    for (int visit = 1; visit <= 2; ++visit) {
        host.SwitchTo(FileView);
        QTRY_COMPARE(folders(), visit - 1);
        QTRY_COMPARE(files->rowCount(), visit * 2 - 2);
        write(QString("seen%1.tif").arg(visit));
        QVERIFY(QDir(folder.path()).mkdir(QString::number(visit)));
        QTRY_COMPARE(files->rowCount(), visit * 2 - 1);
        QTRY_COMPARE(folders(), visit);

        host.SwitchTo(ImageView);
        write(QString("unseen%1.tif").arg(visit)); // seen at the next visit
    }
}

void SwitchViewTest::overlaysFollow()
{
    Window host;
    const auto closeButtons = [&host] {
        QList<bool> visible;
        for (const QWidget *stack :
             { static_cast<QWidget *>(host.CameraStack()), static_cast<QWidget *>(host.ImageStack()) })
            visible << !stack->findChild<QPushButton *>("pushButtonCloseCompare")->isHidden();
        return visible;
    };
    for (int view : { CameraCompareView, FileView, ImageCompareView, ImageView, CameraCompareView,
                      ImageCompareView, CameraView }) {
        host.services.useArea.infoBarVisible = !host.services.useArea.infoBarVisible;
        host.SwitchTo(view);
        QCOMPARE(closeButtons(), QList<bool>({ view == CameraCompareView, view == ImageCompareView }));
        for (const ImageInfoUI *bar : host.window.findChildren<ImageInfoUI *>())
            QCOMPARE(!bar->isHidden(), host.services.useArea.infoBarVisible);
    }
}

void SwitchViewTest::logsThePageCount()
{
    Window host;
    host.SwitchTo(CameraCompareView);
    host.SwitchTo(CameraView);
    QStringList lines;
    for (const QString &line : DebugLines()) {
        if (line.startsWith("camera"))
            lines << line;
    }
    QCOMPARE(lines, QStringList({ "camera  1", "camera  1" })); // the main frame is lent meanwhile
    QCOMPARE(host.CameraStack()->count(), 2);
}

void SwitchViewTest::previewRunsOnlyWhileLive_data()
{
    QTest::addColumn<int>("view");
    QTest::addColumn<QString>("call");
    QTest::newRow("camera") << int(CameraView) << "PreviewManager::StartPreview()";
    QTest::newRow("camera compare") << int(CameraCompareView) << "PreviewManager::StartPreview()";
    QTest::newRow("image") << int(ImageView) << "PreviewManager::StopPreview()";
    QTest::newRow("file") << int(FileView) << "PreviewManager::StopPreview()";
    QTest::newRow("image compare") << int(ImageCompareView) << "PreviewManager::StopPreview()";
}

void SwitchViewTest::previewRunsOnlyWhileLive()
{
    QFETCH(int, view);
    QFETCH(QString, call);
    Window host;
    CallLog::Clear();
    host.SwitchTo(view);
    QCOMPARE(Calls({ "PreviewManager", "SpectrumUIManager" }),
             QStringList({ call, "SpectrumUIManager::UpdateDisplayModeProperty()" }));
}

void SwitchViewTest::previewIsLeftAloneWithoutCamera()
{
    ShellHost host;
    host.Build();
    for (int view : { ImageView, FileView, CameraCompareView, CameraView, ImageCompareView, CameraView }) {
        CallLog::Clear();
        host.SwitchTo(view);
        QCOMPARE(Calls({ "PreviewManager", "SpectrumUIManager" }), QStringList());
    }
}

void SwitchViewTest::countingEndsOnTheLivePage()
{
    Window host;
    host.services.autoCount.counting = true;
    for (int view : { ImageView, FileView, CameraCompareView, ImageCompareView }) {
        CallLog::Clear();
        host.SwitchTo(view);
        QCOMPARE(CallLog::Count("main SetProcessType(0)"), 0);
    }
    CallLog::Clear();
    host.SwitchTo(CameraView);
    QCOMPARE(CallLog::Count("main SetProcessType(0)"), 1);
    host.services.autoCount.counting = false;
    CallLog::Clear();
    host.SwitchTo(CameraView);
    QCOMPARE(CallLog::Count("main SetProcessType(0)"), 0);
}

void SwitchViewTest::compareMenuFollows()
{
    Window host;
    for (int view : { CameraView, CameraCompareView, FileView, ImageCompareView, ImageView }) {
        CallLog::Clear();
        host.SwitchTo(view);
        const bool comparing = view == CameraCompareView || view == ImageCompareView;
        QCOMPARE(Calls({ "ThumbnailList" }),
                 QStringList("ThumbnailList::SetCompareSubMenuChecked(" + Text(comparing) + ")"));
    }
}

void SwitchViewTest::asksTheServicesInOrder()
{
    Window host;
    host.SwitchTo(ImageCompareView);
    host.services.autoCount.counting = true;
    CallLog::Clear();
    host.SwitchTo(CameraView);
    QCOMPARE(CallLog::Calls(),
             QStringList({ "GlobalManager::QuitCompare()", "compare CloseImage()", "main SetProcessType(0)",
                           "GlobalManager::UpdateReportManager()", "PreviewManager::StartPreview()",
                           "SpectrumUIManager::UpdateDisplayModeProperty()",
                           "ThumbnailList::SetCompareSubMenuChecked(false)" }));
}

void SwitchViewTest::cameraCompareLendsTheFrames()
{
    Window host;
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

void SwitchViewTest::cameraCompareTwiceDoesNotRebind()
{
    Window host;
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

void SwitchViewTest::leavingCameraCompare()
{
    for (int view : { CameraView, ImageView }) {
        Window host;
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

void SwitchViewTest::picturesFitTheirPagesAfterAComparison_data()
{
    QTest::addColumn<int>("compareView");
    QTest::addColumn<int>("nextView");
    QTest::addColumn<int>("lastView");
    QTest::newRow("camera compare, camera, image") << int(CameraCompareView) << int(CameraView) << int(ImageView);
    QTest::newRow("camera compare, image, camera") << int(CameraCompareView) << int(ImageView) << int(CameraView);
    QTest::newRow("image compare, camera, image") << int(ImageCompareView) << int(CameraView) << int(ImageView);
    QTest::newRow("image compare, image, camera") << int(ImageCompareView) << int(ImageView) << int(CameraView);
}

void SwitchViewTest::picturesFitTheirPagesAfterAComparison()
{
    QFETCH(int, compareView);
    QFETCH(int, nextView);
    QFETCH(int, lastView);
    Window host;
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

void SwitchViewTest::imageCompareLendsTheFrames()
{
    Window host;
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

void SwitchViewTest::imageCompareTwiceDoesNotRebind()
{
    Window host;
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

void SwitchViewTest::leavingImageCompare()
{
    for (int view : { ImageView, CameraView }) {
        Window host;
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

void SwitchViewTest::fileViewLeavesTheCompareFrameInPlace()
{
    for (int view : { CameraCompareView, ImageCompareView }) {
        Window host;
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

void SwitchViewTest::fromImageCompareToCameraCompare()
{
    Window host;
    host.SwitchTo(ImageCompareView);
    host.SwitchTo(CameraCompareView);
    QCOMPARE(host.Lent(), QList<GPUDrawFrame *>({ host.CameraFrame(), host.ImageFrame() }));
    QCOMPARE(host.Names(), QStringList({ "", "active 10x20" }));
    QVERIFY(host.SecondFrame()->isHidden());
    QCOMPARE(host.CameraStack()->currentWidget(), static_cast<QWidget *>(host.Compare()));
    host.SwitchTo(CameraView);
    host.VerifyAtHome();
}

void SwitchViewTest::fromCameraCompareToImageCompare()
{
    Window host;
    host.SwitchTo(CameraCompareView);
    host.SwitchTo(ImageCompareView);
    QCOMPARE(host.Lent(), QList<GPUDrawFrame *>({ host.ImageFrame(), host.SecondFrame() }));
    // The live frame is back on its own page.
    QCOMPARE(host.CameraStack()->currentWidget(), static_cast<QWidget *>(host.CameraFrame()));
    host.SwitchTo(ImageView);
    host.VerifyAtHome();
}

void SwitchViewTest::allViewsAndBack()
{
    Window host(ShellHost::WithPanels);
    const QVector<int> round{ CameraView, ImageView, FileView, CameraCompareView, ImageCompareView };
    for (int from : round) {
        for (int to : round) {
            host.SwitchTo(from);
            emit host.services.preview.signalPreviewImage(QImage(64, 48, QImage::Format_Grayscale8));
            host.SwitchTo(to);
            if (to == CameraCompareView)
                QCOMPARE(host.Lent().first(), host.CameraFrame());
            else if (to == ImageCompareView)
                QCOMPARE(host.Lent().first(), host.ImageFrame());
            else if (to != FileView)
                QCOMPARE(host.Lent(), nobody);
        }
    }
    host.SwitchTo(CameraView);
    host.VerifyAtHome();
}

void SwitchViewTest::pictureIsBackWhateverTheDisplayMode_data()
{
    QTest::addColumn<int>("compareView");
    QTest::addColumn<int>("mode");
    for (int mode : { 1, 2, 3, 4 }) { // the compare frame has the place of the first
        QTest::addRow("camera compare, mode %d", mode) << int(CameraCompareView) << mode;
        QTest::addRow("image compare, mode %d", mode) << int(ImageCompareView) << mode;
    }
}

/// A spectrum page was chosen during the comparison: behind it the picture is in its place again, as wide as the page.
void SwitchViewTest::pictureIsBackWhateverTheDisplayMode()
{
    QFETCH(int, compareView);
    QFETCH(int, mode);
    const bool isLive = compareView == CameraCompareView;
    Window host;
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

void SwitchViewTest::activeHalfFollowsTheActiveManager()
{
    Window host;
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

void SwitchViewTest::pressedHalfGetsTheFocus()
{
    Window host;
    CallLog::Clear();
    for (CompareChildFrame *half : qAsConst(host.halves))
        emit half->signalFramePressed(nullptr);
    QCOMPARE(CallLog::Calls(), QStringList({ "GlobalManager::slotSetGraphicsScene()",
                                             "GlobalManager::slotSetGraphicsScene()" }));
}

void SwitchViewTest::floatingPanelsStayOnTop()
{
    Window host;
    for (int view : { ImageView, FileView, CameraView }) {
        host.SwitchTo(view);
        QStackedWidget *centre = host.ui->GetCenterStackedWidget();
        const QObjectList top = centre->children().mid(centre->children().size() - 5);
        for (QObject *button : top)
            QVERIFY2(qobject_cast<QPushButton *>(button), button->metaObject()->className());
    }
}

void SwitchViewTest::notificationRefreshesOverlays()
{
    Window host;
    host.services.useArea.infoBarVisible = false;
    GlobalNotifyObserver(70, nullptr);
    QVERIFY(!host.CameraStack()->findChild<ImageInfoUI *>()->isHidden());
    int notADataPointer = 0;
    GlobalNotifyObserver(71, &notADataPointer);
    QVERIFY(host.CameraStack()->findChild<ImageInfoUI *>()->isHidden());
    QVERIFY(host.ImageStack()->findChild<ImageInfoUI *>()->isHidden());
}

void SwitchViewTest::displayModeChangeReachesBothSides()
{
    Window host;
    auto *camera = qobject_cast<QStackedWidget *>(host.CameraStack()->parentWidget());
    auto *image = qobject_cast<QStackedWidget *>(host.ImageStack()->parentWidget());
    host.services.displayModeUI.currentDisplayMode = 2;
    emit host.services.spectrumUI.signalDisplayModeChange();
    QCOMPARE(camera->currentIndex(), 1);
    QCOMPARE(image->currentIndex(), 1);
    host.services.displayModeUI.currentDisplayMode = 0;
    emit host.services.spectrumUI.signalDisplayModeChange();
    QCOMPARE(camera->currentIndex(), 0);
    QCOMPARE(image->currentIndex(), 0);
}

GUARDED_TEST_MAIN(SwitchViewTest)
#include "tst_switchview.moc"
