// SPDX-License-Identifier: GPL-3.0-or-later
#include "autocounting.h"
#include "guardedtest.h"

#include <QFile>
#include <QLocale>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace {

/// 8 pixels around (10.5, 4), and 50 around (2, 3.25).
QVector<CountedObject> TwoObjects()
{
    CountedObject small;
    small.area = 8;
    small.centroid = QPointF(10.5, 4);
    small.meanIntensity = 200.25;
    small.equivalentDiameter = 3.1915;
    small.perimeter = 9.5;
    small.circularity = 1;
    CountedObject large = small;
    large.area = 50;
    large.centroid = QPointF(2, 3.25);
    return { small, large };
}

} // namespace

/// The objects that were counted, as a table.
class AutoCountingTest : public GuardedTest
{
    Q_OBJECT

private:
    static QStringList Row(const ObjectTable &table, int row)
    {
        QStringList texts;
        for (int column = 0; column < table.columnCount(); ++column)
            texts << table.index(row, column).data().toString();
        return texts;
    }
    static QStringList Headings(const ObjectTable &table)
    {
        QStringList texts;
        for (int column = 0; column < table.columnCount(); ++column)
            texts << table.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        return texts;
    }

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }

    void objectsAreRowsInPixels()
    {
        ObjectTable table;
        QCOMPARE(table.rowCount(), 0);
        table.SetObjects(TwoObjects());
        QCOMPARE(table.rowCount(), 2);
        QCOMPARE(Headings(table), QStringList({ "No.", "Area (px)", "X (px)", "Y (px)", "Mean", "Diameter (px)",
                                                "Perimeter (px)", "Circularity" }));
        QCOMPARE(Row(table, 0),
                 QStringList({ "1", "8", "10.500", "4", "200.250", "3.192", "9.500", "1" })); // 3.1915 is 3.191|5000..01
        QCOMPARE(table.index(1, ObjectTable::Area).data(ObjectTable::SortRole).toDouble(), 50.0);
    }

    void calibratedLengthsAndAreasAreInTheirUnit()
    {
        ObjectTable table;
        table.SetObjects(TwoObjects());
        QSignalSpy reset(&table, &QAbstractItemModel::modelReset);
        table.SetPixelSize(0.5, "nm");
        QCOMPARE(reset.size(), 1);
        // A superscript is a digit to QString::arg().
        QCOMPARE(Headings(table).mid(1, 3), QStringList({ "Area (nm\u00b2)", "X (nm)", "Y (nm)" }));
        QCOMPARE(Row(table, 0).mid(1, 4), QStringList({ "2", "5.250", "2", "200.250" }));
        table.SetPixelSize(0, "nm");
        QCOMPARE(Row(table, 0).at(1), QString("8"));
    }

    void csvHasAllDigits()
    {
        ObjectTable table;
        table.SetObjects(TwoObjects());
        QCOMPARE(table.Csv(), QByteArray("No.,Area (px),X (px),Y (px),Mean,Diameter (px),Perimeter (px),Circularity\n"
                                         "1,8,10.5,4,200.25,3.1915,9.5,1\n"
                                         "2,50,2,3.25,200.25,3.1915,9.5,1\n"));
    }

    void newObjectsAreAnnounced()
    {
        AutoCounting counting;
        QSignalSpy changed(&counting, &AutoCountManager::signalAutoCountDataChanged);
        QVERIFY(!AutoCountManager::GetInstance()->IsCounting());
        counting.SetCounting(true);
        QVERIFY(AutoCountManager::GetInstance()->IsCounting());
        counting.SetObjects(TwoObjects());
        QCOMPARE(changed.size(), 1);
        counting.SetCounting(false);
        QCOMPARE(counting.Table()->rowCount(), 2);
    }

    void theTableIsSavedInTheBackground()
    {
        QTemporaryDir folder;
        AutoCounting counting;
        counting.SetObjects(TwoObjects());
        QSignalSpy saved(&counting, &AutoCounting::signalSaved);
        counting.Save(folder.filePath("objects.csv"));
        QTRY_COMPARE(saved.size(), 1);
        QCOMPARE(saved.first().last().toString(), QString());
        QFile file(folder.filePath("objects.csv"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), counting.Table()->Csv());

        counting.Save(folder.filePath("no such folder/objects.csv"));
        QTRY_COMPARE(saved.size(), 2);
        const QString error = saved.last().last().toString();
        QVERIFY2(error.startsWith("\u201cobjects.csv\u201d was not saved: "), qPrintable(error));
        QVERIFY2(error.endsWith("the old file is unchanged."), qPrintable(error));
    }

    /// What is still to be written when the program ends is written.
    void aSaveThatWasBegunIsFinished()
    {
        QTemporaryDir folder;
        {
            AutoCounting counting;
            counting.SetObjects(TwoObjects());
            counting.Save(folder.filePath("objects.csv"));
        }
        QVERIFY(QFile::exists(folder.filePath("objects.csv")));
    }
};

GUARDED_TEST_MAIN(AutoCountingTest)
#include "autocountingtest.moc"
