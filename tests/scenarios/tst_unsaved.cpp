// SPDX-License-Identifier: GPL-3.0-or-later
#include "createpicture.h"
#include "framesaving.h"
#include "openedpicture.h"
#include "openpicture.h"
#include "picturedesk.h"
#include "picturedocument.h"
#include "pictureloader.h"
#include "pictureshelf.h"
#include "recordingdesk.h"
#include "savesettings.h"
#include "savedialog.h"
#include "scenariotest.h"
#include "unsavedguard.h"
#include "workspaceconfig.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QUndoStack>

/// A person closes pictures that he worked on.
class UnsavedScenario : public ScenarioTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        ScenarioTest::init();
        m_workbench->services.Config()->SetBottomUIChecked(true);
        m_workbench->services.Config()->UpdateCameraControlUI();
        for (const char *name : { "a.tif", "b.tif", "c.tif" })
            QVERIFY(Open(name));
    }

    void closingAnEditedPictureAsks()
    {
        Rotate("c.tif");
        m_workbench->Action("Close")->trigger();
        QVERIFY(Question());
        QCOMPARE(Question()->text(), QString("\u201cc.tif\u201d has changes that are not saved."));
        Answer("Cancel");
        QCOMPARE(Names(), QStringList({ "a.tif", "b.tif", "c.tif" }));
        QVERIFY(Document("c.tif")->UndoStack()->canUndo());
        m_workbench->Action("Close")->trigger();
        Answer("Discard");
        QTRY_COMPARE(Names(), QStringList({ "a.tif", "b.tif" }));
    }

    void whatIsUndoneIsNotAskedFor()
    {
        Rotate("c.tif");
        Document("c.tif")->UndoStack()->undo();
        m_workbench->Action("Close")->trigger();
        QCOMPARE(Names(), QStringList({ "a.tif", "b.tif" }));
        QVERIFY(!Question());
    }

    void theDeleteKeyAsksOnceForAll()
    {
        Rotate("a.tif");
        Rotate("c.tif");
        auto *list = m_workbench->window.findChild<QListWidget *>("listPictures");
        QTRY_VERIFY(list->isVisible());
        list->setFocus();
        list->selectAll();
        QTest::keyClick(list, Qt::Key_Delete);
        QCOMPARE(Names(), QStringList({ "a.tif", "c.tif" })); // nothing is lost with b.tif
        QVERIFY(Question());
        QCOMPARE(Question()->text(), QString("2 pictures have changes that are not saved."));
        Answer("Cancel");
        QCOMPARE(Names(), QStringList({ "a.tif", "c.tif" }));
        m_workbench->window.activateWindow();
        list->setFocus();
        QTRY_VERIFY(list->hasFocus());
        QTest::keyClick(list, Qt::Key_Delete);
        Answer("Discard All");
        QTRY_COMPARE(Names(), QStringList());
        QVERIFY(!Question());
    }

    void closingAllAsks()
    {
        Rotate("b.tif");
        m_workbench->Action("Close All")->trigger();
        Answer("Cancel");
        QCOMPARE(Names(), QStringList({ "a.tif", "b.tif", "c.tif" }));
        m_workbench->Action("Close All")->trigger();
        Answer("Discard All");
        QTRY_COMPARE(Names(), QStringList());
    }

    void quittingAsks()
    {
        Rotate("b.tif");
        m_workbench->window.close();
        QVERIFY(m_workbench->window.isVisible());
        Answer("Cancel");
        QVERIFY(m_workbench->window.isVisible());
        m_workbench->window.close();
        Answer("Discard All");
        QTRY_VERIFY(!m_workbench->window.isVisible());
    }

    /// Even of one that is not shown: it is shown, saved and then closed.
    void aPictureIsSavedAndClosed()
    {
        Rotate("a.tif");
        ShowAndWait("b.tif");
        m_workbench->services.Desk()->RequestClose(Document("a.tif"));
        Answer("Save As\u2026");
        SaveDialog *dialog = nullptr;
        QTRY_VERIFY((dialog = Dialog()));
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        QCOMPARE(Main()->GetFileName(), QString("a.tif"));
        QMetaObject::invokeMethod(dialog, "reject");
        QVERIFY(Document("a.tif"));

        m_workbench->Action("Close")->trigger();
        Answer("Save As\u2026");
        QTRY_VERIFY((dialog = Dialog()) && dialog->isVisible());
        QVERIFY(dialog->AllFrames());
        dialog->findChild<QLineEdit *>("fileNameEdit")->setText(m_folder->filePath("turned.tif"));
        QMetaObject::invokeMethod(dialog, "accept");
        QTRY_COMPARE(Names(), QStringList({ "b.tif", "c.tif" }));
        QString error;
        const auto saved = OpenPicture(m_folder->filePath("turned.tif"), error);
        QVERIFY2(saved, qPrintable(error));
        QCOMPARE(saved->Info().size, QSize(20, 30));
        QCOMPARE(saved->Info().frames, 2);
    }

    void aPictureThatCannotBeShownIsNotAskedForLater()
    {
        Rotate("a.tif");
        ShowAndWait("b.tif");
        const QString path = m_folder->filePath("a.tif");
        QVERIFY(QFile::rename(path, path + ".away"));
        m_workbench->services.Loader()->Close(Document("a.tif")->File().id);
        QSignalSpy faults(m_workbench->services.Desk(), SIGNAL(signalFault(QString)));
        m_workbench->services.Desk()->RequestClose(Document("a.tif"));
        Answer("Save As\u2026");
        QTRY_COMPARE(faults.size(), 1);
        QVERIFY(QFile::rename(path + ".away", path));
        ShowAndWait("a.tif");
        QVERIFY(!Dialog());
    }

    void whoGoesOnToAnotherPictureIsNotAskedLater_data()
    {
        QTest::addColumn<QString>("other");
        QTest::newRow("that is shown") << "b.tif";
        QTest::newRow("that is not") << "c.tif";
    }

    void whoGoesOnToAnotherPictureIsNotAskedLater()
    {
        QFETCH(QString, other);
        Rotate("a.tif");
        ShowAndWait("b.tif");
        m_workbench->services.Desk()->RequestClose(Document("a.tif"));
        Answer("Save As\u2026");
        TakeAnswer();
        QCOMPARE(Main()->WantedDocument(), Document("a.tif"));
        QSignalSpy pictures(Main(), SIGNAL(signalShowPicture(QImage)));
        m_workbench->services.Desk()->Show(Document(other), Main());
        QTRY_VERIFY(!pictures.isEmpty());
        QCOMPARE(Main()->GetFileName(), other);
        ShowAndWait("a.tif");
        QVERIFY(!Dialog());
    }

    void aPictureIsSavedThoughAnotherIsOnItsWay()
    {
        Rotate("a.tif");
        m_workbench->services.Desk()->RequestClose(Document("a.tif"));
        Answer("Save As\u2026");
        m_workbench->services.Desk()->Show(Document("b.tif"), Main());
        TakeAnswer();
        QVERIFY(Dialog());
        QVERIFY(QTest::qWaitForWindowExposed(Dialog()));
        QCOMPARE(Main()->GetFileName(), QString("a.tif"));
        QMetaObject::invokeMethod(Dialog(), "reject");
    }

    void aRecordingIsAskedForLast()
    {
        Rotate("b.tif");
        RecordingDesk *recording = m_workbench->services.Recording();
        RecordingSettings settings;
        settings.folder = m_folder->path();
        settings.pattern = "run{number}";
        settings.mode = RecordingSettings::Mode::UntilStopped;
        recording->Settings()->Set(settings);
        recording->slotCapture(true, false);
        QTRY_VERIFY_WITH_TIMEOUT(recording->Saving()->Counts().saved > 3, 60000);

        AnswerForRecording("Discard It");
        m_workbench->window.close();
        Answer("Cancel");
        QVERIFY(recording->IsBusy());
        QCOMPARE(m_recordingAnswers.size(), 1); // not asked

        AnswerForRecording("Go On Recording");
        m_workbench->window.close();
        Answer("Discard All");
        QTRY_VERIFY(m_recordingAnswers.isEmpty());
        QVERIFY(recording->IsBusy() && m_workbench->window.isVisible());

        AnswerForRecording("Finish It");
        m_workbench->window.close();
        Answer("Discard All"); // who went on may have changed more
        QTRY_VERIFY_WITH_TIMEOUT(!m_workbench->window.isVisible(), 60000);
        QVERIFY(!recording->IsBusy());
        QVERIFY(QFile::exists(m_folder->filePath("run1.tif")));
    }

private:
    bool Open(const QString &name)
    {
        const QString path = m_folder->filePath(name);
        SaveOptions options;
        options.frameCount = 2;
        QString error;
        const auto writer = CreatePicture(path, options, error);
        Picture picture(30, 20, 1, SampleType::U8);
        for (int y = 0; y < 20; ++y)
            std::fill_n(picture.Samples<quint8>(y), 30, quint8(y));
        if (!writer || !writer->Append(picture, error) || !writer->Append(picture, error) || !writer->Commit(error))
            return false;
        m_workbench->services.Desk()->Open({ path }, Main());
        return QTest::qWaitFor([&] { return Main()->GetFileName() == name; });
    }
    void Rotate(const QString &name)
    {
        ShowAndWait(name);
        Main()->slotRotateImage(0);
        QVERIFY(Document(name)->IsChanged());
        QTRY_COMPARE(Main()->GetImageSizeString(), QString("20x30"));
    }
    void ShowAndWait(const QString &name)
    {
        m_workbench->services.Desk()->Show(Document(name), Main());
        QTRY_COMPARE(Main()->GetFileName(), name);
    }
    SaveDialog *Dialog() const { return m_workbench->window.findChild<SaveDialog *>("SaveDialog"); }
    /// Without waiting for any picture.
    void TakeAnswer() { QCoreApplication::sendPostedEvents(m_workbench->window.findChild<UnsavedGuard *>(), QEvent::MetaCall); }
    OpenedPicture *Main() const { return m_workbench->services.Desk()->MainPicture(); }
    PictureDocument *Document(const QString &name) const
    {
        return m_workbench->services.Desk()->Shelf()->Find(m_folder->filePath(name));
    }
    QStringList Names() const
    {
        QStringList names;
        for (const PictureDocument *document : m_workbench->services.Desk()->Shelf()->Documents())
            names << document->Name();
        return names;
    }
    /// The one that is asked, or soon will be; null without one.
    QMessageBox *Question() const
    {
        QCoreApplication::processEvents(); // asked for all that are closed at a time
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const QList<QMessageBox *> boxes = m_workbench->window.findChildren<QMessageBox *>("UnsavedQuestion");
        return boxes.isEmpty() ? nullptr : boxes.first();
    }
    void Answer(const QString &text)
    {
        QMessageBox *box = Question();
        QVERIFY(box);
        QCOMPARE(m_workbench->window.findChildren<QMessageBox *>("UnsavedQuestion").size(), 1);
        QVERIFY(QTest::qWaitForWindowActive(box));
        for (QAbstractButton *button : box->buttons()) {
            if (button->text().remove('&') == text) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        QFAIL(qPrintable("no button " + text));
    }
    /// Presses that button of the question for the recording as soon as it is there; that question has a loop of its own.
    void AnswerForRecording(const QString &text)
    {
        m_recordingAnswers = QStringList(text);
        connect(&m_answering, &QTimer::timeout, this, &UnsavedScenario::TakeRecordingAnswer, Qt::UniqueConnection);
        m_answering.start(20);
    }
    void TakeRecordingAnswer()
    {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || box->objectName() != "RecordingQuestion" || !box->isActiveWindow())
            return;
        m_answering.stop();
        const QString text = m_recordingAnswers.takeFirst();
        for (QAbstractButton *button : box->buttons()) {
            if (button->text().remove('&') == text)
                button->click();
        }
    }

    QTimer m_answering;
    QStringList m_recordingAnswers; ///< still to be given
};

GUARDED_TEST_MAIN(UnsavedScenario)
#include "tst_unsaved.moc"
