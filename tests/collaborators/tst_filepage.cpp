// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"

#include "fakethumbnaillist.h"
#include "filesystemview.h"
#include "filethumbnail.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileSystemWatcher>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTreeView>

#include <memory>

/// The folder tree and the pictures of a folder, alone and bound to each other.
class TestFilePage : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override;
    void cleanup() override;
    void ListsThePicturesOfAFolder();
    void AFolderThatIsNotThereIsIgnored();
    void ADoubleClickOpensThePicture();
    void OpensThroughTheThumbnailList();
    void MergesTheSelectedFiles();
    void FollowsTheFolderWhileItIsWatched();
    void KeepsTheSelectionWhenAFileComes();
    void KeepsTheSelectionOfFilesThatStay();
    void ShowsManyChangesTogether();
    void FollowsAFolderThatComesBack();
    void TheTreeShowsTheFolderTyped();
    void TheTreeShowsTheFolderClicked();
    void TheTreeFollowsTheFoldersWhileItIsWatched();
    void TheTreeShowsItsFolderAgain();
    void BackLeadsToTheViewBefore();
    void BothFollowEachOther();

private:
    void WriteFile(const QString &name);
    QStringList Listed() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FileThumbnail> m_thumbnails;
    QListWidget *m_list = nullptr;
};

void TestFilePage::init()
{
    StartGuard();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    for (const char *name : {"b.PNG", "a.tif", "c.fits", "d.spe", "readme.txt", "e.jpg"})
        WriteFile(name);
    QVERIFY(QDir(m_folder->path()).mkdir("below"));
    m_thumbnails = std::make_unique<FileThumbnail>(nullptr);
    m_list = m_thumbnails->findChild<QListWidget *>("listWidgetFiles");
    QVERIFY(m_list);
}

void TestFilePage::cleanup()
{
    m_thumbnails.reset();
    m_folder.reset();
    EndGuard();
}

void TestFilePage::WriteFile(const QString &name)
{
    QFile file(m_folder->filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
}

QStringList TestFilePage::Listed() const
{
    QStringList names;
    for (int row = 0; row < m_list->count(); ++row)
        names << m_list->item(row)->text();
    return names;
}

void TestFilePage::ListsThePicturesOfAFolder()
{
    QSignalSpy folders(m_thumbnails.get(), SIGNAL(signalFolderChanged(QString)));
    m_thumbnails->slotOpenFileDirectory(m_folder->path());
    QCOMPARE(Listed(), QStringList({"a.tif", "b.PNG", "c.fits", "d.spe", "e.jpg"}));
    QCOMPARE(folders.count(), 1);
    m_thumbnails->slotOpenFileDirectory(m_folder->path() + "/");
    QCOMPARE(folders.count(), 1); // the same folder
}

void TestFilePage::AFolderThatIsNotThereIsIgnored()
{
    m_thumbnails->slotOpenFileDirectory(m_folder->path());
    m_thumbnails->slotOpenFileDirectory(m_folder->filePath("nowhere"));
    m_thumbnails->slotOpenFileDirectory(QString());
    QCOMPARE(m_list->count(), 5);
}

void TestFilePage::ADoubleClickOpensThePicture()
{
    m_thumbnails->slotOpenFileDirectory(m_folder->path());
    m_thumbnails->resize(600, 400);
    m_thumbnails->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_thumbnails.get()));
    QSignalSpy opened(m_thumbnails.get(), SIGNAL(signalOpenImage(QString,QObject*)));
    const QPoint centre = m_list->visualItemRect(m_list->item(1)).center();
    QTest::mouseClick(m_list->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
    QTest::mouseDClick(m_list->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
    QCOMPARE(opened.count(), 1);
    QCOMPARE(opened.first().at(0).toString(), m_folder->filePath("b.PNG"));
    QCOMPARE(opened.first().at(1).value<QObject *>(), nullptr);
}

void TestFilePage::OpensThroughTheThumbnailList()
{
    FakeThumbnailList list;
    m_thumbnails->ConnectWithThumbnailList(&list);
    QSignalSpy opened(&list, SIGNAL(signalOpenImage(QString,QObject*)));
    emit m_thumbnails->signalOpenImage("/pictures/a.tif", nullptr);
    QCOMPARE(opened.count(), 1);
    QCOMPARE(opened.first().at(0).toString(), QString("/pictures/a.tif"));
}

void TestFilePage::MergesTheSelectedFiles()
{
    auto *merge = m_thumbnails->findChild<QPushButton *>("pushButtonMerge");
    QVERIFY(merge->isHidden());
    m_thumbnails->slotSetMergeButtonVisible(true);
    QVERIFY(!merge->isHidden());
    m_thumbnails->slotOpenFileDirectory(m_folder->path());
    QVERIFY(!merge->isEnabled());
    m_list->item(2)->setSelected(true);
    QVERIFY(!merge->isEnabled()); // one file alone is nothing to merge
    m_list->item(0)->setSelected(true);
    QVERIFY(merge->isEnabled());
    QSignalSpy merged(m_thumbnails.get(), SIGNAL(signalMergeImages(QList<QString>)));
    merge->click();
    QCOMPARE(merged.count(), 1);
    QCOMPARE(merged.first().at(0).value<QList<QString>>(),
             QList<QString>({m_folder->filePath("a.tif"), m_folder->filePath("c.fits")}));
    m_thumbnails->slotSetMergeButtonVisible(false);
    QVERIFY(merge->isHidden());
}

void TestFilePage::FollowsTheFolderWhileItIsWatched()
{
    m_thumbnails->slotOpenFileDirectory(m_folder->path());
    m_thumbnails->StartFolderChecked();
    WriteFile("f.bmp");
    QTRY_COMPARE(m_list->count(), 6);

    m_thumbnails->StopFolderChecked();
    WriteFile("g.bmp");
    QCOMPARE(m_list->count(), 6);
    m_thumbnails->StartFolderChecked(); // looks at once
    QCOMPARE(m_list->count(), 7);
    QVERIFY(QFile::remove(m_folder->filePath("a.tif")));
    QTRY_COMPARE(m_list->count(), 6);
}

void TestFilePage::KeepsTheSelectionWhenAFileComes()
{
    m_thumbnails->slotOpenFileDirectory(m_folder->path());
    m_thumbnails->StartFolderChecked();
    m_list->setCurrentRow(1);
    WriteFile("aa.bmp");
    QTRY_COMPARE(m_list->count(), 6);
    QCOMPARE(Listed(), QStringList({ "a.tif", "aa.bmp", "b.PNG", "c.fits", "d.spe", "e.jpg" }));
    QCOMPARE(m_list->selectedItems().size(), 1);
    QCOMPARE(m_list->selectedItems().first()->text(), QString("b.PNG"));
    QCOMPARE(m_list->currentRow(), 2);
}

void TestFilePage::KeepsTheSelectionOfFilesThatStay()
{
    auto *merge = m_thumbnails->findChild<QPushButton *>("pushButtonMerge");
    m_thumbnails->slotOpenFileDirectory(m_folder->path());
    m_thumbnails->StartFolderChecked();
    m_list->item(0)->setSelected(true);
    m_list->item(2)->setSelected(true);
    QVERIFY(merge->isEnabled());
    QVERIFY(QFile::remove(m_folder->filePath("a.tif")));
    QTRY_COMPARE(Listed(), QStringList({ "b.PNG", "c.fits", "d.spe", "e.jpg" }));
    QVERIFY(!merge->isEnabled()); // one file alone is nothing to merge
    QCOMPARE(m_list->selectedItems().first()->text(), QString("c.fits"));

    // The same names in another folder are other files.
    QVERIFY(QFile::copy(m_folder->filePath("c.fits"), m_folder->filePath("below/c.fits")));
    m_thumbnails->slotOpenFileDirectory(m_folder->filePath("below"));
    QCOMPARE(Listed(), QStringList("c.fits"));
    QVERIFY(m_list->selectedItems().isEmpty());
    QCOMPARE(m_list->item(0)->data(Qt::UserRole).toString(), m_folder->filePath("below/c.fits"));
}

void TestFilePage::ShowsManyChangesTogether()
{
    m_thumbnails->slotOpenFileDirectory(m_folder->path());
    m_thumbnails->StartFolderChecked();
    auto *watcher = m_thumbnails->findChild<QFileSystemWatcher *>();
    QSignalSpy changes(watcher, SIGNAL(directoryChanged(QString)));
    for (int i = 0; i < 3; ++i) {
        changes.clear();
        WriteFile(QString("run%1.tif").arg(i));
        QVERIFY(changes.wait());
        if (i == 0)
            QCOMPARE(m_list->count(), 5); // more may come
    }
    QTRY_COMPARE(m_list->count(), 8);

    // While files keep coming the list does not wait for the last one.
    QElapsedTimer time;
    time.start();
    for (int i = 3; m_list->count() == 8; ++i) {
        QVERIFY2(time.elapsed() < 5000, "no file was shown");
        changes.clear();
        WriteFile(QString("run%1.tif").arg(i));
        QVERIFY(changes.wait());
    }
}

void TestFilePage::FollowsAFolderThatComesBack()
{
    const QString folder = m_folder->filePath("below");
    m_thumbnails->slotOpenFileDirectory(folder);
    m_thumbnails->StartFolderChecked();
    WriteFile("below/a.tif");
    QTRY_COMPARE(m_list->count(), 1);
    QVERIFY(QDir(folder).removeRecursively());
    QTRY_COMPARE(m_list->count(), 0);
    QVERIFY(QDir().mkdir(folder));
    WriteFile("below/b.tif");
    QTRY_COMPARE(Listed(), QStringList("b.tif"));
    WriteFile("below/c.tif");
    QTRY_COMPARE(Listed(), QStringList({ "b.tif", "c.tif" }));
}

void TestFilePage::TheTreeShowsTheFolderTyped()
{
    FileSystemView view(nullptr);
    QSignalSpy folders(&view, SIGNAL(signalFolderChanged(QString)));
    auto *path = view.findChild<QLineEdit *>("lineEditPath");
    path->setText(m_folder->path());
    QTest::keyClick(path, Qt::Key_Return);
    QCOMPARE(folders.count(), 1);
    QCOMPARE(folders.first().at(0).toString(), m_folder->path());
    path->setText(m_folder->filePath("nowhere"));
    QTest::keyClick(path, Qt::Key_Return);
    QCOMPARE(folders.count(), 1);
    QCOMPARE(path->text(), m_folder->path());
}

void TestFilePage::TheTreeShowsTheFolderClicked()
{
    FileSystemView view(nullptr);
    view.resize(500, 600);
    view.StartFolderChecked();
    view.slotShowFolder(m_folder->path());
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    auto *tree = view.findChild<QTreeView *>("treeViewFolders");
    // The model reads folders on a thread of its own.
    QTRY_VERIFY(tree->model()->rowCount(tree->currentIndex()) == 1);
    const QModelIndex below = tree->model()->index(0, 0, tree->currentIndex());
    tree->scrollTo(below);
    QSignalSpy folders(&view, SIGNAL(signalFolderChanged(QString)));
    QTRY_VERIFY(tree->visualRect(below).isValid());
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, tree->visualRect(below).center());
    QCOMPARE(folders.count(), 1);
    QCOMPARE(folders.first().at(0).toString(), m_folder->filePath("below"));
    view.StopFolderChecked();
}

void TestFilePage::TheTreeFollowsTheFoldersWhileItIsWatched()
{
    FileSystemView view(nullptr);
    view.slotShowFolder(m_folder->path());
    auto *tree = view.findChild<QTreeView *>("treeViewFolders");
    const auto folders = [tree] { return tree->model()->rowCount(tree->currentIndex()); };
    int expected = 1;
    for (const QString &visit : { QString("first"), QString("second"), QString("third") }) {
        view.StartFolderChecked();
        QTRY_COMPARE(folders(), expected);
        QVERIFY(QDir(m_folder->path()).mkdir(visit + " here"));
        QTRY_COMPARE(folders(), expected + 1);
        view.StopFolderChecked();
        QVERIFY(QDir(m_folder->path()).mkdir(visit + " away"));
        expected += 2;
    }
}

void TestFilePage::TheTreeShowsItsFolderAgain()
{
    // Many neighbours, so that the folder is out of sight unless the tree goes there.
    for (int i = 0; i < 100; ++i)
        QVERIFY(QDir(m_folder->path()).mkdir(QString("a%1").arg(i)));
    FileSystemView view(nullptr);
    view.resize(500, 300);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    auto *tree = view.findChild<QTreeView *>("treeViewFolders");
    view.slotShowFolder(m_folder->filePath("below"));
    QSignalSpy folders(&view, SIGNAL(signalFolderChanged(QString)));
    for (int visit = 0; visit < 2; ++visit) {
        view.StartFolderChecked();
        QTRY_COMPARE(tree->model()->rowCount(tree->currentIndex().parent()), 101);
        QCOMPARE(tree->currentIndex().data().toString(), QString("below"));
        QTRY_VERIFY(tree->viewport()->rect().contains(tree->visualRect(tree->currentIndex()).center()));
        view.StopFolderChecked();
    }
    QCOMPARE(folders.count(), 0); // it is the same folder
}

void TestFilePage::BackLeadsToTheViewBefore()
{
    FileSystemView view(nullptr);
    QSignalSpy back(&view, SIGNAL(sglSwitchToPreviousView()));
    view.findChild<QPushButton *>("pushButtonBack")->click();
    QCOMPARE(back.count(), 1);
}

void TestFilePage::BothFollowEachOther()
{
    FileSystemView view(nullptr);
    view.BindingConnectionsWithWidget(m_thumbnails.get());
    view.slotShowFolder(m_folder->path());
    QCOMPARE(m_list->count(), 5);
    QSignalSpy folders(&view, SIGNAL(signalFolderChanged(QString)));
    m_thumbnails->slotOpenFileDirectory(m_folder->filePath("below"));
    QCOMPARE(folders.count(), 1);
    QCOMPARE(view.findChild<QLineEdit *>("lineEditPath")->text(), m_folder->filePath("below"));
    QCOMPARE(m_list->count(), 0);
}

GUARDED_TEST_MAIN(TestFilePage)
#include "tst_filepage.moc"
