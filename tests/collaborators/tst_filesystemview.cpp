// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"

#include "filesystemview.h"
#include "filethumbnail.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTreeView>
#include <QVBoxLayout>

#include <memory>

/// The folder tree, alone and bound to the pictures of a folder.
class TestFileSystemView : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkdir("below"));
    }
    void cleanup() override
    {
        m_folder.reset();
        EndGuard();
    }
    void TheTabKeyGoesDown();
    void TheTreeShowsTheFolderTyped();
    void TheTreeShowsTheFolderClicked();
    void TheTreeFollowsTheFoldersWhileItIsWatched();
    void TheTreeShowsItsFolderAgain();
    void BackLeadsToTheViewBefore();
    void BothFollowEachOther();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestFileSystemView::TheTabKeyGoesDown()
{
    QWidget window;
    QVBoxLayout column(&window);
    QLineEdit above;
    FileSystemView view(nullptr);
    column.addWidget(&above);
    column.addWidget(&view);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    above.setFocus();
    for (const char *name : { "lineEditPath", "pushButtonBack", "treeViewFolders" }) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), QString(name));
    }
}

void TestFileSystemView::TheTreeShowsTheFolderTyped()
{
    FileSystemView view(nullptr);
    QSignalSpy folders(&view, SIGNAL(signalFolderChanged(QString)));
    auto *path = view.findChild<QLineEdit *>("lineEditPath");
    path->setText(m_folder->path());
    QTest::keyClick(path, Qt::Key_Return);
    QCOMPARE(folders.count(), 1);
    QCOMPARE(folders.first().at(0).toString(), m_folder->path());
    path->setText("no path");
    QTest::keyClick(path, Qt::Key_Return);
    QCOMPARE(folders.count(), 1);
    QCOMPARE(path->text(), m_folder->path());
    path->setText("~");
    QTest::keyClick(path, Qt::Key_Return);
    QCOMPARE(folders.last().at(0).toString(), QDir::homePath());
    // The page says that it is not there; the tree stays with the nearest one above.
    path->setText(m_folder->filePath("nowhere"));
    QTest::keyClick(path, Qt::Key_Return);
    QCOMPARE(folders.count(), 3);
    auto *tree = view.findChild<QTreeView *>("treeViewFolders");
    QTRY_COMPARE(tree->currentIndex().data().toString(), QFileInfo(m_folder->path()).fileName());
}

void TestFileSystemView::TheTreeShowsTheFolderClicked()
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

void TestFileSystemView::TheTreeFollowsTheFoldersWhileItIsWatched()
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

void TestFileSystemView::TheTreeShowsItsFolderAgain()
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

void TestFileSystemView::BackLeadsToTheViewBefore()
{
    FileSystemView view(nullptr);
    QSignalSpy back(&view, SIGNAL(sglSwitchToPreviousView()));
    view.findChild<QPushButton *>("pushButtonBack")->click();
    QCOMPARE(back.count(), 1);
}

void TestFileSystemView::BothFollowEachOther()
{
    QFile picture(m_folder->filePath("a.tif"));
    QVERIFY(picture.open(QIODevice::WriteOnly));
    FileSystemView view(nullptr);
    FileThumbnail thumbnails(nullptr);
    const auto *list = thumbnails.findChild<QListView *>("listViewFiles")->model();
    view.BindingConnectionsWithWidget(&thumbnails);
    view.slotShowFolder(m_folder->path());
    QTRY_COMPARE(list->rowCount(), 1);
    QSignalSpy folders(&view, SIGNAL(signalFolderChanged(QString)));
    thumbnails.slotOpenFileDirectory(m_folder->filePath("below"));
    QCOMPARE(folders.count(), 1);
    QCOMPARE(view.findChild<QLineEdit *>("lineEditPath")->text(), m_folder->filePath("below"));
    QCOMPARE(list->rowCount(), 0);
}

GUARDED_TEST_MAIN(TestFileSystemView)
#include "tst_filesystemview.moc"
