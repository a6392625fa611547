// SPDX-License-Identifier: GPL-3.0-or-later
#include "centredisplay.h"
#include "guardedtest.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

class CentreDisplayTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void beginsWithThePicture()
    {
        const CentreDisplay centre(&m_settings);
        QCOMPARE(centre.GetCurrentDisplayMode(), 0);
        QVERIFY(centre.Mode() == DisplayMode::General);
    }

    void announcesAnotherModeOnce()
    {
        CentreDisplay centre(&m_settings);
        const QSignalSpy changes(&centre, &CentreDisplay::signalModeChanged);
        centre.SetMode(DisplayMode::Plot);
        centre.SetMode(DisplayMode::Plot);
        QCOMPARE(changes.count(), 1);
        QVERIFY(centre.GetCurrentDisplayMode() != 0);
    }

    void comesBackToTheLastSpectrumPage()
    {
        {
            CentreDisplay centre(&m_settings);
            centre.SetMode(DisplayMode::Tracks3D);
            centre.ShowSpectrum(false);
            QVERIFY(centre.Mode() == DisplayMode::General);
            centre.ShowSpectrum(true);
            QVERIFY(centre.Mode() == DisplayMode::Tracks3D);
            const QSignalSpy changes(&centre, &CentreDisplay::signalModeChanged);
            centre.ShowSpectrum(true);
            QCOMPARE(changes.count(), 0);
        }
        CentreDisplay next(&m_settings); // after another start
        next.ShowSpectrum(true);
        QVERIFY(next.Mode() == DisplayMode::Tracks3D);
    }

    void nonsenseInTheSettingsIsTheRulerPage_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::newRow("nothing") << QVariant();
        QTest::newRow("the picture") << QVariant(0);
        QTest::newRow("below") << QVariant(-1);
        QTest::newRow("beyond") << QVariant(5);
        QTest::newRow("a word") << QVariant("plot");
    }

    void nonsenseInTheSettingsIsTheRulerPage()
    {
        QFETCH(QVariant, stored);
        m_settings.clear();
        if (stored.isValid())
            m_settings.setValue("spectrum/displayMode", stored);
        CentreDisplay centre(&m_settings);
        centre.ShowSpectrum(true);
        QVERIFY(centre.Mode() == DisplayMode::Physics);
    }

    void comparingTakesThePlaceOfTheSpectrumPage()
    {
        CentreDisplay centre(&m_settings);
        centre.SetMode(DisplayMode::Plot);
        const QSignalSpy ends(&centre, &CentreDisplay::signalEndComparisonWanted);
        centre.SetComparing(true);
        QVERIFY(centre.Mode() == DisplayMode::General);
        centre.SetComparing(true); // from one comparison to another
        centre.SetComparing(false);
        QVERIFY(centre.Mode() == DisplayMode::Plot);
        QCOMPARE(ends.count(), 0);
    }

    void spectrumPageEndsTheComparison()
    {
        CentreDisplay centre(&m_settings);
        const QSignalSpy ends(&centre, &CentreDisplay::signalEndComparisonWanted);
        centre.SetComparing(true);
        centre.SetMode(DisplayMode::Plot);
        QCOMPARE(ends.count(), 1);
        QVERIFY(centre.Mode() == DisplayMode::General); // until it has ended
        centre.SetComparing(false);
        QVERIFY(centre.Mode() == DisplayMode::Plot);
    }

    void spectrumPageThatWasGivenUpInTheComparisonStaysAway()
    {
        CentreDisplay centre(&m_settings);
        centre.SetMode(DisplayMode::Plot);
        const QSignalSpy ends(&centre, &CentreDisplay::signalEndComparisonWanted);
        centre.SetComparing(true);
        centre.ShowSpectrum(false);
        QCOMPARE(ends.count(), 0);
        centre.SetComparing(false);
        QVERIFY(centre.Mode() == DisplayMode::General);
        centre.SetComparing(true);
        centre.ShowSpectrum(true);
        QCOMPARE(ends.count(), 1);
        centre.SetComparing(false);
        QVERIFY(centre.Mode() == DisplayMode::Plot);
    }

    void previewAreaIsAskedFor()
    {
        CentreDisplay centre(&m_settings);
        const QSignalSpy wanted(&centre, &CentreDisplay::signalPreviewAreaWanted);
        centre.CalculatePreviewArea();
        QCOMPARE(wanted.count(), 1);
    }

    void onlyAValidAreaIsToldOn()
    {
        CentreDisplay centre(&m_settings);
        centre.SetImageExpansionArea("400,700");
        QVERIFY(centre.ExpansionArea().isNull());
        centre.SetImageExpansionAreaFlag(true);
        QCOMPARE(centre.ExpansionArea(), QString("400,700"));
        centre.SetImageExpansionAreaFlag(false);
        QVERIFY(centre.ExpansionArea().isNull());
    }

private:
    QTemporaryDir m_folder;
    QSettings m_settings{m_folder.filePath("settings.ini"), QSettings::IniFormat};
};

GUARDED_TEST_MAIN(CentreDisplayTest)
#include "centredisplaytest.moc"
