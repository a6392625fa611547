// SPDX-License-Identifier: GPL-3.0-or-later
#include "usearea.h"
#include "guardedtest.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

class UseAreaTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void beginsWithPicturesAndAllAids()
    {
        const UseArea area(&m_settings);
        QCOMPARE(area.GetUseAreaType(), 0);
        QVERIFY(!area.IsSpectrumPagePresent());
        QVERIFY(area.IsAxisVisible() && area.IsCurveVisible() && area.IsColorCardVisible());
    }

    void spectrumAndBack()
    {
        UseArea area(&m_settings);
        const QSignalSpy changes(&area, &UseAreaManager::signalUpdateUseArea);
        area.slotSetSpectrum(true);
        QCOMPARE(area.GetUseAreaType(), 1);
        QVERIFY(area.IsSpectrumPagePresent());
        QVERIFY(UseArea::GetInstance()->IsSpectrumPagePresent());
        QCOMPARE(changes.count(), 1);
        area.slotSetSpectrum(true);
        QCOMPARE(changes.count(), 1);
        area.slotSetSpectrum(false);
        QCOMPARE(area.GetUseAreaType(), 0);
        QCOMPARE(changes.count(), 2);
    }

    void eachAidIsSwitchedByItself_data()
    {
        QTest::addColumn<int>("aid");
        QTest::newRow("rulers") << 0;
        QTest::newRow("curves") << 1;
        QTest::newRow("colour bar") << 2;
    }

    void eachAidIsSwitchedByItself()
    {
        QFETCH(int, aid);
        m_settings.clear();
        UseArea area(&m_settings);
        const QSignalSpy changes(&area, &UseAreaManager::signalSpectrumUIUpdate);
        void (UseArea::*const setters[])(bool) = {&UseArea::slotSetAxisVisible, &UseArea::slotSetCurveVisible,
                                                  &UseArea::slotSetColorCardVisible};
        (area.*setters[aid])(true);
        QCOMPARE(changes.count(), 0);
        (area.*setters[aid])(false);
        QCOMPARE(changes.count(), 1);
        QCOMPARE(area.IsAxisVisible(), aid != 0);
        QCOMPARE(area.IsCurveVisible(), aid != 1);
        QCOMPARE(area.IsColorCardVisible(), aid != 2);
    }

    void isKept()
    {
        m_settings.clear();
        {
            UseArea area(&m_settings);
            area.slotSetSpectrum(true);
            area.slotSetCurveVisible(false);
        }
        const UseArea area(&m_settings);
        QVERIFY(area.IsSpectrumPagePresent());
        QVERIFY(!area.IsCurveVisible());
        QVERIFY(area.IsAxisVisible());
    }

    /// Another program that shares the file switches nothing here: it would not be announced.
    void settingsAreReadAtTheStart()
    {
        m_settings.clear();
        UseArea area(&m_settings);
        m_settings.setValue("useArea/type", UseAreaManager::SpectrumUseArea);
        m_settings.setValue("useArea/axis", false);
        QVERIFY(!area.IsSpectrumPagePresent());
        QVERIFY(area.IsAxisVisible());
        const QSignalSpy changes(&area, &UseAreaManager::signalUpdateUseArea);
        area.slotSetSpectrum(true);
        QCOMPARE(changes.count(), 1);
    }

private:
    QTemporaryDir m_folder;
    QSettings m_settings{m_folder.filePath("settings.ini"), QSettings::IniFormat};
};

GUARDED_TEST_MAIN(UseAreaTest)
#include "useareatest.moc"
