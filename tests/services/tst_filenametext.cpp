// SPDX-License-Identifier: GPL-3.0-or-later
#include "filenametext.h"
#include "guardedtest.h"

class TestFileNameText : public GuardedTest
{
    Q_OBJECT

private slots:
    void names_data();
    void names();
};

void TestFileNameText::names_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("ordinary") << "a b.tif" << "a b.tif";
    QTest::newRow("line break") << "a\nb.tif" << "a\u23ceb.tif";
    QTest::newRow("control character") << "a\x01" "b.tif" << "a\ufffdb.tif";
    QTest::newRow("letters of other scripts") << "\u7ec6\u80de.tif" << "\u7ec6\u80de.tif";
}

void TestFileNameText::names()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    QCOMPARE(FileNameText(name), text);
    QCOMPARE(FileNameTextOf("/data/2026\n11/" + name), text);
}

GUARDED_TEST_MAIN(TestFileNameText)
#include "tst_filenametext.moc"
