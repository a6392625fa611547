// SPDX-License-Identifier: GPL-3.0-or-later
#include "fitstext.h"
#include "guardedtest.h"

class FitsTextTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void onlyPrintableAsciiIsLeft_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("ascii");
        QTest::newRow("ASCII stays") << " Gain: 2 ~ x" << QByteArray(" Gain: 2 ~ x");
        QTest::newRow("accents") << QString::fromUtf8("Verstärkung, caméra, Å") << QByteArray("Verstarkung, camera, A");
        QTest::newRow("units") << QString::fromUtf8("5 µm, groß") << QByteArray("5 um, gross");
        QTest::newRow("breaks") << QString("a\nb\tc\rd") << QByteArray("a b c d");
        QTest::newRow("other scripts") << QString::fromUtf8("相机\x07") << QByteArray("???");
    }

    void onlyPrintableAsciiIsLeft()
    {
        QFETCH(QString, text);
        QTEST(FitsText(text), "ascii");
    }
};

GUARDED_TEST_MAIN(FitsTextTest)
#include "fitstexttest.moc"
