// SPDX-License-Identifier: GPL-3.0-or-later
#include "acquireprogresstext.h"
#include "guardedtest.h"

class TestAcquireProgressText : public GuardedTest
{
    Q_OBJECT

private slots:
    void minutesAndSeconds_data();
    void minutesAndSeconds();
    void minutesAndSecondsOfALimit_data();
    void minutesAndSecondsOfALimit();
    void countOfTotal();
};

void TestAcquireProgressText::minutesAndSeconds_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("start") << 0 << "00 : 00";
    QTest::newRow("last second of a minute") << 59 << "00 : 59";
    QTest::newRow("first minute") << 60 << "01 : 00";
    QTest::newRow("75 seconds") << 75 << "01 : 15";
    QTest::newRow("an hour") << 3600 << "60 : 00";
    QTest::newRow("more than 99 minutes") << 6005 << "100 : 05";
}

void TestAcquireProgressText::minutesAndSeconds()
{
    QFETCH(int, seconds);
    QFETCH(QString, text);
    QCOMPARE(MinutesAndSecondsText(seconds), text);
}

void TestAcquireProgressText::minutesAndSecondsOfALimit_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<int>("limit");
    QTest::addColumn<QString>("text");
    QTest::newRow("ten minutes") << 75 << 600 << "01 : 15 / 10 : 00";
    QTest::newRow("one minute") << 12 << 60 << "00 : 12 / 01 : 00";
    QTest::newRow("no time at all") << 0 << 0 << "00 : 00 / 00 : 00";
}

void TestAcquireProgressText::minutesAndSecondsOfALimit()
{
    QFETCH(int, seconds);
    QFETCH(int, limit);
    QFETCH(QString, text);
    QCOMPARE(MinutesAndSecondsText(seconds, limit), text);
}

void TestAcquireProgressText::countOfTotal()
{
    QCOMPARE(CountOfTotalText(120, 500), QString("120 / 500"));
    QCOMPARE(CountOfTotalText(0, 1234567), QString("0 / 1234567"));
}

GUARDED_TEST_MAIN(TestAcquireProgressText)
#include "tst_acquireprogresstext.moc"
