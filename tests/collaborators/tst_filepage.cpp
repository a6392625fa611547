// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"

#include "fakethumbnaillist.h"
#include "filesystemview.h"
#include "filethumbnail.h"

#include <QDir>
#include <QFile>
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
    void TheTreeShowsTheFolderTyped();
    void TheTreeShowsTheFolderClicked();
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
    m_list->item(1)->setSelected(true);
    WriteFile("aa.bmp");
    QTRY_COMPARE(m_list->count(), 6);
    QCOMPARE(m_list->selectedItems().size(), 1);
    QCOMPARE(m_list->selectedItems().first()->text(), QString("b.PNG"));
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
