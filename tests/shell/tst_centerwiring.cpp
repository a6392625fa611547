// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerastackedwidget.h"
#include "drawviewbase.h"
#include "filesystemview.h"
#include "filethumbnail.h"
#include "globalui.h"
#include "guardedtest.h"
#include "imagestackedwidget.h"
#include "shellfixture.h"
#include "viewcodes.h"

#include <QDir>
#include <QGraphicsScene>
#include <QListView>
#include <QMouseEvent>
#include <QShortcut>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTemporaryDir>

namespace {

const QPoint viewPos(11, 7);

/// One mouse event of each kind, as a draw view announces them.
void EmitMouse(DrawViewBase *view)
{
    const auto event = [](QEvent::Type type) {
        return QMouseEvent(type, viewPos, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    };
    QMouseEvent move = event(QEvent::MouseMove);
    QMouseEvent press = event(QEvent::MouseButtonPress);
    QMouseEvent release = event(QEvent::MouseButtonRelease);
    QMouseEvent doubleClick = event(QEvent::MouseButtonDblClick);
    emit view->signalMouseMoveEvent(&move);
    emit view->signalMousePressEvent(&press, QPointF(3.5, 2.5));
    emit view->signalMouseReleaseEvent(&release);
    emit view->signalMouseDoubleClickEvent(&doubleClick);
}

} // namespace

class CenterWiringTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void isWired();
    void thumbnailCommandsReachTheManagers();
    void newPicturesAndThumbnails();
    void fileViewsFollowEachOther();
    void openedFileReachesTheManager();
    void f8SavesTheActiveImage();
    void pressedViewGetsTheFocus();
    void mouseOnTheLiveView();
    void mouseOnTheImageViews();
};

void CenterWiringTest::isWired()
{
    ShellHost host;
    host.Build();
    ShellServices &services = host.services;
    auto *thumbnail = host.window.findChild<FileThumbnail *>();
    auto *fileSystem = host.window.findChild<FileSystemView *>();
    DrawViewBase *cameraView = host.CameraStack()->GetMainDrawView();
    DrawViewBase *imageView = host.ImageStack()->GetMainDrawView();
    auto *saveKey = host.ImageStack()->findChild<QShortcut *>(QString(), Qt::FindDirectChildrenOnly);
    QObject *list = services.thumbnails;
    QObject *global = &services.global;
    QObject *config = &services.uiConfig;
    QVector<Wire> wires{
        { fileSystem, SIGNAL(sglSwitchToPreviousView()), config, SLOT(slotFileViewReturn()) },
        { config, SIGNAL(signalSetMergeButtonVisible(bool)), thumbnail,
          SLOT(slotSetMergeButtonVisible(bool)) },
        { config, SIGNAL(signalSetSelectButtonVisible(bool)), list, SLOT(slotSetSelectButtonVisible(bool)) },
        { thumbnail, SIGNAL(signalMergeImages(QList<QString>)), &services.advancedProcess,
          SLOT(slotMergeImages(QList<QString>)) },
        { list, SIGNAL(sglShowFileThumbnail(QString)), thumbnail, SLOT(slotOpenFileDirectory(QString)) },
        { list, SIGNAL(signalSetFileView()), config, SLOT(slotSetFileView()) },
        { list, SIGNAL(signalCompare()), global, SLOT(slotSetCompareView()) },
        { list, SIGNAL(signalSwitchToPreviousView()), config, SLOT(slotFileViewReturn()) },
        { list, SIGNAL(signalRename(QObject *, QString)), global, SLOT(slotRename(QObject *, QString)) },
        { list, SIGNAL(signalCloseAllOpenedImage()), global, SLOT(slotCloseAllImage()) },
        { list, SIGNAL(signalCloseImage(QObject *)), global, SLOT(slotCloseImage(QObject *)) },
        { list, SIGNAL(signalSetImageChecked(QObject *, bool)), global,
          SLOT(slotSetImageChecked(QObject *, bool)) },
        { list, SIGNAL(signalSetAllImageChecked(bool)), global, SLOT(slotSetAllImageChecked(bool)) },
        { &services.compareSaver, SIGNAL(signalSaveCompare()), global, SLOT(slotSaveCompare()) },
        { list, SIGNAL(signalOpenImage(QString, QObject *)), global,
          SLOT(slotOpenImage(QString, QObject *)) },
        { saveKey, SIGNAL(activated()), &services.active, SLOT(slotSaveImageAs()) },
        { &services.active, SIGNAL(sglAddThumbnail(QImage)), list, SLOT(slotAddThumbnail(QImage)) },
        { config, SIGNAL(signalAddToThumbnailList(QString)), list, SLOT(slotAddToThumbnailList(QString)) },
        { cameraView, SIGNAL(signalGraphicsViewPressed(QGraphicsScene *)), global,
          SLOT(slotSetGraphicsScene(QGraphicsScene *)) },
        { imageView, SIGNAL(signalGraphicsViewPressed(QGraphicsScene *)), global,
          SLOT(slotSetGraphicsScene(QGraphicsScene *)) },
        { &services.advancedProcess, SIGNAL(signalNewImageCopy(void *)), &services.main,
          SLOT(slotNewImageCopy(void *)) },
        { &services.fluorescence, SIGNAL(signalNewImageCopy(void *)), &services.main,
          SLOT(slotNewImageCopy(void *)) },
        { &services.useArea, SIGNAL(signalUpdateUseArea()), host.ui, SLOT(slotUpdateUseArea()) },
        { config, SIGNAL(signalSwitchView()), host.ui, SLOT(slotSwitchView()) },
        { global, SIGNAL(signalUpdateImageCompareFrame()), host.ui, SLOT(slotUpdateImageCompareFrame()) },
        { &services.spectrumUI, SIGNAL(signalDisplayModeChange()), host.ui, SLOT(slotDisplayModeChange()) },
    };
    const QVector<QPair<DrawViewBase *, QObject *>> mouseReceivers{ { imageView, &services.main },
                                                                    { host.ImageStack()->GetSecondDrawView(),
                                                                      &services.compare },
                                                                    { cameraView, host.ui } };
    for (const auto &pair : mouseReceivers) {
        wires << Wire{ pair.first, SIGNAL(signalMouseMoveEvent(QMouseEvent *)), pair.second,
                       SLOT(slotMouseMoveEvent(QMouseEvent *)) }
              << Wire{ pair.first, SIGNAL(signalMousePressEvent(QMouseEvent *, QPointF)), pair.second,
                       SLOT(slotMousePressEvent(QMouseEvent *, QPointF)) }
              << Wire{ pair.first, SIGNAL(signalMouseReleaseEvent(QMouseEvent *)), pair.second,
                       SLOT(slotMouseReleaseEvent(QMouseEvent *)) }
              << Wire{ pair.first, SIGNAL(signalMouseDoubleClickEvent(QMouseEvent *)), pair.second,
                       SLOT(slotMouseDoubleClickEvent(QMouseEvent *)) };
    }
    QCOMPARE(MissingWires(wires), QStringList());
}

void CenterWiringTest::thumbnailCommandsReachTheManagers()
{
    ShellHost host;
    host.Build();
    FakeThumbnailList *list = host.services.thumbnails;
    CallLog::Clear();
    emit list->signalSetFileView();
    emit list->signalCompare();
    emit list->signalSwitchToPreviousView();
    emit list->signalRename(nullptr, "a.tif");
    emit list->signalCloseAllOpenedImage();
    emit list->signalCloseImage(nullptr);
    emit list->signalSetImageChecked(nullptr, true);
    emit list->signalSetAllImageChecked(false);
    emit host.services.compareSaver.signalSaveCompare();
    emit list->signalOpenImage("b.tif", nullptr);
    QCOMPARE(CallLog::Calls(),
             QStringList({ "UIConfigManager::slotSetFileView()", "GlobalManager::slotSetCompareView()",
                           "UIConfigManager::slotFileViewReturn()", "GlobalManager::slotRename(a.tif)",
                           "GlobalManager::slotCloseAllImage()", "GlobalManager::slotCloseImage()",
                           "GlobalManager::slotSetImageChecked(true)",
                           "GlobalManager::slotSetAllImageChecked(false)", "GlobalManager::slotSaveCompare()",
                           "GlobalManager::slotOpenImage(b.tif)" }));
}

void CenterWiringTest::newPicturesAndThumbnails()
{
    ShellHost host;
    host.Build();
    CallLog::Clear();
    emit host.services.active.sglAddThumbnail(QImage(2, 2, QImage::Format_Grayscale8));
    emit host.services.uiConfig.signalAddToThumbnailList("c.tif");
    emit host.services.uiConfig.signalSetSelectButtonVisible(true);
    emit host.services.advancedProcess.signalNewImageCopy(nullptr);
    emit host.services.fluorescence.signalNewImageCopy(nullptr);
    emit host.window.findChild<FileThumbnail *>()->signalMergeImages({ "a", "b" });
    QCOMPARE(
        CallLog::Calls(),
        QStringList({ "ThumbnailList::slotAddThumbnail()", "ThumbnailList::slotAddToThumbnailList(c.tif)",
                      "ThumbnailList::slotSetSelectButtonVisible(true)", "main slotNewImageCopy()",
                      "main slotNewImageCopy()", "AdvancedProcessManager::slotMergeImages()" }));
}

void CenterWiringTest::fileViewsFollowEachOther()
{
    QTemporaryDir folder;
    QVERIFY(folder.isValid());
    QFile picture(folder.filePath("a.tif"));
    QVERIFY(picture.open(QIODevice::WriteOnly));
    QVERIFY(QDir(folder.path()).mkdir("below"));
    ShellHost host;
    host.Build();
    auto *thumbnail = host.window.findChild<FileThumbnail *>();
    auto *fileSystem = host.window.findChild<FileSystemView *>();
    const auto *files = thumbnail->findChild<QListView *>("listViewFiles")->model();
    emit fileSystem->signalFolderChanged(folder.path());
    QTRY_COMPARE(files->rowCount(), 1);
    QSignalSpy folders(fileSystem, SIGNAL(signalFolderChanged(QString)));
    emit host.services.thumbnails->sglShowFileThumbnail(folder.filePath("below"));
    QCOMPARE(files->rowCount(), 0);
    QCOMPARE(folders.count(), 1);
    QCOMPARE(folders.first().first().toString(), folder.filePath("below"));
}

void CenterWiringTest::openedFileReachesTheManager()
{
    ShellHost host;
    host.Build();
    CallLog::Clear();
    emit host.window.findChild<FileThumbnail *>()->signalOpenImage("d.tif", nullptr);
    QCOMPARE(CallLog::Calls(), QStringList("GlobalManager::slotOpenImage(d.tif)"));
}

void CenterWiringTest::f8SavesTheActiveImage()
{
    ShellHost host;
    host.Build();
    host.SwitchTo(ImageView);
    host.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&host.window));
    auto *saveKey = host.ImageStack()->findChild<QShortcut *>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(saveKey);
    QCOMPARE(saveKey->key(), QKeySequence(Qt::Key_F8));
    QCOMPARE(saveKey->context(), Qt::WindowShortcut);
    CallLog::Clear();
    // Wherever in the window the focus is.
    for (QWidget *focus : { static_cast<QWidget *>(&host.window),
                            static_cast<QWidget *>(host.ui->GetLeftStackedWidget()->currentWidget()) }) {
        focus->setFocus();
        QTest::keyClick(focus, Qt::Key_F8);
    }
    QCOMPARE(CallLog::Count("active slotSaveImageAs()"), 2);
}

void CenterWiringTest::pressedViewGetsTheFocus()
{
    ShellHost host;
    host.Build();
    for (DrawViewBase *view : { host.CameraStack()->GetMainDrawView(), host.ImageStack()->GetMainDrawView(),
                                host.ImageStack()->GetSecondDrawView() }) {
        CallLog::Clear();
        emit view->signalGraphicsViewPressed(view->scene());
        QCOMPARE(CallLog::Calls(), QStringList("GlobalManager::slotSetGraphicsScene()"));
    }
}

void CenterWiringTest::mouseOnTheLiveView()
{
    ShellHost host;
    host.Build();
    CallLog::Clear();
    EmitMouse(host.CameraStack()->GetMainDrawView());
    QCOMPARE(CallLog::Calls(), // the release has no effect
             QStringList({ "ReportManager::LineProfileMouseMoveEvent()", "MeasureManager::mouseMoveEvent()",
                           "GlobalManager::MousePressEvent((3.5, 2.5))",
                           "MeasureManager::mouseDoubleClickEvent()" }));
}

void CenterWiringTest::mouseOnTheImageViews()
{
    ShellHost host;
    host.Build();
    CallLog::Clear();
    EmitMouse(host.ImageStack()->GetMainDrawView());
    EmitMouse(host.ImageStack()->GetSecondDrawView());
    QStringList calls;
    for (const char *name : { "main", "compare" }) {
        for (const char *call : { "slotMouseMoveEvent()", "slotMousePressEvent((3.5, 2.5))",
                                  "slotMouseReleaseEvent()", "slotMouseDoubleClickEvent()" })
            calls << QString("%1 %2").arg(name, call);
    }
    QCOMPARE(CallLog::Calls(), calls);
}

GUARDED_TEST_MAIN(CenterWiringTest)
#include "tst_centerwiring.moc"
