// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelsmodel.h"
#include "guardedtest.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

class LevelsModelTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void StartsAsItIsOrAutomatic_data();
    void StartsAsItIsOrAutomatic();
    void EachDepthHasItsOwnSetting();
    void SettingsComeBackFromTheFile();
    void SenselessValuesInTheFileAreGuarded();
    void TellsOnlyOfChanges();
};

namespace {

constexpr LevelsSetting Wished = { LevelsMode::Manual, 120, 3000, 1.7 };

} // namespace

void LevelsModelTest::StartsAsItIsOrAutomatic_data()
{
    QTest::addColumn<int>("bitDepth");
    QTest::addColumn<bool>("isAutomatic");
    QTest::addColumn<int>("right");
    QTest::newRow("8 bits") << 8 << false << 255;
    QTest::newRow("12 bits") << 12 << true << 4095;
    QTest::newRow("16 bits") << 16 << true << 65535;
}

void LevelsModelTest::StartsAsItIsOrAutomatic()
{
    QFETCH(int, bitDepth);
    QFETCH(bool, isAutomatic);
    const LevelsSetting setting = LevelsModel().Setting(bitDepth);
    QVERIFY(setting.mode == (isAutomatic ? LevelsMode::Automatic : LevelsMode::FullRange));
    QCOMPARE(setting.left, 0);
    QTEST(setting.right, "right");
    QCOMPARE(setting.gamma, 1.0);
    QVERIFY(!LevelsModel().MarksSaturated());
}

void LevelsModelTest::EachDepthHasItsOwnSetting()
{
    LevelsModel model;
    model.SetSetting(12, Wished);
    QVERIFY(model.Setting(12) == Wished);
    QVERIFY(model.Setting(16) == LevelsSetting::Default(16));
    QVERIFY(model.Setting(8) == LevelsSetting::Default(8));
}

void LevelsModelTest::SettingsComeBackFromTheFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("settings.ini");
    {
        QSettings settings(path, QSettings::IniFormat);
        LevelsModel model(&settings);
        model.SetSetting(12, Wished);
        model.SetSetting(8, { LevelsMode::MinimumMaximum, 0, 255, 1.0 });
        model.slotSetMarksSaturated(true);
    }
    QSettings settings(path, QSettings::IniFormat);
    const LevelsModel model(&settings);
    QVERIFY(model.Setting(12) == Wished);
    QVERIFY(model.Setting(8).mode == LevelsMode::MinimumMaximum);
    QVERIFY(model.Setting(16) == LevelsSetting::Default(16));
    QVERIFY(model.MarksSaturated());
}

void LevelsModelTest::SenselessValuesInTheFileAreGuarded()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("settings.ini"), QSettings::IniFormat);
    settings.setValue("levels/12bit/mode", "by ear");
    settings.setValue("levels/12bit/left", 70000);
    settings.setValue("levels/12bit/right", "many");
    settings.setValue("levels/12bit/gamma", -3);
    const LevelsSetting setting = LevelsModel(&settings).Setting(12);
    QVERIFY(setting.mode == LevelsMode::Automatic);
    QCOMPARE(setting.left, 4094);
    QCOMPARE(setting.right, 4095);
    QCOMPARE(setting.gamma, 1.0);
}

void LevelsModelTest::TellsOnlyOfChanges()
{
    LevelsModel model;
    QSignalSpy changed(&model, SIGNAL(signalChanged()));
    model.SetSetting(12, Wished);
    QCOMPARE(changed.count(), 1);
    model.SetSetting(12, Wished);
    QCOMPARE(changed.count(), 1);
    model.slotSetMarksSaturated(false);
    QCOMPARE(changed.count(), 1);
    model.slotSetMarksSaturated(true);
    QCOMPARE(changed.count(), 2);
}

GUARDED_TEST_MAIN(LevelsModelTest)
#include "levelsmodeltest.moc"
