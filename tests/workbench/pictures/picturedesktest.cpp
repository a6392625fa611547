// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "picturebench.h"
#include "viewcodes.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QThread>
#include <QUndoGroup>
#include <QUndoStack>

/// Opening, closing and renaming files, and choosing which are compared.
class PictureDeskTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void manyFilesGoToTheShelfAndTheLastIsShown()
    {
        PictureBench bench;
        QStringList paths;
        for (int i = 0; i < 200; ++i) {
            paths << bench.Path(QString("picture %1.tif").arg(i, 3, 10, QChar('0')));
            MadePictures::Write(paths.last(), QSize(5, 3));
        }
        QSignalSpy opened(&bench.desk, SIGNAL(signalOpened()));
        bench.desk.Open(paths, &bench.main);
        QVERIFY(bench.WaitForShown("picture 199.tif"));
        QCOMPARE(opened.size(), 1);
        QCOMPARE(bench.shelf.Documents().size(), 200);
        QTRY_VERIFY_WITH_TIMEOUT(!bench.shelf.Documents().at(198)->Thumbnail().isNull(), 20000);
        QCOMPARE(bench.faults.size(), 0);
    }

    void badFilesAndFoldersAreToldAndTheRestIsShown()
    {
        PictureBench bench;
        MadePictures::Write(bench.Path("good.tif"), QSize(5, 3));
        MadePictures::WriteBytes(bench.Path("empty.png"), QByteArray());
        MadePictures::WriteBytes(bench.Path("notes.fits"), "just some notes");
        QVERIFY(QDir(bench.folder.path()).mkdir("folder"));
        bench.desk.Open({ bench.Path("good.tif"), bench.Path("folder"), bench.Path("notes.fits"),
                          bench.Path("empty.png") },
                        &bench.main);
        QVERIFY(bench.WaitForShown("good.tif"));
        QTRY_COMPARE(bench.faults.size(), 3);
        QStringList faults;
        for (const QVariantList &fault : bench.faults)
            faults << fault.first().toString();
        faults.sort();
        QVERIFY2(faults.at(0).startsWith("\u201cempty.png\u201d cannot be read: it is empty"),
                 qPrintable(faults.at(0)));
        QVERIFY2(faults.at(1).startsWith("\u201cfolder\u201d cannot be read: it is a folder"),
                 qPrintable(faults.at(1)));
        QVERIFY2(faults.at(2).startsWith("\u201cnotes.fits\u201d cannot be read: its content"),
                 qPrintable(faults.at(2)));
        QCOMPARE(bench.shelf.Documents().size(), 1);
    }

    void openingAgainReadsTheFileAnew()
    {
        PictureBench bench;
        QVERIFY(bench.Open("one.tif", QSize(5, 3)));
        MadePictures::Write(bench.Path("one.tif"), QSize(7, 2));
        bench.desk.Open({ bench.Path("one.tif") }, &bench.main);
        QTRY_COMPARE(bench.main.GetImageSizeString(), QString("7x2"));
        QCOMPARE(bench.shelf.Documents().size(), 1);
        QCOMPARE(bench.messages.size(), 0);
    }

    void openingAgainKeepsWhatWasDone()
    {
        PictureBench bench;
        QVERIFY(bench.Open("one.tif", QSize(5, 3)));
        bench.main.slotRotateImage(0);
        QTRY_COMPARE(bench.main.GetImageSizeString(), QString("3x5"));
        QSignalSpy opened(&bench.desk, SIGNAL(signalOpened()));
        const int shown = bench.shown.size();
        bench.desk.Open({ bench.Path("one.tif") }, &bench.main);
        QCOMPARE(opened.size(), 1);
        QTRY_COMPARE(bench.shown.size(), shown + 1);
        QCOMPARE(bench.main.GetImageSizeString(), QString("3x5"));
        QVERIFY(bench.main.Document()->UndoStack()->canUndo());
    }

    void aFileThatWasReplacedIsAsItStandsOnTheDisk()
    {
        PictureBench bench;
        QVERIFY(bench.Open("one.tif", QSize(5, 3)));
        bench.main.slotRotateImage(0);
        QTRY_COMPARE(bench.main.GetImageSizeString(), QString("3x5"));
        MadePictures::Write(bench.Path("one.tif"), QSize(7, 2));
        bench.desk.slotFileReplaced(bench.Path("one.tif"));
        QTRY_COMPARE(bench.main.GetImageSizeString(), QString("7x2"));
        QVERIFY(!bench.main.Document()->UndoStack()->canUndo());
        QVERIFY(!bench.main.Document()->IsChanged());
    }

    void aNewResolutionLeavesFrameAndLevels()
    {
        PictureBench bench;
        QVERIFY(bench.Open("stack.tif", QSize(5, 3), 3));
        bench.main.SetImage(2);
        QTRY_COMPARE(bench.main.Document()->Frame(), 2);
        const SampleRange range{ 100, 900 };
        bench.main.Document()->SetRange(2, range);
        const int shown = bench.shown.size();
        bench.desk.slotFileChanged(bench.Path("stack.tif"));
        QTRY_VERIFY(bench.shown.size() > shown);
        QCOMPARE(bench.main.Document()->Frame(), 2);
        QCOMPARE(bench.main.Shown().request.frame, 2);
        QCOMPARE(bench.main.Document()->Range(2).left, range.left);
        QCOMPARE(bench.main.Document()->Range(2).right, range.right);
    }

    void closingShowsTheNeighbour()
    {
        PictureBench bench;
        QSignalSpy lastClosed(&bench.desk, SIGNAL(signalLastClosed()));
        QVERIFY(bench.Open("a.tif", QSize(5, 3)));
        QVERIFY(bench.Open("b.tif", QSize(5, 3)));
        QVERIFY(bench.Open("c.tif", QSize(5, 3)));
        QSignalSpy opened(&bench.desk, SIGNAL(signalOpened()));
        bench.desk.Show(bench.shelf.Find(bench.Path("b.tif")), &bench.main);
        QVERIFY(bench.WaitForShown("b.tif"));
        QCOMPARE(opened.size(), 1);
        bench.desk.Close(bench.main.Document());
        QVERIFY(bench.WaitForShown("c.tif"));
        bench.desk.Close(bench.main.Document());
        QVERIFY(bench.WaitForShown("a.tif"));
        QCOMPARE(opened.size(), 1); // nobody asked for those
        bench.desk.Close(bench.main.Document());
        QVERIFY(bench.main.IsNonImage());
        QCOMPARE(lastClosed.size(), 1);
    }

    void closingAllClosesAll()
    {
        PictureBench bench;
        QVERIFY(bench.Open("a.tif", QSize(5, 3)));
        QVERIFY(bench.Open("b.tif", QSize(5, 3)));
        QSignalSpy lastClosed(&bench.desk, SIGNAL(signalLastClosed()));
        bench.desk.CloseAll();
        QVERIFY(bench.shelf.IsEmpty());
        QVERIFY(bench.main.IsNonImage());
        QCOMPARE(lastClosed.size(), 1);
    }

    void whatIsInAFileIsNotAskedFor()
    {
        PictureBench bench;
        int questions = 0;
        int ended = 0;
        connect(&bench.desk, &PictureDesk::signalCloseQuestion, this, [&] { ++questions; });
        connect(&bench.desk, &PictureDesk::signalSaveEnded, this, [&] { ++ended; });
        QVERIFY(bench.Open("stack.tif", QSize(5, 3), 3));
        bench.main.slotRotateImage(0);
        QTRY_COMPARE(bench.main.GetImageSizeString(), QString("3x5"));
        bench.desk.RequestClose(bench.main.Document());
        QTRY_COMPARE(questions, 1);
        QCOMPARE(bench.shelf.Documents().size(), 1);

        bench.main.SaveAs(bench.Path("frame.tif"), false); // one of three
        QTRY_COMPARE(ended, 1);
        QVERIFY(bench.main.Document()->IsChanged());
        bench.main.SaveAs(bench.Path("all.tif"), true);
        QTRY_COMPARE(ended, 2);
        QVERIFY(!bench.main.Document()->IsChanged());
        bench.main.slotRotateImage(0);
        QVERIFY(bench.main.Document()->IsChanged());
        bench.main.Document()->UndoStack()->undo();
        bench.desk.RequestClose(bench.main.Document());
        QVERIFY(bench.shelf.IsEmpty());
        QCOMPARE(questions, 1);
    }

    void whatIsAsInItsOwnFileIsNotChanged()
    {
        PictureBench bench;
        QVERIFY(bench.Open("one.tif", QSize(5, 3)));
        const PictureDocument *document = bench.main.Document();
        for (int quarter = 1; quarter <= 4; ++quarter) {
            bench.main.slotRotateImage(0);
            QCOMPARE(document->IsChanged(), quarter < 4);
        }
        bench.main.slotRotateImage(0);
        QTRY_COMPARE(bench.main.GetImageSizeString(), QString("3x5"));
        bench.main.SaveAs(bench.Path("turned.tif"), true);
        QTRY_VERIFY(!document->IsChanged());
        document->UndoStack()->undo(); // not what is in the new file, but what is in its own
        QVERIFY(!document->IsChanged());
    }

    void whatIsDoneWhileAFileIsSavedOntoItselfIsNotLostInSilence()
    {
        PictureBench bench;
        QVERIFY(bench.Open("stack.tif", QSize(5, 3), 3));
        bench.main.slotRotateImage(0);
        QTRY_COMPARE(bench.main.GetImageSizeString(), QString("3x5"));
        QVector<bool> whole;
        connect(&bench.desk, &PictureDesk::signalSaveEnded, this,
                [&whole](const PictureDocument *, bool isWhole) { whole << isWhole; });
        bench.main.SaveAs(bench.Path("stack.tif"), true);
        bench.main.slotRotateImage(0);
        QTRY_COMPARE(whole, QVector<bool>({ false }));
        QCOMPARE(bench.FirstFault(),
                 QString("\u201cstack.tif\u201d was changed while it was saved onto its own file: what was done meanwhile is "
                         "lost. Do it again."));
        QTRY_COMPARE(bench.main.GetImageSizeString(), QString("3x5")); // as it was saved
        bench.main.slotRotateImage(0);
        QTRY_COMPARE(bench.main.GetImageSizeString(), QString("5x3"));
        bench.main.SaveAs(bench.Path("stack.tif"), true);
        QTRY_COMPARE(whole, QVector<bool>({ false, true }));
        QCOMPARE(bench.faults.size(), 1);
    }

    void aFileThatIsRenamedWhileItIsSavedIsSaved()
    {
        PictureBench bench;
        QVERIFY(bench.Open("one.tif", QSize(5, 3)));
        bench.main.slotRotateImage(0);
        QTRY_COMPARE(bench.main.GetImageSizeString(), QString("3x5"));
        bench.main.SaveAs(bench.Path("turned.tif"), true);
        const QDeadlineTimer deadline(20000);
        while (!QFile::exists(bench.Path("turned.tif")) && !deadline.hasExpired())
            QThread::msleep(1); // no event: the answer is taken after the file has its new name
        bench.desk.Rename(bench.main.Document(), "new name.tif");
        QTRY_COMPARE(bench.LastMessage(), QString("\u201cturned.tif\u201d was saved."));
        QVERIFY(!bench.main.Document()->IsChanged());
    }

    void renamingRenamesTheFile()
    {
        PictureBench bench;
        QVERIFY(bench.Open("stack.tif", QSize(5, 3), 3));
        QSignalSpy names(&bench.main, SIGNAL(signalUpdateFileName(QString)));
        bench.desk.Rename(bench.main.Document(), "new name.tif");
        QVERIFY(!QFile::exists(bench.Path("stack.tif")));
        QVERIFY(QFile::exists(bench.Path("new name.tif")));
        QCOMPARE(names.last().first().toString(), QString("new name.tif"));
        QCOMPARE(bench.main.GetFileInfo(), QString("new name.tif  5x3"));
        bench.main.SetImage(2);
        QTRY_COMPARE(int(bench.main.Shown().samples.Samples<quint16>(0)[0]), 2000);
        QCOMPARE(bench.messages.size(), 0);
    }

    void aNameThatWillNotDoIsRefused_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("reason");
        QTest::newRow("taken") << "other.tif"
                               << "there is a file of that name already";
        QTest::newRow("empty") << ""
                               << "that is no file name";
        QTest::newRow("folder") << "a/b.tif"
                                << "that is no file name";
        QTest::newRow("parent") << ".."
                                << "that is no file name";
    }

    void aNameThatWillNotDoIsRefused()
    {
        QFETCH(QString, name);
        QFETCH(QString, reason);
        PictureBench bench;
        MadePictures::Write(bench.Path("other.tif"), QSize(2, 2));
        QVERIFY(bench.Open("one.tif", QSize(5, 3)));
        QSignalSpy changed(bench.main.Document(), SIGNAL(signalChanged()));
        bench.desk.Rename(bench.main.Document(), name);
        QCOMPARE(bench.FirstFault(),
                 QString("\u201cone.tif\u201d was not renamed to \u201c%1\u201d: %2.").arg(name, reason));
        QCOMPARE(bench.main.GetFileName(), QString("one.tif"));
        QVERIFY(QFile::exists(bench.Path("one.tif")));
        QVERIFY(!changed.isEmpty()); // the list takes the old name back
    }

    void comparingWithTheLivePictureNeedsOne()
    {
        PictureBench bench;
        QVERIFY(!bench.desk.ChooseForLiveCompare());
        QCOMPARE(bench.LastMessage(), QString("Open a picture first: the live picture is compared with it."));
        MadePictures::Write(bench.Path("a.tif"), QSize(5, 3));
        bench.shelf.Add(bench.Path("a.tif"));
        QVERIFY(bench.desk.ChooseForLiveCompare());
        QVERIFY(bench.WaitForShown("a.tif"));
    }

    void comparingTwoTakesTheOneBefore()
    {
        PictureBench bench;
        QVERIFY(bench.Open("a.tif", QSize(5, 3)));
        QVERIFY(!bench.desk.ChooseForCompare());
        QCOMPARE(bench.LastMessage(), QString("Open a second picture first: two are compared."));
        QVERIFY(bench.Open("b.tif", QSize(5, 3)));
        QVERIFY(bench.Open("c.tif", QSize(5, 3)));
        QVERIFY(bench.desk.ChooseForCompare());
        QTRY_COMPARE(bench.compare.GetFileName(), QString("b.tif"));
        QCOMPARE(bench.main.GetFileName(), QString("c.tif"));
    }

    void comparingTwoTakesThoseChecked()
    {
        PictureBench bench;
        QVERIFY(bench.Open("a.tif", QSize(5, 3)));
        QVERIFY(bench.Open("b.tif", QSize(5, 3)));
        QVERIFY(bench.Open("c.tif", QSize(5, 3)));
        bench.shelf.SetSelected({ bench.shelf.Documents().at(1), bench.shelf.Documents().at(2) });
        bench.shelf.Documents().at(0)->SetChecked(true);
        bench.shelf.Documents().at(1)->SetChecked(true);
        QVERIFY(bench.desk.ChooseForCompare());
        QVERIFY(bench.WaitForShown("a.tif"));
        QTRY_COMPARE(bench.compare.GetFileName(), QString("b.tif"));
    }

    /// The list's menu is opened on one picture, which is selected then.
    void comparingTakesTheOneThatWasClicked()
    {
        PictureBench bench;
        for (const char *name : { "a.tif", "b.tif", "c.tif" })
            QVERIFY(bench.Open(name, QSize(5, 3)));
        bench.shelf.SetSelected({ bench.shelf.Documents().at(0) });
        QVERIFY(bench.desk.ChooseForCompare());
        QTRY_COMPARE(bench.compare.GetFileName(), QString("a.tif")); // not b, which was shown before
        QCOMPARE(bench.main.GetFileName(), QString("c.tif"));
    }

    void comparingTakesTheOneBeforeWhenThatShownWasClicked()
    {
        PictureBench bench;
        for (const char *name : { "a.tif", "b.tif", "c.tif" })
            QVERIFY(bench.Open(name, QSize(5, 3)));
        bench.shelf.SetSelected({ bench.shelf.Documents().at(2) });
        QVERIFY(bench.desk.ChooseForCompare());
        QTRY_COMPARE(bench.compare.GetFileName(), QString("b.tif"));
    }

    void liveComparisonTakesTheOneThatWasClicked()
    {
        PictureBench bench;
        for (const char *name : { "a.tif", "b.tif", "c.tif" })
            QVERIFY(bench.Open(name, QSize(5, 3)));
        bench.shelf.SetSelected({ bench.shelf.Documents().at(0) });
        QVERIFY(bench.desk.ChooseForLiveCompare());
        QVERIFY(bench.WaitForShown("a.tif"));
        bench.shelf.SetSelected({});
        QVERIFY(bench.desk.ChooseForLiveCompare());
        QCOMPARE(bench.main.WantedDocument()->Name(), QString("a.tif"));
    }

    void closingTheSecondPictureEndsTheComparison()
    {
        PictureBench bench;
        QVERIFY(bench.Open("a.tif", QSize(5, 3)));
        QVERIFY(bench.Open("b.tif", QSize(5, 3)));
        QVERIFY(bench.desk.ChooseForCompare());
        QTRY_VERIFY(!bench.compare.IsNonImage());
        QSignalSpy lost(&bench.desk, SIGNAL(signalCompareLost()));
        bench.desk.Close(bench.compare.Document());
        QCOMPARE(lost.size(), 1);
    }

    void aSecondPictureThatCannotBeReadEndsTheComparison()
    {
        PictureBench bench;
        QVERIFY(bench.Open("a.tif", QSize(5, 3)));
        QVERIFY(bench.Open("b.tif", QSize(5, 3)));
        QVERIFY(QFile::remove(bench.Path("a.tif")));
        bench.loader.Close(bench.shelf.Documents().first()->File().id);
        QSignalSpy lost(&bench.desk, SIGNAL(signalCompareLost()));
        QVERIFY(bench.desk.ChooseForCompare());
        QVERIFY(lost.wait());
        QVERIFY(bench.FirstFault().startsWith("\u201ca.tif\u201d cannot be read:"));
    }

    void undoBelongsToThePictureWorkedOn()
    {
        PictureBench bench;
        bench.services.global.activeImageManager = &bench.main;
        bench.services.uiConfig.currentView = ImageView;
        QVERIFY(bench.Open("a.tif", QSize(5, 3)));
        bench.main.slotRotateImage(0);
        QVERIFY(bench.desk.UndoGroup()->canUndo());
        QVERIFY(bench.Open("b.tif", QSize(5, 3)));
        QVERIFY(!bench.desk.UndoGroup()->canUndo());
        QVERIFY(bench.desk.ChooseForCompare());
        QTRY_VERIFY(!bench.compare.IsNonImage());
        bench.services.global.activeImageManager = &bench.compare;
        bench.desk.slotUpdateUndo();
        QVERIFY(bench.desk.UndoGroup()->canUndo());
        bench.services.uiConfig.currentView = CameraView; // it is not seen
        bench.desk.slotUpdateUndo();
        QVERIFY(!bench.desk.UndoGroup()->canUndo());
    }
};

GUARDED_TEST_MAIN(PictureDeskTest)
#include "picturedesktest.moc"
