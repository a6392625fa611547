// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileorder.h"
#include "guardedtest.h"

namespace {

QStringList Names(const FileEntries &entries)
{
    QStringList names;
    for (const FileEntry &entry : entries)
        names << entry.name;
    return names;
}

} // namespace

/// The order of the files in the list, and which of them are in it.
class FileOrderTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void sorts_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("descending");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("name") << int(FileOrder::ByName) << false
                              << QStringList({"a.tif", "B.png", "run2.tif", "run10.tif"});
        QTest::newRow("name down") << int(FileOrder::ByName) << true
                                   << QStringList({"run10.tif", "run2.tif", "B.png", "a.tif"});
        QTest::newRow("date") << int(FileOrder::ByDate) << false
                              << QStringList({"run10.tif", "B.png", "a.tif", "run2.tif"});
        QTest::newRow("date down") << int(FileOrder::ByDate) << true
                                   << QStringList({"run2.tif", "a.tif", "B.png", "run10.tif"});
        // Equal sizes stand by name either way.
        QTest::newRow("size") << int(FileOrder::BySize) << false
                              << QStringList({"B.png", "a.tif", "run10.tif", "run2.tif"});
        QTest::newRow("size down") << int(FileOrder::BySize) << true
                                   << QStringList({"run2.tif", "a.tif", "run10.tif", "B.png"});
        QTest::newRow("type") << int(FileOrder::ByType) << false
                              << QStringList({"B.png", "a.tif", "run2.tif", "run10.tif"});
    }
    void sorts()
    {
        QFETCH(int, key);
        QFETCH(bool, descending);
        const FileEntries entries{{"run10.tif", 5, 1, false}, {"a.tif", 5, 3, false}, {"run2.tif", 9, 4, false},
                                  {"B.png", 2, 2, false}};
        FileOrder order;
        order.key = FileOrder::Key(key);
        order.descending = descending;
        QTEST(Names(Arranged(entries, order)), "names");
    }

    void filters_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("none") << "" << QStringList({"Cells (1).tif", "cells2.tif", "Zelle\u00e4.tif"});
        QTest::newRow("part") << "CELLS" << QStringList({"Cells (1).tif", "cells2.tif"});
        QTest::newRow("no pattern") << "(1)" << QStringList("Cells (1).tif");
        QTest::newRow("pattern") << "cells?.tif" << QStringList("cells2.tif");
        QTest::newRow("pattern of all") << "*.tif" << QStringList({"Cells (1).tif", "cells2.tif", "Zelle\u00e4.tif"});
        QTest::newRow("other script") << "\u00c4" << QStringList("Zelle\u00e4.tif");
    }
    void filters()
    {
        QFETCH(QString, filter);
        const FileEntries entries{{"Cells (1).tif", 0, 0, false}, {"cells2.tif", 0, 0, false},
                                  {"Zelle\u00e4.tif", 0, 0, false}};
        FileOrder order;
        order.filter = filter;
        QTEST(Names(Arranged(entries, order)), "names");
    }
};

GUARDED_TEST_MAIN(FileOrderTest)
#include "fileordertest.moc"
