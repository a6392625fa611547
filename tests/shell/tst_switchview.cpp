// SPDX-License-Identifier: GPL-3.0-or-later
#include "comparingwindow.h"
#include "filesystemview.h"
#include "filethumbnail.h"
#include "globalnotify.h"
#include "guardedtest.h"
#include "imageinfoui.h"

#include <QDir>
#include <QFile>
#include <QListView>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTreeView>

/// What follows when another view is shown.
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
    void allViewsAndBack();
    void pressedHalfGetsTheFocus();
    void floatingPanelsStayOnTop();
    void notificationRefreshesOverlays();
    void displayModeChangeReachesBothSides();
};

void SwitchViewTest::followsThePages()
{
    ComparingWindow host;
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
    ComparingWindow host(ShellHost::WithPanels);
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
    ComparingWindow host(ShellHost::WithPanels);
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
    ComparingWindow host;
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
    ComparingWindow host;
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
    ComparingWindow host;
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
    ComparingWindow host;
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
    ComparingWindow host;
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
    ComparingWindow host;
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
    ComparingWindow host;
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

void SwitchViewTest::allViewsAndBack()
{
    ComparingWindow host(ShellHost::WithPanels);
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
                QCOMPARE(host.Lent(), QList<GPUDrawFrame *>({ nullptr, nullptr }));
        }
    }
    host.SwitchTo(CameraView);
    host.VerifyAtHome();
}

void SwitchViewTest::pressedHalfGetsTheFocus()
{
    ComparingWindow host;
    CallLog::Clear();
    for (CompareChildFrame *half : qAsConst(host.halves))
        emit half->signalFramePressed(nullptr);
    QCOMPARE(CallLog::Calls(), QStringList({ "GlobalManager::slotSetGraphicsScene()",
                                             "GlobalManager::slotSetGraphicsScene()" }));
}

void SwitchViewTest::floatingPanelsStayOnTop()
{
    ComparingWindow host;
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
    ComparingWindow host;
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
    ComparingWindow host;
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
