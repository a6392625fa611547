// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "shortfilename.h"

class TestShortFileName : public GuardedTest
{
    Q_OBJECT

private slots:
    void shortName_data();
    void shortName();
};

void TestShortFileName::shortName_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("shown");
    QTest::newRow("short") << "cells.tif" << "cells.tif";
    QTest::newRow("20 characters") << "abcdefghijklmnopqrst.tif" << "abcdefghijklmnopqrst.tif";
    QTest::newRow("21 characters") << "abcdefghijklmnopqrstu.tif" << "abcdefghijklmnop...rstu.tif";
    QTest::newRow("much longer") << "2026-03-14 sample 7 exposure 250 ms (3).fits" << "2026-03-14 sampl... (3).fits";
    QTest::newRow("short up to the first point") << "a.bcdefghijklmnopqrstuvwxyz.tif" << "a.bcdefghijklmnopqrstuvwxyz.tif";
    QTest::newRow("suffix behind the last point") << "abcdefghijklmnopqrstu.0001.spe" << "abcdefghijklmnop...rstu.spe";
    QTest::newRow("long suffix") << "abc.abcdefghijklmnopqrstuvwxyz" << "abc.abcdefghijklmnopqrstuvwxyz";
    QTest::newRow("no suffix") << "abcdefghijklmnopqrstu" << "abcdefghijklmnop...rstu.";
    QTest::newRow("nothing") << "" << "";
}

void TestShortFileName::shortName()
{
    QFETCH(QString, fileName);
    QFETCH(QString, shown);
    QCOMPARE(ShortFileName(fileName), shown);
}

GUARDED_TEST_MAIN(TestShortFileName)
#include "tst_shortfilename.moc"
