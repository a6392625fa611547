// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelsmodel.h"
#include "guardedtest.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <limits>

class LevelsModelTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void StartsAsItIsOrAutomatic_data();
    void StartsAsItIsOrAutomatic();
    void EachDepthHasItsOwnSetting();
    void SettingsComeBackFromTheFile();
    void SenselessValuesInTheFileAreGuarded();
    void LevelsFitTheirKind_data();
    void LevelsFitTheirKind();
    void TellsOnlyOfChanges();
};

namespace {

const LevelsSetting Wished = { LevelsMode::Manual, 120, 3000, 1.7 };

} // namespace

void LevelsModelTest::StartsAsItIsOrAutomatic_data()
{
    QTest::addColumn<int>("bitDepth");
    QTest::addColumn<bool>("isAutomatic");
    QTest::addColumn<double>("right");
    QTest::newRow("8 bits") << 8 << false << 255.0;
    QTest::newRow("12 bits") << 12 << true << 4095.0;
    QTest::newRow("16 bits") << 16 << true << 65535.0;
}

void LevelsModelTest::StartsAsItIsOrAutomatic()
{
    QFETCH(int, bitDepth);
    QFETCH(bool, isAutomatic);
    const LevelsSetting setting = LevelsModel().Setting(bitDepth);
    QVERIFY(setting.mode == (isAutomatic ? LevelsMode::Automatic : LevelsMode::FullRange));
    QCOMPARE(setting.left, 0.0);
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

    const LevelsSetting fine = { LevelsMode::Manual, -0.125, 1e-3, 1.0 };
    model.SetSetting(SampleKind(SampleKind::Floating, 32), fine);
    QVERIFY(model.Setting(SampleKind(SampleKind::Floating, 32)) == fine);
    QVERIFY(model.Setting(32).mode == LevelsMode::Automatic);
    QVERIFY(model.Setting(SampleKind(SampleKind::Floating, 64)).mode == LevelsMode::Automatic);
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
        model.SetSetting(SampleKind(SampleKind::Floating, 64), { LevelsMode::Manual, -1.0 / 3, 1e-9, 1.0 });
        model.SetSetting(SampleKind(SampleKind::Signed, 16), { LevelsMode::Manual, -300, -20, 1.0 });
        model.slotSetMarksSaturated(true);
    }
    QSettings settings(path, QSettings::IniFormat);
    const LevelsModel model(&settings);
    QVERIFY(model.Setting(12) == Wished);
    QVERIFY(model.Setting(8).mode == LevelsMode::MinimumMaximum);
    const LevelsSetting floating = model.Setting(SampleKind(SampleKind::Floating, 64));
    QCOMPARE(floating.left, -1.0 / 3);
    QCOMPARE(floating.right, 1e-9);
    QCOMPARE(model.Setting(SampleKind(SampleKind::Signed, 16)).left, -300.0);
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
    QCOMPARE(setting.left, 4094.0);
    QCOMPARE(setting.right, 4095.0);
    QCOMPARE(setting.gamma, 1.0);
}

void LevelsModelTest::LevelsFitTheirKind_data()
{
    using Range = QPair<double, double>;
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinite = std::numeric_limits<double>::infinity();
    constexpr double largest = std::numeric_limits<double>::max() / 2;
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("bits");
    QTest::addColumn<Range>("wished");
    QTest::addColumn<Range>("guarded");
    const auto row = [](const char *name, SampleKind::Number number, int bits, const Range &wished, const Range &guarded) {
        QTest::newRow(name) << int(number) << bits << wished << guarded;
    };
    row("12 bit", SampleKind::Unsigned, 12, {10, 20}, {10, 20});
    row("12 bit, beyond", SampleKind::Unsigned, 12, {-10, 5000}, {0, 4095});
    row("12 bit, not whole", SampleKind::Unsigned, 12, {1.4, 2.6}, {1, 3});
    row("12 bit, turned round", SampleKind::Unsigned, 12, {20, 10}, {20, 21});
    row("32 bit", SampleKind::Unsigned, 32, {4294967290.0, 1e10}, {4294967290.0, 4294967295.0});
    row("signed", SampleKind::Signed, 16, {-20000, -10}, {-20000, -10});
    row("signed, beyond", SampleKind::Signed, 16, {-40000, 40000}, {-32768, 32767});
    row("signed, no room above", SampleKind::Signed, 8, {200, 300}, {126, 127});
    row("floating", SampleKind::Floating, 32, {-0.25, 1e-7}, {-0.25, 1e-7});
    row("floating, equal", SampleKind::Floating, 32, {2, 2}, {2, 2.0000002});
    row("floating, at nothing", SampleKind::Floating, 64, {0, 0}, {0, 1e-30});
    row("floating, no numbers", SampleKind::Floating, 64, {nan, nan}, {0, 1});
    row("floating, infinite", SampleKind::Floating, 64, {-infinite, infinite}, {-largest, largest});
}

void LevelsModelTest::LevelsFitTheirKind()
{
    using Range = QPair<double, double>;
    QFETCH(int, number);
    QFETCH(int, bits);
    QFETCH(Range, wished);
    QFETCH(Range, guarded);
    const SampleKind kind(SampleKind::Number(number), bits);
    LevelsModel model;
    model.SetSetting(kind, { LevelsMode::Manual, wished.first, wished.second, 1.0 });
    QCOMPARE(model.Setting(kind).left, guarded.first);
    QCOMPARE(model.Setting(kind).right, guarded.second);
    QVERIFY(model.Setting(kind).left < model.Setting(kind).right);
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
