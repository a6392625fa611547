// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"

#include "fakethumbnaillist.h"
#include "filethumbnail.h"
#include "thumbnailmaker.h"
#include "thumbnailstore.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QLabel>
#include <QListView>
#include <QMutex>
#include <QMutexLocker>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolButton>
#include <QUndoStack>

#include <algorithm>
#include <memory>

namespace {

/// Large pictures of nothing; notes for which files it was asked.
class CountingMaker : public ThumbnailMaker
{
public:
    QStringList Suffixes() const override { return {"tif"}; }
    QImage Make(const QString &path, int, QString &) override
    {
        const QMutexLocker lock(&m_mutex);
        ++m_asked[path];
        QImage image(ThumbnailStore::LargeEdge, ThumbnailStore::LargeEdge, QImage::Format_RGB32);
        image.fill(Qt::gray);
        return image;
    }
    int MostAskedForOne() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_asked.isEmpty() ? 0 : *std::max_element(m_asked.begin(), m_asked.end());
    }

private:
    mutable QMutex m_mutex;
    QHash<QString, int> m_asked;
};

} // namespace

/// The pictures of a folder.
class TestFilePage : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override;
    void cleanup() override;
    void ListsThePicturesOfAFolder();
    void AFolderThatIsNotThereIsSaid();
    void ADoubleClickOpensThePicture();
    void OpensThroughTheThumbnailList();
    void MergesTheSelectedFiles();
    void FollowsTheFolderWhileItIsWatched();
    void KeepsTheSelectionWhenAFileComes();
    void KeepsTheSelectionOfFilesThatStay();
    void KeepsTheSelectionWhenManyFilesCome();
    void SortsAndFilters();
    void ManyFilesAreNotOpenedAtOnce();
    void TwoFilesAreCompared();
    void F2RenamesAndUndoNamesItBack();
    void ANameThatIsTakenIsRefused();
    void DeleteMovesToTheTrashAndUndoBringsBack();
    void KeysOpenAndSelect();
    void FollowsAFolderThatComesBack();
    void ALargePageAsksForEachThumbnailOnce();
    void TheLastPlaceWantedIsScrolledTo();

private:
    void WriteFile(const QString &name);
    void ShowFolder();
    QStringList Listed() const;
    int Count() const { return m_list->model()->rowCount(); }
    QModelIndex Index(int row) const { return m_list->model()->index(row, 0); }
    void Select(int row) { m_list->selectionModel()->select(Index(row), QItemSelectionModel::Select); }
    QStringList Selected() const;
    QString EmptyText() const { return m_thumbnails->findChild<QLabel *>("labelEmpty")->text(); }

    CountingMaker m_maker;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FileThumbnail> m_thumbnails;
    QListView *m_list = nullptr;
};

void TestFilePage::init()
{
    StartGuard();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    for (const char *name : {"b.PNG", "a.tif", "c.fits", "d.spe", "readme.txt", "e.jpg"})
        WriteFile(name);
    QVERIFY(QDir(m_folder->path()).mkdir("below"));
    qputenv("XDG_CACHE_HOME", QFile::encodeName(m_folder->filePath("cache")));
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder->filePath("data")));
    m_thumbnails = std::make_unique<FileThumbnail>(nullptr);
    m_list = m_thumbnails->findChild<QListView *>("listViewFiles");
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

/// In a window that has the keyboard.
void TestFilePage::ShowFolder()
{
    m_thumbnails->slotOpenFileDirectory(m_folder->path());
    m_thumbnails->resize(800, 600);
    m_thumbnails->show();
    m_thumbnails->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_thumbnails.get()));
    QTRY_COMPARE(Count(), 5);
}

QStringList TestFilePage::Listed() const
{
    QStringList names;
    for (int row = 0; row < Count(); ++row)
        names << Index(row).data().toString();
    return names;
}

QStringList TestFilePage::Selected() const
{
    QStringList names;
    for (const QModelIndex &index : m_list->selectionModel()->selectedIndexes())
        names << index.data().toString();
    names.sort();
    return names;
}

void TestFilePage::ListsThePicturesOfAFolder()
{
    QSignalSpy folders(m_thumbnails.get(), SIGNAL(signalFolderChanged(QString)));
    m_thumbnails->slotOpenFileDirectory(m_folder->path());
    QTRY_COMPARE(Listed(), QStringList({"a.tif", "b.PNG", "c.fits", "d.spe", "e.jpg"}));
    QCOMPARE(folders.count(), 1);
    m_thumbnails->slotOpenFileDirectory(m_folder->path() + "/");
    QCOMPARE(folders.count(), 1); // the same folder
}

void TestFilePage::AFolderThatIsNotThereIsSaid()
{
    m_thumbnails->slotOpenFileDirectory(m_folder->path());
    QTRY_COMPARE(Count(), 5);
    m_thumbnails->slotOpenFileDirectory(QString());
    QCOMPARE(Count(), 5);
    const QString nowhere = m_folder->filePath("nowhere");
    m_thumbnails->slotOpenFileDirectory(nowhere);
    QCOMPARE(Count(), 0);
    QTRY_VERIFY(EmptyText().startsWith("The folder \u201c" + nowhere + "\u201d is not there."));
    m_thumbnails->slotOpenFileDirectory(m_folder->filePath("below"));
    QTRY_COMPARE(EmptyText(), QString("There is no picture in this folder."));
}

void TestFilePage::ADoubleClickOpensThePicture()
{
    m_thumbnails->slotOpenFileDirectory(m_folder->path());
    m_thumbnails->resize(600, 400);
    m_thumbnails->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_thumbnails.get()));
    QTRY_COMPARE(Count(), 5);
    QSignalSpy opened(m_thumbnails.get(), SIGNAL(signalOpenImage(QString,QObject*)));
    const QPoint centre = m_list->visualRect(Index(1)).center();
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
    QTRY_COMPARE(Count(), 5);
    QVERIFY(!merge->isEnabled());
    Select(2);
    QVERIFY(!merge->isEnabled()); // one file alone is nothing to merge
    Select(0);
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
    QTRY_COMPARE(Count(), 5);
    WriteFile("f.bmp");
    QTRY_COMPARE(Count(), 6);

    m_thumbnails->StopFolderChecked();
    WriteFile("g.bmp");
    m_thumbnails->StartFolderChecked(); // looks at once
    QTRY_COMPARE(Count(), 7);
    QVERIFY(QFile::remove(m_folder->filePath("a.tif")));
    QTRY_COMPARE(Count(), 6);
}

void TestFilePage::KeepsTheSelectionWhenAFileComes()
{
    m_thumbnails->slotOpenFileDirectory(m_folder->path());
    m_thumbnails->StartFolderChecked();
    QTRY_COMPARE(Count(), 5);
    m_list->setCurrentIndex(Index(1));
    WriteFile("aa.bmp");
    QTRY_COMPARE(Count(), 6);
    QCOMPARE(Listed(), QStringList({"a.tif", "aa.bmp", "b.PNG", "c.fits", "d.spe", "e.jpg"}));
    QCOMPARE(Selected(), QStringList("b.PNG"));
    QCOMPARE(m_list->currentIndex().row(), 2);
}

void TestFilePage::KeepsTheSelectionOfFilesThatStay()
{
    auto *merge = m_thumbnails->findChild<QPushButton *>("pushButtonMerge");
    m_thumbnails->slotOpenFileDirectory(m_folder->path());
    m_thumbnails->StartFolderChecked();
    QTRY_COMPARE(Count(), 5);
    Select(0);
    Select(2);
    QVERIFY(merge->isEnabled());
    QVERIFY(QFile::remove(m_folder->filePath("a.tif")));
    QTRY_COMPARE(Listed(), QStringList({"b.PNG", "c.fits", "d.spe", "e.jpg"}));
    QVERIFY(!merge->isEnabled()); // one file alone is nothing to merge
    QCOMPARE(Selected(), QStringList("c.fits"));

    // The same names in another folder are other files.
    QVERIFY(QFile::copy(m_folder->filePath("c.fits"), m_folder->filePath("below/c.fits")));
    m_thumbnails->slotOpenFileDirectory(m_folder->filePath("below"));
    QTRY_COMPARE(Listed(), QStringList("c.fits"));
    QVERIFY(Selected().isEmpty());
    m_list->selectAll();
    QCOMPARE(m_thumbnails->SelectedFiles(), QList<QString>({m_folder->filePath("below/c.fits")}));
}

/// Hundreds at once make a new list of the old.
void TestFilePage::KeepsTheSelectionWhenManyFilesCome()
{
    m_thumbnails->slotOpenFileDirectory(m_folder->path());
    m_thumbnails->StartFolderChecked();
    QTRY_COMPARE(Count(), 5);
    Select(1);
    Select(4);
    for (int i = 0; i < 200; ++i)
        WriteFile(QString("%1%2.tif").arg(QChar('a' + i % 6)).arg(i));
    QTRY_COMPARE(Count(), 205);
    QCOMPARE(Selected(), QStringList({"b.PNG", "e.jpg"}));
}

void TestFilePage::SortsAndFilters()
{
    WriteFile("a10.tif");
    WriteFile("a9.tif");
    m_thumbnails->slotOpenFileDirectory(m_folder->path());
    QTRY_COMPARE(Listed(), QStringList({"a.tif", "a9.tif", "a10.tif", "b.PNG", "c.fits", "d.spe", "e.jpg"}));
    Select(2);
    m_thumbnails->findChild<QToolButton *>("toolButtonDirection")->click();
    QTRY_COMPARE(Listed().first(), QString("e.jpg"));
    QCOMPARE(Selected(), QStringList("a10.tif"));
    auto *sort = m_thumbnails->findChild<QComboBox *>("comboBoxSort");
    sort->setCurrentIndex(sort->findText("Type"));
    QTRY_COMPARE(Listed(), QStringList({"a.tif", "a9.tif", "a10.tif", "d.spe", "b.PNG", "e.jpg", "c.fits"}));
    auto *filter = m_thumbnails->findChild<QLineEdit *>("lineEditFilter");
    filter->setText("a?.tif");
    QTRY_COMPARE(Listed(), QStringList("a9.tif"));
    QCOMPARE(m_thumbnails->findChild<QLabel *>("labelCount")->text(), QString("Pictures: 1 of 7"));
    filter->setText("NOTHING");
    QTRY_COMPARE(EmptyText(), QString("No picture's name fits \u201cNOTHING\u201d."));
    filter->setText("PNG");
    QTRY_COMPARE(Listed(), QStringList("b.PNG"));
}

void TestFilePage::ManyFilesAreNotOpenedAtOnce()
{
    for (int i = 0; i < 60; ++i)
        WriteFile(QString("z%1.tif").arg(i));
    m_thumbnails->slotOpenFileDirectory(m_folder->path());
    QTRY_COMPARE(Count(), 65);
    m_list->selectAll();
    QSignalSpy opened(m_thumbnails.get(), SIGNAL(signalOpenImage(QString,QObject*)));
    auto *open = m_thumbnails->findChild<QPushButton *>("pushButtonOpen");
    open->click();
    QCOMPARE(opened.count(), 0);
    QCOMPARE(m_thumbnails->findChild<QLabel *>("labelNotice")->text(),
             QString("65 pictures are selected; at most 64 are opened at once. Select fewer."));
    m_list->selectionModel()->select(Index(0), QItemSelectionModel::Deselect);
    open->click();
    QCOMPARE(opened.count(), 64);
}

void TestFilePage::TwoFilesAreCompared()
{
    auto *compare = m_thumbnails->findChild<QPushButton *>("pushButtonCompare");
    m_thumbnails->slotOpenFileDirectory(m_folder->path());
    QTRY_COMPARE(Count(), 5);
    Select(3);
    QVERIFY(!compare->isEnabled());
    Select(1);
    QSignalSpy compared(m_thumbnails.get(), SIGNAL(signalCompareImages(QString,QString)));
    compare->click();
    QCOMPARE(compared.count(), 1);
    QCOMPARE(compared.first(), QVariantList({m_folder->filePath("b.PNG"), m_folder->filePath("d.spe")}));
    Select(0);
    QVERIFY(!compare->isEnabled());
}

void TestFilePage::F2RenamesAndUndoNamesItBack()
{
    ShowFolder();
    m_list->setCurrentIndex(Index(0));
    m_list->setFocus();
    QTest::keyClick(m_list, Qt::Key_F2);
    auto *editor = m_list->findChild<QLineEdit *>();
    QVERIFY(editor);
    QTRY_COMPARE(editor->selectedText(), QString("a")); // not the ending
    QTest::keyClicks(editor, "zebra");
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(Listed().last(), QString("zebra.tif"));
    QVERIFY(QFile::exists(m_folder->filePath("zebra.tif")));
    QCOMPARE(Selected(), QStringList("zebra.tif"));
    m_thumbnails->UndoStack()->undo();
    QTRY_COMPARE(Listed().first(), QString("a.tif"));
    m_thumbnails->UndoStack()->redo();
    QTRY_COMPARE(Listed().last(), QString("zebra.tif"));
}

void TestFilePage::ANameThatIsTakenIsRefused()
{
    ShowFolder();
    m_list->model()->setData(Index(0), "c.fits", Qt::EditRole);
    auto *notice = m_thumbnails->findChild<QLabel *>("labelNotice");
    QTRY_COMPARE(notice->text(), QString("\u201ca.tif\u201d was not renamed to \u201cc.fits\u201d: there is a file of "
                                         "that name already. Choose another name."));
    QVERIFY(QFile::exists(m_folder->filePath("a.tif")));
    m_list->model()->setData(Index(0), "x/y.tif", Qt::EditRole);
    QTRY_COMPARE(notice->text(), QString("A name cannot contain a slash. Choose another name."));
    m_thumbnails->findChild<QToolButton *>("toolButtonCloseNotice")->click();
    QVERIFY(notice->isHidden() || !notice->isVisible());
    // There is nothing to take back: the file of that name is another one.
    m_thumbnails->UndoStack()->undo();
    Select(1);
    m_list->model()->setData(Index(1), "last.tif", Qt::EditRole);
    QTRY_VERIFY(QFile::exists(m_folder->filePath("last.tif"))); // one worker, one behind the other
    QVERIFY(QFile::exists(m_folder->filePath("a.tif")));
    QVERIFY(QFile::exists(m_folder->filePath("c.fits")));
    QVERIFY(!notice->isVisible()); // and nothing to complain of
}

void TestFilePage::DeleteMovesToTheTrashAndUndoBringsBack()
{
    ShowFolder();
    Select(1);
    Select(2);
    m_list->setFocus();
    QSignalSpy messages(m_thumbnails.get(), SIGNAL(signalMessage(QString)));
    QTest::keyClick(m_list, Qt::Key_Delete);
    QTRY_COMPARE(Listed(), QStringList({"a.tif", "d.spe", "e.jpg"}));
    const QString trash = m_folder->filePath("data/Trash/");
    QCOMPARE(QDir(trash + "files").entryList(QDir::Files), QStringList({"b.PNG", "c.fits"}));
    QCOMPARE(QDir(trash + "info").entryList(QDir::Files).size(), 2);
    QTRY_COMPARE(messages.count(), 1);
    m_thumbnails->UndoStack()->undo();
    QTRY_COMPARE(Count(), 5);
    QTRY_COMPARE(QDir(trash + "info").entryList(QDir::Files).size(), 0);
    QVERIFY(QDir(trash + "files").entryList(QDir::Files).isEmpty());
}

void TestFilePage::KeysOpenAndSelect()
{
    ShowFolder();
    QSignalSpy opened(m_thumbnails.get(), SIGNAL(signalOpenImage(QString,QObject*)));
    m_list->setFocus();
    QTest::keyClick(m_list, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(Selected().size(), 5);
    QTest::keyClick(m_list, Qt::Key_Return);
    QCOMPARE(opened.count(), 5);
    QTest::keyClick(m_list, Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(QApplication::focusWidget(), m_thumbnails->findChild<QLineEdit *>("lineEditFilter"));
}

void TestFilePage::FollowsAFolderThatComesBack()
{
    const QString folder = m_folder->filePath("below");
    m_thumbnails->slotOpenFileDirectory(folder);
    m_thumbnails->StartFolderChecked();
    WriteFile("below/a.tif");
    QTRY_COMPARE(Count(), 1);
    QVERIFY(QDir(folder).removeRecursively());
    QTRY_COMPARE(Count(), 0);
    QVERIFY(EmptyText().startsWith("The folder \u201c" + folder + "\u201d is not there."));
    QVERIFY(QDir().mkdir(folder));
    WriteFile("below/b.tif");
    QTRY_COMPARE(Listed(), QStringList("b.tif"));
    WriteFile("below/c.tif");
    QTRY_COMPARE(Listed(), QStringList({ "b.tif", "c.tif" }));
}

/// Three pages of more large thumbnails than usually are kept.
void TestFilePage::ALargePageAsksForEachThumbnailOnce()
{
    constexpr int Count = 1000;
    for (int i = 0; i < Count; ++i)
        WriteFile(QString("below/%1.tif").arg(i));
    m_thumbnails->SetThumbnailMaker(&m_maker);
    m_thumbnails->slotOpenFileDirectory(m_folder->filePath("below"));
    m_thumbnails->resize(3200, 1900);
    m_thumbnails->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_thumbnails.get()));
    const int seen = 3200 / m_list->gridSize().width() * (1700 / m_list->gridSize().height());
    QVERIFY(2 * seen > 300); // more than usually are kept
    const auto haveAll = [&] {
        for (int row = 0; row < 2 * seen; ++row) {
            if (Index(row).data(Qt::DecorationRole).isNull())
                return false;
        }
        return true;
    };
    QTRY_VERIFY_WITH_TIMEOUT(haveAll(), 20000);
    QCOMPARE(m_maker.MostAskedForOne(), 1);
}

/// Though the one wanted before had no place yet.
void TestFilePage::TheLastPlaceWantedIsScrolledTo()
{
    for (int i = 0; i < 200; ++i)
        WriteFile(QString("z%1.tif").arg(i));
    m_thumbnails->slotOpenFileDirectory(m_folder->path());
    m_thumbnails->resize(800, 600);
    m_thumbnails->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_thumbnails.get()));
    QTRY_COMPARE(Count(), 205);
    m_list->setBatchSize(10); // laid out at a time
    m_list->doItemsLayout();
    QVERIFY(m_list->visualRect(Index(204)).isEmpty());
    m_list->scrollTo(Index(204));
    m_list->scrollTo(Index(0));
    QTRY_VERIFY(!m_list->visualRect(Index(204)).isEmpty());
    QCOMPARE(m_list->verticalScrollBar()->value(), 0);
    QVERIFY(m_list->verticalScrollBar()->maximum() > 0);
}

GUARDED_TEST_MAIN(TestFilePage)
#include "tst_filepage.moc"
