// SPDX-License-Identifier: GPL-3.0-or-later
#include "tablepage.h"
#include "fieldsource.h"
#include "guardedtest.h"

#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>

#include <memory>

namespace {

/// A table of names and numbers.
class Counted : public FieldSource
{
public:
    Counted()
        : FieldSource("counted")
    {
        table.setHorizontalHeaderLabels({ "Name", "Area" });
    }

    PanelFields Fields() const override { return {}; }
    void Set(const QString &key, const QVariant &value) override
    {
        if (key == "saveTable")
            saved << value.toString();
    }
    QAbstractItemModel *Table() override { return &table; }
    QString TableNote() const override { return "Nothing was counted."; }

    void Add(const QString &name, double area)
    {
        auto *first = new QStandardItem(name);
        first->setData(name, Qt::UserRole);
        auto *second = new QStandardItem(QString::number(area));
        second->setData(area, Qt::UserRole);
        table.appendRow({ first, second });
    }

    QStandardItemModel table;
    QStringList saved;
};

} // namespace

class TablePageTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void saysThatThereIsNothing()
    {
        Counted source;
        TablePage page(&source, "absent");
        page.show();
        QCOMPARE(Note(page)->text(), QString("Nothing was counted."));
        QVERIFY(Note(page)->isVisible());
        QVERIFY(!Button(page, "Copy")->isEnabled());
        QVERIFY(!Button(page, "Save")->isEnabled());
        source.Add("one", 3);
        QVERIFY(!Note(page)->isVisible());
        QVERIFY(Button(page, "Copy")->isEnabled());
        source.table.removeRows(0, 1);
        QVERIFY(Note(page)->isVisible());
    }

    void sortsByNumbersNotByTexts()
    {
        Counted source;
        source.Add("ten", 10);
        source.Add("nine", 9);
        TablePage page(&source, "absent");
        QCOMPARE(page.Text(), QString("Name\tArea\nten\t10\nnine\t9\n"));
        Table(page)->sortByColumn(1, Qt::AscendingOrder);
        QCOMPARE(page.Text(), QString("Name\tArea\nnine\t9\nten\t10\n"));
    }

    void copiesWhatIsSelectedOrAll()
    {
        Counted source;
        source.Add("one", 1);
        source.Add("two", 2);
        TablePage page(&source, "absent");
        page.show();
        page.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        QTest::mouseClick(Button(page, "Copy"), Qt::LeftButton);
        QCOMPARE(QGuiApplication::clipboard()->text(), QString("Name\tArea\none\t1\ntwo\t2\n"));
        Table(page)->selectRow(1);
        Table(page)->setFocus();
        QTest::keyClick(Table(page), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QString("Name\tArea\ntwo\t2\n"));
    }

    /// What follows a dot in it is no suffix, unless it is that of the table.
    void savedNamesGetASuffix_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("saved");
        QTest::newRow("none") << "peaks" << "peaks.csv";
        QTest::newRow("number") << "lamp 1.5s" << "lamp 1.5s.csv";
        QTest::newRow("of the table") << "peaks.CSV" << "peaks.CSV";
    }

    void savedNamesGetASuffix()
    {
        QFETCH(QString, typed);
        QFETCH(QString, saved);
        Counted source;
        source.Add("one", 1);
        QTemporaryDir folder;
        TablePage page(&source, "absent");
        page.show();
        QTest::mouseClick(Button(page, "Save"), Qt::LeftButton);
        QPointer<QFileDialog> dialog = page.findChild<QFileDialog *>("SaveTableDialog");
        QVERIFY(dialog);
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        QVERIFY(source.saved.isEmpty()); // nothing waits for the dialog
        auto *name = dialog->findChild<QLineEdit *>("fileNameEdit");
        name->setText(folder.filePath(typed));
        QTest::keyClick(name, Qt::Key_Return);
        QCOMPARE(source.saved, QStringList(folder.filePath(saved)));
        QTRY_VERIFY(!dialog);
        // Thought better of it.
        QTest::mouseClick(Button(page, "Save"), Qt::LeftButton);
        dialog = page.findChild<QFileDialog *>("SaveTableDialog");
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        dialog->reject();
        QTRY_VERIFY(!dialog);
        QCOMPARE(source.saved.size(), 1);
    }

    void withoutASourceItSaysSo()
    {
        TablePage page(nullptr, "This program does not count.");
        page.show();
        QCOMPARE(Note(page)->text(), QString("This program does not count."));
        QVERIFY(Note(page)->isVisible());
        QVERIFY(!Table(page)->isVisible());
        QCOMPARE(page.Text(), QString());
    }

    void sourceMayGoFirst()
    {
        auto source = std::make_unique<Counted>();
        source->Add("one", 1);
        TablePage page(source.get(), "absent");
        source.reset();
        page.slotUpdate();
        QVERIFY(!Button(page, "Copy")->isEnabled());
    }

private:
    static QLabel *Note(const TablePage &page) { return page.findChild<QLabel *>("labelTableNote"); }
    static QTableView *Table(const TablePage &page) { return page.findChild<QTableView *>("tableRows"); }
    static QPushButton *Button(const TablePage &page, const char *what)
    {
        return page.findChild<QPushButton *>(QString("pushButtonTable%1").arg(what));
    }
};

GUARDED_TEST_MAIN(TablePageTest)
#include "tablepagetest.moc"
