// SPDX-License-Identifier: GPL-3.0-or-later
#include "namepattern.h"
#include "guardedtest.h"

#include <QFile>
#include <QTemporaryDir>

/// Names of recordings.
class NamePatternTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void fillsInWhatIsKnown_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("name");
        QTest::newRow("default") << NamePattern::Default() << 1 << "C-1_20261121_043005";
        QTest::newRow("plain") << "cells" << 1 << "cells";
        QTest::newRow("number") << "cells {number}" << 12 << "cells 12";
        QTest::newRow("number with digits") << "cells{number:4}" << 12 << "cells0012";
        QTest::newRow("number that needs more digits") << "{number:2}" << 1234 << "1234";
        QTest::newRow("exposure and gain") << "{exposure}us_{gain}" << 1 << "12500us_1.5";
        QTest::newRow("letters that names can't hold")
            << "a/b\\c:d*e?f\"g<h>i|j\nk" << 1 << "a_b_c_d_e_f_g_h_i_j_k";
        QTest::newRow("hidden") << "..x" << 1 << "_.x";
        QTest::newRow("other scripts")
            << QString::fromUtf8("проба {number}") << 3 << QString::fromUtf8("проба 3");
    }

    void fillsInWhatIsKnown()
    {
        QFETCH(QString, pattern);
        QFETCH(int, number);
        QFETCH(QString, name);
        const NamePattern names(pattern);
        QCOMPARE(names.Fault(), QString());
        QCOMPARE(names.Name(Values(), number), name);
    }

    void saysWhatIsWrong_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("part");
        QTest::newRow("unknown") << "{camra}"
                                 << "\"{camra}\" is not known";
        QTest::newRow("zero digits") << "{number:0}"
                                     << "is not known";
        QTest::newRow("open") << "cells_{date"
                              << "left open";
        QTest::newRow("closed only") << "cells}"
                                     << "left open";
        QTest::newRow("empty") << "  "
                               << "empty";
    }

    void saysWhatIsWrong()
    {
        QFETCH(QString, pattern);
        QFETCH(QString, part);
        QVERIFY2(NamePattern(pattern).Fault().contains(part), qPrintable(NamePattern(pattern).Fault()));
    }

    void namesAreNeverTooLong()
    {
        const QString name = NamePattern(QString(1000, QChar(0x431))).Name(Values(), 1);
        QVERIFY(name.toUtf8().size() <= 200);
        QVERIFY(name.toUtf8().size() > 190);
    }

    void takesTheNextFreeName_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QStringList>("there");
        QTest::addColumn<QString>("name");
        QTest::newRow("nothing there") << "x{number}" << QStringList{} << "x1.tif";
        QTest::newRow("two there") << "x{number}" << QStringList{ "x1.tif", "x2.tif" } << "x3.tif";
        QTest::newRow("a gap is used") << "x{number}" << QStringList{ "x2.tif" } << "x1.tif";
        QTest::newRow("a summary") << "x{number}" << QStringList{ "x1.txt" } << "x2.tif";
        QTest::newRow("unfinished") << "x{number}" << QStringList{ "x1.tif.part" } << "x2.tif";
        QTest::newRow("a journal") << "x{number}" << QStringList{ "x1.tif.journal" } << "x2.tif";
        QTest::newRow("a sequence") << "x{number}" << QStringList{ "x1_000001.png" } << "x2.tif";
        QTest::newRow("without number") << "x" << QStringList{ "x.tif", "x_2.tif" } << "x_3.tif";
        QTest::newRow("other files") << "x" << QStringList{ "xy.tif", "y.tif" } << "x.tif";
    }

    void takesTheNextFreeName()
    {
        QFETCH(QString, pattern);
        QFETCH(QStringList, there);
        QFETCH(QString, name);
        const QTemporaryDir folder;
        for (const QString &file : there)
            QVERIFY(QFile(folder.filePath(file)).open(QIODevice::WriteOnly));
        QCOMPARE(NamePattern(pattern).NextFree(folder.path(), "tif", Values()), folder.filePath(name));
    }

private:
    static NamePattern::Values Values()
    {
        NamePattern::Values values;
        values.camera = "C-1";
        values.start = QDateTime(QDate(2026, 11, 21), QTime(4, 30, 5));
        values.exposureUs = 12500;
        values.gain = 1.5;
        return values;
    }
};

GUARDED_TEST_MAIN(NamePatternTest)
#include "namepatterntest.moc"
