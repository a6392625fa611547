// SPDX-License-Identifier: GPL-3.0-or-later
#include "adjustmentfields.h"
#include "guardedtest.h"
#include "histogramcurve.h"
#include "levelsmodel.h"
#include "viewcodes.h"

#include <QSignalSpy>

#include <memory>

namespace {

LevelsReport Report(const SampleKind &kind, double left, double right)
{
    LevelsReport report;
    report.kind = kind;
    report.levels = {left, right};
    report.axis = kind.IsWhole() ? SampleRange{kind.Least() - 0.5, kind.Most() + 0.5} : SampleRange{left, right};
    report.histogram = {7, 0, 3};
    return report;
}

} // namespace

/// How the panel "Adjustment" sets what is seen of a picture.
class AdjustmentFieldsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_model = std::make_unique<LevelsModel>();
        m_fields = std::make_unique<AdjustmentFields>(FieldSource::CameraAdjustmentName, m_model.get());
    }

    void cleanup() override
    {
        m_fields.reset();
        m_model.reset();
        EndGuard();
    }

    void withoutPictureNothingOfItCanBeSet()
    {
        m_fields->slotNoReport("There is no live picture.");
        QCOMPARE(Field("kind").value.toString(), QString("There is no live picture."));
        for (const char *key : {"mode", "black", "white", "gamma", "reset", "flipHorizontal", "flipVertical", "rotate"})
            QVERIFY2(!Field(key).isEnabled, key);
        QVERIFY(Field("samples").value.value<HistogramCurve>().counts.isEmpty());
        QSignalSpy turns(m_fields.get(), SIGNAL(signalTurnWanted(int)));
        const LevelsSetting before = m_model->Setting(8);
        m_fields->Set("gamma", 2.0);
        m_fields->Set("rotate", QVariant());
        QVERIFY(m_model->Setting(8) == before);
        QCOMPARE(turns.count(), 0);
        QVERIFY(Field("palette").isEnabled);
    }

    void showsTheHistogramWithTheLevels()
    {
        m_fields->slotReport(Report(12, 100, 3000));
        const auto curve = Field("samples").value.value<HistogramCurve>();
        QCOMPARE(curve.counts, QVector<qint64>({7, 0, 3}));
        QVERIFY(curve.hasLevels);
        QCOMPARE(curve.left, 100.0);
        QCOMPARE(curve.right, 3000.0);
        QCOMPARE(Field("kind").value.toString(), QString("12 bit samples, 0 to 4095"));
        QCOMPARE(Field("black").value.toDouble(), 100.0);
        QVERIFY(!Field("black").isEnabled); // 12 bits are automatic
    }

    void manualLevelsStartFromWhatIsSeen()
    {
        m_fields->slotReport(Report(12, 100, 3000));
        m_fields->Set("mode", int(LevelsMode::Manual));
        const LevelsSetting setting = m_model->Setting(12);
        QVERIFY(setting.mode == LevelsMode::Manual);
        QCOMPARE(setting.left, 100.0);
        QCOMPARE(setting.right, 3000.0);
        QVERIFY(Field("white").isEnabled);
        QCOMPARE(Field("white").maximum, 4095.0);
        m_fields->Set("white", 2000);
        m_fields->Set("black", 50);
        m_fields->Set("gamma", 1.8);
        QCOMPARE(m_model->Setting(12).right, 2000.0);
        QCOMPARE(m_model->Setting(12).left, 50.0);
        QCOMPARE(m_model->Setting(12).gamma, 1.8);
        m_fields->Set("reset", QVariant());
        QVERIFY(m_model->Setting(12) == LevelsSetting::Default(12));
    }

    void valuesOutsideAreMovedToTheLimit()
    {
        m_fields->slotReport(Report(8, 0, 255));
        m_fields->Set("mode", int(LevelsMode::Manual));
        m_fields->Set("white", 9999);
        m_fields->Set("gamma", 99);
        QCOMPARE(Field("white").value.toDouble(), 255.0);
        QCOMPARE(Field("gamma").value.toDouble(), 10.0);
        m_fields->Set("mode", 77);
        QVERIFY(m_model->Setting(8).mode == LevelsMode::FullRange);
    }

    void fractionsHaveDecimalsAndNoFullRange()
    {
        const SampleKind kind(SampleKind::Floating, 32);
        m_fields->slotReport(Report(kind, 0.001, 0.003));
        QCOMPARE(Field("mode").choices.size(), 3);
        m_fields->Set("mode", int(LevelsMode::Manual));
        QVERIFY(Field("black").decimals >= 5);
        QVERIFY(Field("black").minimum < 0.001 && Field("black").minimum > -1);
        m_fields->Set("black", 0.0015);
        QCOMPARE(m_model->Setting(kind).left, 0.0015);
        QCOMPARE(Field("black").value.toDouble(), 0.0015);
    }

    void paletteAndMarkAreThoseOfTheModel()
    {
        m_fields->Set("palette", Palette::Names().indexOf("viridis"));
        QCOMPARE(m_model->GetPalette().Name(), QString("viridis"));
        m_fields->Set("saturated", true);
        QVERIFY(m_model->MarksSaturated());
        QSignalSpy changes(m_fields.get(), SIGNAL(signalChanged()));
        m_model->SetPalette(Palette("magma")); // from the menu
        QVERIFY(changes.count() > 0);
        QCOMPARE(Field("palette").value.toInt(), Palette::Names().indexOf("magma"));
    }

    void turnsAreAskedFor_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("type");
        QTest::newRow("flip left to right") << "flipHorizontal" << int(FlipHorizontal);
        QTest::newRow("flip top to bottom") << "flipVertical" << int(FlipVertical);
        QTest::newRow("rotate") << "rotate" << int(RotateBy90);
    }

    void turnsAreAskedFor()
    {
        QFETCH(QString, key);
        QFETCH(int, type);
        m_fields->slotReport(Report(8, 0, 255));
        QSignalSpy turns(m_fields.get(), SIGNAL(signalTurnWanted(int)));
        m_fields->Set(key, QVariant());
        QCOMPARE(turns.count(), 1);
        QCOMPARE(turns.at(0).at(0).toInt(), type);
    }

    void reportsAreWantedWhileItIsSeen()
    {
        QSignalSpy watched(m_fields.get(), SIGNAL(signalWatched(bool)));
        m_fields->SetWatched(true);
        m_fields->SetWatched(false);
        QCOMPARE(watched.count(), 2);
        QVERIFY(watched.at(0).at(0).toBool() && !watched.at(1).at(0).toBool());
    }

private:
    PanelField Field(const QString &key) const
    {
        for (const PanelField &field : m_fields->Fields()) {
            if (field.key == key)
                return field;
        }
        return PanelField();
    }

    std::unique_ptr<LevelsModel> m_model;
    std::unique_ptr<AdjustmentFields> m_fields;
};

GUARDED_TEST_MAIN(AdjustmentFieldsTest)
#include "adjustmentfieldstest.moc"
