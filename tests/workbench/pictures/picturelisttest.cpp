// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturelist.h"
#include "comparesaver.h"
#include "guardedtest.h"
#include "picturebench.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>

namespace {

/// A bench whose list of opened pictures is the real one, in a window.
struct ListBench : PictureBench
{
    ListBench()
    {
        delete services.thumbnails; // there is one list
        list = std::make_unique<PictureList>(&shelf, &main);
        widget = list->findChild<QListWidget *>("listPictures");
        list->resize(600, 140);
        list->show();
    }

    QAction *Action(const QString &text) const
    {
        for (QAction *action : list->findChild<QMenu *>()->actions()) {
            if (action->text().remove('&') == text)
                return action;
        }
        return nullptr;
    }
    void Click(int row) const
    {
        QTest::mouseClick(widget->viewport(), Qt::LeftButton, Qt::NoModifier,
                          widget->visualItemRect(widget->item(row)).center());
    }

    std::unique_ptr<PictureList> list;
    QListWidget *widget;
};

} // namespace

/// The list of opened pictures under the mouse and the keyboard.
class PictureListTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void aNameWithALineBreakIsOneLine()
    {
        ListBench bench;
        const QString shown = QString::fromUtf8("two\u23celines.tif");
        MadePictures::Write(bench.Path("two\nlines.tif"), QSize(6, 4));
        bench.desk.Open({ bench.Path("two\nlines.tif") }, &bench.main);
        QTRY_COMPARE(bench.main.GetFileInfo(), shown + "  6x4");
        QCOMPARE(bench.widget->item(0)->text(), shown);
        QSignalSpy renamed(bench.list.get(), SIGNAL(signalRename(QObject *, QString)));
        bench.widget->item(0)->setCheckState(Qt::Checked); // is no new name
        QCOMPARE(renamed.size(), 0);
    }

    void anEmptyListSaysWhatToDo()
    {
        ListBench bench;
        auto *label = bench.list->findChild<QLabel *>("labelNoPicture");
        QVERIFY(label->isVisible());
        QCOMPARE(label->text(), QString("No picture is open. Drop files here, or choose File > Open."));
        QVERIFY(bench.Open("a.tif", QSize(6, 4)));
        QVERIFY(!label->isVisible());
        QVERIFY(bench.widget->isVisible());
        bench.desk.CloseAll();
        QVERIFY(label->isVisible());
    }

    void picturesAreListedWithNameAndFacts()
    {
        ListBench bench;
        QVERIFY(bench.Open("a.tif", QSize(6, 4), 3));
        QVERIFY(bench.Open("b.fits", QSize(6, 4)));
        QCOMPARE(bench.widget->count(), 2);
        QCOMPARE(bench.widget->item(0)->text(), QString("a.tif"));
        QTRY_COMPARE(bench.widget->item(0)->toolTip().split('\n').mid(2),
                     QStringList({ "6x4", "16-bit unsigned integer", "3 frames" }));
        QCOMPARE(bench.widget->item(0)->toolTip().split('\n').first(), bench.Path("a.tif"));
        QCOMPARE(bench.widget->selectedItems(), QList<QListWidgetItem *>({ bench.widget->item(1) }));
    }

    void theThumbnailFollowsThePicture()
    {
        ListBench bench;
        QObject::connect(&bench.main, SIGNAL(sglAddThumbnail(QImage)), bench.list.get(),
                         SLOT(slotAddThumbnail(QImage)));
        QVERIFY(bench.Open("a.tif", QSize(6, 3)));
        QTRY_COMPARE(bench.main.Document()->Thumbnail().size(), QSize(128, 64));
        bench.main.slotRotateImage(0);
        QTRY_COMPARE(bench.main.Document()->Thumbnail().size(), QSize(48, 96));
    }

    void aClickAndEnterOpen()
    {
        ListBench bench;
        QVERIFY(bench.Open("a.tif", QSize(6, 4)));
        QVERIFY(bench.Open("b.tif", QSize(6, 4)));
        QSignalSpy opened(bench.list.get(), SIGNAL(signalOpenImage(QString, QObject *)));
        bench.Click(0);
        QCOMPARE(opened.size(), 1);
        QCOMPARE(opened.first().at(0).toString(), bench.Path("a.tif"));
        QCOMPARE(opened.first().at(1).value<QObject *>(), bench.shelf.Documents().first());
        bench.widget->setCurrentRow(1);
        QTest::keyClick(bench.widget, Qt::Key_Return);
        QCOMPARE(opened.last().at(0).toString(), bench.Path("b.tif"));
    }

    void deleteClosesWhatIsSelected()
    {
        ListBench bench;
        QVERIFY(bench.Open("a.tif", QSize(6, 4)));
        QVERIFY(bench.Open("b.tif", QSize(6, 4)));
        QSignalSpy closed(bench.list.get(), SIGNAL(signalCloseImage(QObject *)));
        bench.widget->selectAll();
        bench.list->activateWindow();
        bench.widget->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(bench.list.get()));
        QTest::keyClick(bench.widget, Qt::Key_Delete);
        QCOMPARE(closed.size(), 2);
        QCOMPARE(closed.at(1).first().value<QObject *>(), bench.shelf.Documents().at(1));
    }

    void aNewNameIsAskedForAndMayBeRefused()
    {
        ListBench bench;
        QVERIFY(bench.Open("a.tif", QSize(6, 4)));
        QSignalSpy renamed(bench.list.get(), SIGNAL(signalRename(QObject *, QString)));
        bench.widget->setCurrentRow(0);
        bench.Action("Rename")->trigger();
        auto *editor = bench.widget->findChild<QLineEdit *>();
        QVERIFY(editor);
        editor->setText("new.tif");
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(renamed.size(), 1);
        QCOMPARE(renamed.first().at(1).toString(), QString("new.tif"));
        emit bench.main.Document()->signalChanged(); // it was refused
        QCOMPARE(bench.widget->item(0)->text(), QString("a.tif"));
        QCOMPARE(renamed.size(), 1);
    }

    void checkMarksAreTheDocuments()
    {
        ListBench bench;
        QVERIFY(bench.Open("a.tif", QSize(6, 4)));
        QSignalSpy checked(bench.list.get(), SIGNAL(signalSetImageChecked(QObject *, bool)));
        bench.widget->item(0)->setCheckState(Qt::Checked);
        QCOMPARE(checked.size(), 1);
        QCOMPARE(checked.first().at(1).toBool(), true);
        bench.shelf.Documents().first()->SetChecked(true);
        QCOMPARE(checked.size(), 1);
        bench.shelf.Documents().first()->SetChecked(false);
        QCOMPARE(bench.widget->item(0)->checkState(), Qt::Unchecked);
    }

    void allAreCheckedByTheButton()
    {
        ListBench bench;
        auto *button = bench.list->findChild<QPushButton *>("pushButtonCheckAll");
        QVERIFY(!button->isVisible());
        bench.list->slotSetSelectButtonVisible(true);
        QVERIFY(button->isVisible());
        QSignalSpy checked(bench.list.get(), SIGNAL(signalSetAllImageChecked(bool)));
        button->click();
        button->click();
        QCOMPARE(checked.size(), 2);
        QCOMPARE(checked.at(0).first().toBool(), true);
        QCOMPARE(checked.at(1).first().toBool(), false);
    }

    void theMenuComparesAndSaves()
    {
        ListBench bench;
        QSignalSpy compare(bench.list.get(), SIGNAL(signalCompare()));
        QSignalSpy save(bench.list->GetCompareSaver(), SIGNAL(signalSaveCompare()));
        QVERIFY(!bench.Action("Save Comparison…")->isEnabled());
        bench.Action("Compare")->trigger();
        QCOMPARE(compare.size(), 1);
        QVERIFY(!bench.Action("Compare")->isChecked()); // it has not begun
        bench.list->SetCompareSubMenuChecked(true);
        QVERIFY(bench.Action("Compare")->isChecked());
        bench.Action("Save Comparison…")->trigger();
        QCOMPARE(save.size(), 1);
        QSignalSpy closeAll(bench.list.get(), SIGNAL(signalCloseAllOpenedImage()));
        bench.Action("Close All")->trigger();
        QCOMPARE(closeAll.size(), 1);
    }

    void theFolderIsShown()
    {
        ListBench bench;
        QVERIFY(bench.Open("a.tif", QSize(6, 4)));
        QSignalSpy view(bench.list.get(), SIGNAL(signalSetFileView()));
        QSignalSpy folder(bench.list.get(), SIGNAL(sglShowFileThumbnail(QString)));
        bench.widget->setCurrentRow(0);
        bench.Action("Show in File Directory")->trigger();
        QCOMPARE(view.size(), 1);
        QCOMPARE(folder.first().first().toString(), bench.folder.path());
    }

    void aCapturedFileJoinsWithoutBeingShown()
    {
        ListBench bench;
        MadePictures::Write(bench.Path("captured.tif"), QSize(6, 4));
        bench.list->slotAddToThumbnailList(bench.Path("captured.tif"));
        QCOMPARE(bench.widget->count(), 1);
        QTRY_VERIFY(!bench.shelf.Documents().first()->Thumbnail().isNull());
        QVERIFY(bench.main.IsNonImage());
    }

    void selectionIsTheShelfs()
    {
        ListBench bench;
        QVERIFY(bench.Open("a.tif", QSize(6, 4)));
        QVERIFY(bench.Open("b.tif", QSize(6, 4)));
        bench.widget->selectAll();
        QCOMPARE(bench.shelf.Chosen(), bench.shelf.Documents());
    }
};

GUARDED_TEST_MAIN(PictureListTest)
#include "picturelisttest.moc"
