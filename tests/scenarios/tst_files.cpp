// SPDX-License-Identifier: GPL-3.0-or-later
#include "createpicture.h"
#include "filejobs.h"
#include "filelistmodel.h"
#include "filesystemview.h"
#include "filethumbnail.h"
#include "guiwatchdog.h"
#include "openedpicture.h"
#include "openpicture.h"
#include "picturedesk.h"
#include "picturedocument.h"
#include "scenariotest.h"
#include "stylesheet.h"
#include "viewcodes.h"
#include "workspaceconfig.h"

#include <QAction>
#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStackedWidget>

#include <fcntl.h>
#include <memory>
#include <unistd.h>

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr int LongestBlockMs = 150; // its checks make the same work two to three times as long
#else
constexpr int LongestBlockMs = 50;
#endif
constexpr int WaitMs = 20000;

/// A ramp from left to right, so that a thumbnail has black and white in it.
void WritePicture(const QString &path, const QSize &size, SampleType type = SampleType::U16, int offset = 0)
{
    Picture picture(size.width(), size.height(), 1, type);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            if (type == SampleType::U16)
                picture.Samples<quint16>(y)[x] = quint16(100 + offset + x);
            else
                picture.Samples<quint8>(y)[x] = quint8(offset + x);
        }
    }
    QString error;
    if (!SavePicture(path, picture, SaveOptions(), error))
        qFatal("%s", qPrintable(error));
}

void WriteEmptyFiles(const QString &folder, int count)
{
    for (int i = 0; i < count; ++i) {
        const int fd = ::open(QFile::encodeName(folder + QString("/frame%1.tif").arg(i)).constData(),
                              O_CREAT | O_WRONLY | O_CLOEXEC, 0644);
        if (fd < 0)
            qFatal("No more files can be made.");
        ::close(fd);
    }
}

/// Copies of one, long ago, so that what is made of them goes into the cache.
void WritePictures(const QString &folder, int count)
{
    constexpr int AgeSeconds = 3600;
    const QString first = folder + "/frame0.tif";
    WritePicture(first, QSize(256, 256));
    for (int i = 0; i < count; ++i) {
        QFile file(folder + QString("/frame%1.tif").arg(i));
        if (i > 0)
            QFile::copy(first, file.fileName());
        if (!file.open(QIODevice::ReadWrite)
            || !file.setFileTime(QDateTime::currentDateTime().addSecs(-AgeSeconds), QFileDevice::FileModificationTime))
            qFatal("%s", qPrintable(file.errorString()));
    }
}

} // namespace

/// A person finds, looks through and works with picture files.
class FilesScenario : public ScenarioTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkdir("pictures"));
        qputenv("XDG_CACHE_HOME", QFile::encodeName(m_folder->filePath("cache")));
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder->filePath("data")));
        m_workbench = std::make_unique<RunningWorkbench>(m_folder->path());
        QVERIFY(m_workbench->WaitForPicture());
        m_page = m_workbench->window.findChild<FileThumbnail *>();
        m_list = m_page->findChild<QListView *>("listViewFiles");
    }

    void cleanup() override
    {
        m_workbench->services.Config()->SetCameraView();
        ScenarioTest::cleanup();
    }

    void picturesAreSeenAndOpened()
    {
        WritePicture(Path("a.tif"), QSize(200, 100));
        WritePicture(Path("b.png"), QSize(100, 200));
        WritePicture(Path("c.fits"), QSize(50, 50));
        ShowFolder();
        QTRY_COMPARE(Count(), 3);
        for (int row = 0; row < 3; ++row)
            QTRY_VERIFY(!Thumbnail(row).isNull());
        QCOMPARE(Thumbnail(0).size(), QSize(128, 64));
        QCOMPARE(Thumbnail(1).size(), QSize(64, 128));
        QCOMPARE(Thumbnail(2).size(), QSize(50, 50)); // not enlarged
        // 16 bits are shown from their darkest to their brightest sample.
        QVERIFY(qGray(Thumbnail(0).toImage().pixel(0, 30)) < 10);
        QVERIFY(qGray(Thumbnail(0).toImage().pixel(127, 30)) > 245);

        QTest::mouseClick(m_list->viewport(), Qt::LeftButton, Qt::NoModifier, Place(1));
        QTest::keyClick(m_list, Qt::Key_Return);
        QTRY_COMPARE(CurrentView(), int(ImageView));
        QCOMPARE(Desk()->MainPicture()->Document()->Path(), Path("b.png"));
        m_workbench->services.Config()->SetFileView();
        QTRY_VERIFY(m_list->isVisible());
        QCOMPARE(Count(), 3);
    }

    void twoAreCompared()
    {
        WritePicture(Path("a.tif"), QSize(200, 100));
        WritePicture(Path("b.tif"), QSize(200, 100), SampleType::U16, 500);
        ShowFolder();
        QTRY_COMPARE(Count(), 2);
        QTest::keyClick(m_list, Qt::Key_A, Qt::ControlModifier);
        Button("pushButtonCompare")->click();
        QTRY_COMPARE(CurrentView(), int(ImageCompareView));
        QTRY_VERIFY(Desk()->MainPicture()->Document() && Desk()->ComparePicture()->Document());
        QCOMPARE(Desk()->MainPicture()->Document()->Path(), Path("a.tif"));
        QCOMPARE(Desk()->ComparePicture()->Document()->Path(), Path("b.tif"));
    }

    void severalAreMerged()
    {
        for (int i = 0; i < 3; ++i)
            WritePicture(Path(QString("%1.tif").arg(i)), QSize(20, 10), SampleType::U16, 1000 * i);
        ShowFolder();
        QTRY_COMPARE(Count(), 3);
        QVERIFY(Button("pushButtonMerge")->isVisible());
        QTest::keyClick(m_list, Qt::Key_A, Qt::ControlModifier);
        Button("pushButtonMerge")->click();
        auto *dialog = m_workbench->window.findChild<QFileDialog *>("MergeDialog");
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        dialog->findChild<QLineEdit *>("fileNameEdit")->setText(Path("all.tif"));
        QMetaObject::invokeMethod(dialog, "accept");
        QTRY_COMPARE(CurrentView(), int(ImageView));
        QTRY_COMPARE(Desk()->MainPicture()->Document()->Path(), Path("all.tif"));
        QString error;
        const std::unique_ptr<PictureFile> merged = OpenPicture(Path("all.tif"), error);
        QVERIFY2(merged, qPrintable(error));
        QCOMPARE(merged->Info().frames, 3);
        Picture frame;
        for (int i = 0; i < 3; ++i) {
            QVERIFY(merged->ReadFrame(i, frame, error));
            QCOMPARE(int(frame.Samples<quint16>(9)[19]), 119 + 1000 * i);
        }

        // Merged anew, it is not turned as the file before was.
        Desk()->MainPicture()->slotRotateImage(0);
        QTRY_COMPARE(Desk()->MainPicture()->GetImageSizeString(), QString("10x20"));
        m_workbench->services.Jobs()->Merge({Path("0.tif"), Path("1.tif")}, Path("all.tif"));
        QTRY_COMPARE(Desk()->MainPicture()->FrameCount(), 2);
        QCOMPARE(Desk()->MainPicture()->GetImageSizeString(), QString("20x10"));
    }

    void aFileIsRenamedTrashedAndBroughtBack()
    {
        WritePicture(Path("a.tif"), QSize(20, 10));
        ShowFolder();
        QTRY_COMPARE(Count(), 1);
        QTest::mouseClick(m_list->viewport(), Qt::LeftButton, Qt::NoModifier, Place(0));
        QTest::keyClick(m_list, Qt::Key_F2);
        auto *editor = m_list->findChild<QLineEdit *>();
        QTRY_COMPARE(editor->selectedText(), QString("a"));
        QTest::keyClicks(editor, "cells");
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(Name(0), QString("cells.tif"));
        QTest::keyClick(m_list, Qt::Key_Delete);
        QTRY_COMPARE(Count(), 0);
        QVERIFY(!QFile::exists(Path("cells.tif")));
        QTest::keyClick(&m_workbench->window, Qt::Key_Z, Qt::ControlModifier);
        QTRY_COMPARE(Count(), 1);
        QTest::keyClick(&m_workbench->window, Qt::Key_Z, Qt::ControlModifier);
        QTRY_COMPARE(Name(0), QString("a.tif"));
    }

    void theDpiAndTheSamplesOfAFile()
    {
        WritePicture(Path("a.tif"), QSize(4, 2));
        ShowFolder();
        QTRY_COMPARE(Count(), 1);
        QTest::mouseClick(m_list->viewport(), Qt::LeftButton, Qt::NoModifier, Place(0));
        Bottom("pushButtonConvertCSV")->click();
        QTRY_VERIFY(QFile::exists(Path("a.csv")));
        QFile csv(Path("a.csv"));
        QVERIFY(csv.open(QIODevice::ReadOnly));
        QVERIFY(csv.readAll().endsWith("\n100,101,102,103\n100,101,102,103\n"));

        Bottom("pushButtonModifyDPI")->click();
        auto *dialog = m_workbench->window.findChild<QInputDialog *>("DpiDialog");
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        dialog->setDoubleValue(1200);
        dialog->accept();
        QString error;
        QTRY_COMPARE(OpenPicture(Path("a.tif"), error)->Info().dpiX, 1200.0);
    }

    /// A name that looks like markup is no markup.
    void aNameInAngleBracketsIsAskedFor()
    {
        WritePicture(Path("<b>a<b>.tif"), QSize(4, 2));
        ShowFolder();
        QTRY_COMPARE(Count(), 1);
        QTest::mouseClick(m_list->viewport(), Qt::LeftButton, Qt::NoModifier, Place(0));
        Bottom("pushButtonModifyDPI")->click();
        auto *dialog = m_workbench->window.findChild<QInputDialog *>("DpiDialog");
        QVERIFY(dialog->labelText().contains("<b>a<b>.tif"));
        QCOMPARE(dialog->findChild<QLabel *>()->textFormat(), Qt::PlainText);
        dialog->reject();
    }

    void badFoldersAreSaidOnThePage()
    {
        auto *path = m_workbench->window.findChild<FileSystemView *>()->findChild<QLineEdit *>("lineEditPath");
        ShowFolder();
        path->setText(Path("nowhere"));
        QTest::keyClick(path, Qt::Key_Return);
        auto *text = m_page->findChild<QLabel *>("labelEmpty");
        QTRY_VERIFY(text->isVisible() && text->text().contains("is not there"));
        QVERIFY(QDir(m_folder->path()).mkdir("vanishing"));
        path->setText(m_folder->filePath("vanishing"));
        QTest::keyClick(path, Qt::Key_Return);
        QTRY_COMPARE(text->text(), QString("There is no picture in this folder."));
        QVERIFY(QDir(m_folder->filePath("vanishing")).removeRecursively());
        QTRY_VERIFY(text->text().contains("is not there"));
    }

    /// Listing, sorting, filtering, selecting and scrolling never hold up the GUI.
    void aHundredThousandFiles()
    {
        WriteEmptyFiles(m_folder->filePath("pictures"), 100000);
        m_workbench->services.Config()->SetFileView();
        QTRY_VERIFY(m_page->isVisible());
        GuiWatchdog watchdog;
        QElapsedTimer time;
        time.start();
        m_page->slotOpenFileDirectory(m_folder->filePath("pictures"));
        QTRY_COMPARE_WITH_TIMEOUT(Count(), 100000, WaitMs);
        qInfo("100,000 files listed after %lld ms", time.elapsed());
        QVERIFY2(watchdog.LongestMs() <= LongestBlockMs, watchdog.Text("listing"));

        watchdog.Begin();
        QScrollBar *bar = m_list->verticalScrollBar();
        for (int step = 0; step <= 20; ++step) {
            bar->setValue(bar->maximum() / 20 * step);
            QCoreApplication::processEvents();
        }
        QVERIFY2(watchdog.LongestMs() <= LongestBlockMs, watchdog.Text("scrolling"));

        watchdog.Begin();
        m_page->findChild<QLineEdit *>("lineEditFilter")->setText("99");
        QTRY_VERIFY_WITH_TIMEOUT(Count() < 100000 && Count() > 0, WaitMs);
        m_page->findChild<QLineEdit *>("lineEditFilter")->clear();
        QTRY_COMPARE_WITH_TIMEOUT(Count(), 100000, WaitMs);
        QVERIFY2(watchdog.LongestMs() <= LongestBlockMs, watchdog.Text("filtering"));

        watchdog.Begin();
        m_list->setFocus();
        QTest::keyClick(m_list, Qt::Key_A, Qt::ControlModifier);
        QCoreApplication::processEvents();
        QVERIFY2(watchdog.LongestMs() <= LongestBlockMs, watchdog.Text("selecting"));

        watchdog.Begin();
        QVERIFY(QFile::remove(Path("frame5.tif")));
        QTRY_COMPARE_WITH_TIMEOUT(Count(), 99999, WaitMs);
        QVERIFY2(watchdog.LongestMs() <= LongestBlockMs, watchdog.Text("following"));
    }

    /// Through all their thumbnails, which the cache has.
    void twoThousandPicturesAreScrolledThrough()
    {
        constexpr int Pictures = 2000;
        WritePictures(m_folder->filePath("pictures"), Pictures);
        ShowFolder();
        QTRY_COMPARE_WITH_TIMEOUT(Count(), Pictures, WaitMs);
        QScrollBar *bar = m_list->verticalScrollBar();
        const int step = m_list->viewport()->height() / 2;
        for (int value = 0; value < bar->maximum() + step; value += step) {
            bar->setValue(value);
            QTRY_VERIFY_WITH_TIMEOUT(AllSeenHaveThumbnails(), WaitMs); // made, and from then on in the cache
        }
        GuiWatchdog watchdog;
        for (int value = 0; value < bar->maximum() + step; value += step) {
            bar->setValue(value);
            QTRY_VERIFY_WITH_TIMEOUT(AllSeenHaveThumbnails(), WaitMs);
        }
        for (int value = bar->maximum(); value >= 0; value -= bar->singleStep()) {
            bar->setValue(value);
            QCoreApplication::processEvents();
        }
        QTRY_VERIFY_WITH_TIMEOUT(AllSeenHaveThumbnails(), WaitMs);
        QVERIFY2(watchdog.LongestMs() <= LongestBlockMs, watchdog.Text("scrolling through thumbnails"));
    }

    /// Far down in a long list nothing that comes or goes throws anyone back.
    void thePlaceInALongListStays()
    {
        WriteEmptyFiles(m_folder->filePath("pictures"), 30000);
        ShowFolder();
        QTRY_COMPARE_WITH_TIMEOUT(Count(), 30000, WaitMs);
        QTRY_VERIFY_WITH_TIMEOUT(IsLaidOut(), WaitMs);
        QScrollBar *bar = m_list->verticalScrollBar();
        const int place = bar->maximum() / 5 * 4;
        bar->setValue(place);
        const int first = FirstSeenRow();
        QVERIFY(first > 23000);
        QTRY_VERIFY(!Index(first).data(FileListModel::FaultRole).toString().isEmpty());
        QTRY_VERIFY(IsLaidOut());
        QCOMPARE(bar->value(), place);
        QCOMPARE(FirstSeenRow(), first);

        QVERIFY(QFile::remove(Path("frame29999.tif")));
        QTRY_COMPARE(Count(), 29999);
        QTRY_VERIFY(IsLaidOut());
        QCOMPARE(bar->value(), place);
        QCOMPARE(FirstSeenRow(), first);

        m_list->setFocus();
        QTest::keyClick(m_list, Qt::Key_End);
        QTRY_COMPARE(bar->value(), bar->maximum());
        const QString last = Name(Count() - 1);
        QVERIFY(QFile::rename(Path(last), Path("frame29999b.tif")));
        QTRY_COMPARE(Name(Count() - 1), QString("frame29999b.tif"));
        QTRY_VERIFY(IsLaidOut());
        QTRY_COMPARE(bar->value(), bar->maximum());

        // Another folder begins at its top.
        QVERIFY(QDir(m_folder->path()).mkdir("others"));
        WriteEmptyFiles(m_folder->filePath("others"), 30000);
        m_page->slotOpenFileDirectory(m_folder->filePath("others"));
        QTRY_COMPARE_WITH_TIMEOUT(Count(), 30000, WaitMs);
        QTRY_VERIFY(IsLaidOut());
        QCOMPARE(bar->value(), 0);
    }

private:
    QString Path(const QString &name) const { return m_folder->filePath("pictures/" + name); }
    void ShowFolder()
    {
        m_workbench->services.Config()->SetBottomUIChecked(true);
        m_workbench->services.Config()->UpdateCameraControlUI();
        m_workbench->services.Config()->SetFileView();
        m_page->slotOpenFileDirectory(m_folder->filePath("pictures"));
        QTRY_VERIFY(m_page->isVisible());
    }
    bool AllSeenHaveThumbnails() const
    {
        int row = FirstSeenRow();
        if (row < 0)
            return false;
        for (; row < Count() && Place(row).y() < m_list->viewport()->height(); ++row) {
            if (Thumbnail(row).isNull())
                return false;
        }
        return true;
    }
    bool IsLaidOut() const { return m_list->visualRect(Index(Count() - 1)).isValid(); }
    int FirstSeenRow() const { return m_list->indexAt(m_list->viewport()->rect().topLeft() + QPoint(20, 20)).row(); }
    int Count() const { return m_list->model()->rowCount(); }
    QModelIndex Index(int row) const { return m_list->model()->index(row, 0); }
    QString Name(int row) const { return Index(row).data().toString(); }
    QPixmap Thumbnail(int row) const { return Index(row).data(Qt::DecorationRole).value<QPixmap>(); }
    QPoint Place(int row) const { return m_list->visualRect(Index(row)).center(); }
    QPushButton *Button(const char *name) const { return m_page->findChild<QPushButton *>(name); }
    QPushButton *Bottom(const char *name) const { return m_workbench->window.findChild<QPushButton *>(name); }
    PictureDesk *Desk() const { return m_workbench->services.Desk(); }
    int CurrentView() const { return m_workbench->services.Config()->GetCurrentView(); }

    FileThumbnail *m_page = nullptr;
    QListView *m_list = nullptr;
};

GUARDED_TEST_MAIN(FilesScenario)
#include "tst_files.moc"
