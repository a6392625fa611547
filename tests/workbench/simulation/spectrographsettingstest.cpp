// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrographsettings.h"
#include "guardedtest.h"

class SpectrographSettingsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void allAreRead()
    {
        SpectrographSettings settings;
        QString fault;
        QVERIFY(settings.Read("smile=-6.5,tracks=5,tilt=0.01,cosmic=20,hot=1000,dark=2.5", &fault));
        QCOMPARE(settings.geometry.tracks, 5);
        QCOMPARE(settings.geometry.tiltPixelsPerRow, 0.01);
        QCOMPARE(settings.geometry.smilePixels, -6.5);
        QCOMPARE(settings.darkElectronsPerSecond, 2.5);
        QCOMPARE(settings.hotPixelsPerMillion, 1000.0);
        QCOMPARE(settings.cosmicRaysPerSecond, 20.0);
    }

    void whatIsLeftOutStays()
    {
        SpectrographSettings settings;
        QString fault;
        QVERIFY(settings.Read("tilt=0", &fault));
        QCOMPARE(settings.geometry.tiltPixelsPerRow, 0.0);
        QCOMPARE(settings.geometry.tracks, 3);
        QCOMPARE(settings.geometry.smilePixels, 3.0);
    }

    void nonsenseIsRefused_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("fault");
        const QString names = "is not a setting of the spectrograph, or stands there twice. Each of these may be set once, as "
                              "in \"smile=3\": tracks, tilt, smile, dark, hot, cosmic";
        QTest::newRow("nothing") << "" << "\"\" " + names;
        QTest::newRow("another name") << "colour=3" << "\"colour=3\" " + names;
        QTest::newRow("twice") << "tilt=0,tilt=0.1" << "\"tilt=0.1\" " + names;
        QTest::newRow("comma at the end") << "tilt=0," << "\"\" " + names;
        QTest::newRow("no value") << "smile" << "\"smile\" needs a number from -50 to 50.";
        QTest::newRow("word") << "smile=big" << "\"smile=big\" needs a number from -50 to 50.";
        QTest::newRow("two values") << "smile=1=2" << "\"smile=1=2\" needs a number from -50 to 50.";
        QTest::newRow("not a number") << "smile=nan" << "\"smile=nan\" needs a number from -50 to 50.";
        QTest::newRow("endless") << "dark=inf" << "\"dark=inf\" needs a number from 0 to 1e+06.";
        QTest::newRow("no track") << "tracks=0" << "\"tracks=0\" needs a whole number from 1 to 20.";
        QTest::newRow("too many tracks") << "tracks=21" << "\"tracks=21\" needs a whole number from 1 to 20.";
        QTest::newRow("half a track") << "tracks=2.5" << "\"tracks=2.5\" needs a whole number from 1 to 20.";
        QTest::newRow("less than dark") << "dark=-1" << "\"dark=-1\" needs a number from 0 to 1e+06.";
    }

    void nonsenseIsRefused()
    {
        QFETCH(QString, text);
        SpectrographSettings settings;
        QString fault;
        QVERIFY(!settings.Read(text, &fault));
        QTEST(fault, "fault");
        QCOMPARE(settings.geometry.tracks, 3);
        QCOMPARE(settings.geometry.smilePixels, 3.0);
        QCOMPARE(settings.darkElectronsPerSecond, 40.0);
    }
};

GUARDED_TEST_MAIN(SpectrographSettingsTest)
#include "spectrographsettingstest.moc"
