// SPDX-License-Identifier: GPL-3.0-or-later
#include "exportdialog.h"
#include "guardedtest.h"

#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>

/// Names of files to be saved are whole.
class ExportDialogTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void namesAreMadeWhole_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("filter");
        QTest::addColumn<QString>("chosen");
        QTest::newRow("no suffix") << "lamp" << 0 << "lamp.png";
        QTest::newRow("other form") << "lamp" << 1 << "lamp.tif";
        QTest::newRow("number") << "lamp 1.5s" << 0 << "lamp 1.5s.png";
        QTest::newRow("number, other form") << "lamp 1.5s" << 1 << "lamp 1.5s.tif";
        QTest::newRow("suffix of its form") << "lamp.png" << 0 << "lamp.png";
        QTest::newRow("second suffix of its form") << "lamp.tiff" << 1 << "lamp.tiff";
        QTest::newRow("suffix of the other form") << "lamp.TIF" << 0 << "lamp.TIF";
    }

    void namesAreMadeWhole()
    {
        QFETCH(QString, typed);
        QFETCH(int, filter);
        QFETCH(QString, chosen);
        QTemporaryDir folder;
        QPointer<ExportDialog> dialog = Open(folder.filePath("a.b"));
        auto *name = dialog->findChild<QLineEdit *>("fileNameEdit");
        QCOMPARE(name->text(), QString("a.b.png"));
        dialog->selectNameFilter(dialog->nameFilters().at(filter));
        QSignalSpy selected(dialog, &QFileDialog::fileSelected);
        name->setText(typed);
        QTest::keyClick(name, Qt::Key_Return);
        QCOMPARE(selected.count(), 1);
        QCOMPARE(selected[0][0].toString(), folder.filePath(chosen));
        QTRY_VERIFY(!dialog);
    }

    /// A folder is gone into.
    void foldersAreNoNames()
    {
        QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir("run 1.5"));
        QPointer<ExportDialog> dialog = Open(folder.filePath("a"));
        QSignalSpy selected(dialog, &QFileDialog::fileSelected);
        auto *name = dialog->findChild<QLineEdit *>("fileNameEdit");
        name->setText("run 1.5");
        QTest::keyClick(name, Qt::Key_Return);
        QCOMPARE(selected.count(), 0);
        QTRY_COMPARE(dialog->directory().dirName(), QString("run 1.5"));
        dialog->reject();
        QTRY_VERIFY(!dialog);
    }

private:
    static ExportDialog *Open(const QString &suggestedPath)
    {
        auto *dialog = new ExportDialog("Save", {"Picture (*.png)", "TIFF (*.tif *.tiff)"}, suggestedPath, nullptr);
        dialog->open();
        [&] { QVERIFY(QTest::qWaitForWindowActive(dialog)); }();
        return dialog;
    }
};

GUARDED_TEST_MAIN(ExportDialogTest)
#include "exportdialogtest.moc"
