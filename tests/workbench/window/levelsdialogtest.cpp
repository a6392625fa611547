// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelsdialog.h"
#include "guardedtest.h"
#include "histogramview.h"
#include "levelbox.h"
#include "levelscurve.h"
#include "levelsmodel.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>

#include <cmath>

namespace {

LevelsReport ReportOf(int bitDepth, int left, int right, double gamma = 1.0)
{
    LevelsReport report;
    report.kind = bitDepth;
    report.levels = {double(left), double(right)};
    report.gamma = gamma;
    report.axis = {-0.5, (1 << bitDepth) - 0.5};
    report.histogram = QVector<qint64>(LevelsReport::HistogramColumns, 7);
    return report;
}

} // namespace

class LevelsDialogTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_model = std::make_unique<LevelsModel>();
        m_dialog = std::make_unique<LevelsDialog>(m_model.get(), nullptr);
    }

    void cleanup() override
    {
        m_dialog.reset();
        m_model.reset();
        EndGuard();
    }

    void nothingCanBeSetWithoutAPicture()
    {
        QVERIFY(!Mode()->isEnabled());
        QVERIFY(!Left()->isEnabled());
        QVERIFY(!Gamma()->isEnabled());
        m_dialog->slotReport(ReportOf(12, 130, 2750));
        QVERIFY(Mode()->isEnabled());
        Choose("Manual");
        m_dialog->slotNoReport("No picture is open.");
        QVERIFY(!Mode()->isEnabled());
        QVERIFY(!Left()->isEnabled());
        QVERIFY(!Gamma()->isEnabled());
        QCOMPARE(Depth()->text(), QString("No picture is open."));
    }

    void presentLevelsAreSeenInEveryMode()
    {
        m_dialog->slotReport(ReportOf(12, 130, 2750));
        QCOMPARE(Depth()->text(), QString("12 bit samples, 0 to 4095"));
        QCOMPARE(Mode()->currentText(), QString("Automatic (0.1 % to 99.9 %)"));
        QCOMPARE(Left()->value(), 130.0);
        QCOMPARE(Right()->value(), 2750.0);
        QVERIFY(Left()->isReadOnly());
        QVERIFY(Right()->isReadOnly());
        m_dialog->slotReport(ReportOf(12, 140, 2800));
        QCOMPARE(Left()->value(), 140.0);
        QCOMPARE(Right()->value(), 2800.0);
        QVERIFY(m_model->Setting(12) == LevelsSetting::Default(12));
    }

    void manualStartsFromWhatIsSeenAndIsEdited()
    {
        m_dialog->slotReport(ReportOf(12, 130, 2750));
        Choose("Manual");
        QVERIFY(m_model->Setting(12) == (LevelsSetting{LevelsMode::Manual, 130, 2750, 1.0}));
        QVERIFY(!Left()->isReadOnly());
        QVERIFY(!Right()->isReadOnly());
        Left()->setValue(200);
        Right()->setValue(3000);
        Gamma()->setValue(1.8);
        QVERIFY(m_model->Setting(12) == (LevelsSetting{LevelsMode::Manual, 200, 3000, 1.8}));
        // A report that is still on its way does not take the numbers back.
        m_dialog->slotReport(ReportOf(12, 130, 2750));
        QCOMPARE(Left()->value(), 200.0);
        QCOMPARE(Right()->value(), 3000.0);
    }

    void blackStaysBelowWhite()
    {
        m_dialog->slotReport(ReportOf(8, 0, 255));
        Choose("Manual");
        Right()->setValue(100);
        Left()->setValue(180);
        QCOMPARE(Left()->value(), 180.0);
        QCOMPARE(Right()->value(), 181.0);
        QCOMPARE(m_model->Setting(8).right, 181.0);
    }

    void eachDepthShowsItsOwnSetting()
    {
        m_dialog->slotReport(ReportOf(16, 100, 60000));
        Choose("Full range");
        m_dialog->slotReport(ReportOf(12, 5, 4000));
        QCOMPARE(Mode()->currentText(), QString("Automatic (0.1 % to 99.9 %)"));
        QCOMPARE(Right()->maximum(), 4095.0);
        m_dialog->slotReport(ReportOf(16, 0, 65535));
        QCOMPARE(Mode()->currentText(), QString("Full range"));
        QCOMPARE(Right()->maximum(), 65535.0);
        QCOMPARE(Right()->value(), 65535.0);
    }

    void gammaHoldsInEveryMode()
    {
        m_dialog->slotReport(ReportOf(12, 5, 4000));
        Gamma()->setValue(2.2);
        QVERIFY(m_model->Setting(12).mode == LevelsMode::Automatic);
        QCOMPARE(m_model->Setting(12).gamma, 2.2);
        Choose("Minimum and maximum");
        QVERIFY(m_model->Setting(12).mode == LevelsMode::MinimumMaximum);
        QCOMPARE(m_model->Setting(12).gamma, 2.2);
    }

    void resetBringsTheDefaultsOfTheDepth()
    {
        m_dialog->slotReport(ReportOf(8, 0, 255));
        Choose("Minimum and maximum");
        Gamma()->setValue(3.0);
        for (QPushButton *button : m_dialog->findChildren<QPushButton *>()) {
            if (button->text().contains("Reset"))
                button->click();
        }
        QVERIFY(m_model->Setting(8) == LevelsSetting::Default(8));
        QCOMPARE(Mode()->currentText(), QString("Full range"));
        QCOMPARE(Gamma()->value(), 1.0);
    }

    void levelsAreInTheUnitsOfTheSamples_data()
    {
        using Range = QPair<double, double>;
        QTest::addColumn<int>("number");
        QTest::addColumn<int>("bits");
        QTest::addColumn<Range>("levels"); // and samples
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("leftText");
        QTest::addColumn<QString>("rightText");
        QTest::addColumn<bool>("hasFullRange");
        const auto row = [](const char *name, SampleKind::Number number, int bits, const Range &levels,
                            const QStringList &texts) {
            QTest::newRow(name) << int(number) << bits << levels << texts.at(0) << texts.at(1) << texts.at(2)
                                << (number != SampleKind::Floating);
        };
        row("signed", SampleKind::Signed, 16, {-1200, 35}, {"16 bit samples, -32768 to 32767", "-1200", "35"});
        row("32 bit", SampleKind::Unsigned, 32, {12, 4294967295.0}, {"32 bit samples, 0 to 4294967295", "12", "4294967295"});
        row("fractions", SampleKind::Floating, 32, {-0.0123456, 0.98765432}, {"32 bit floating point samples", "-0.01235", "0.9877"});
        row("tiny", SampleKind::Floating, 64, {0, 3.25e-12}, {"64 bit floating point samples", "0", "3.25e-12"});
        row("large", SampleKind::Floating, 64, {0, 1.5e22}, {"64 bit floating point samples", "0", "1.5e+22"});
        row("a small part of a large number", SampleKind::Floating, 64, {1000000.25, 1000000.5},
            {"64 bit floating point samples", "1000000.25", "1000000.5"});
    }

    void levelsAreInTheUnitsOfTheSamples()
    {
        using Range = QPair<double, double>;
        QFETCH(int, number);
        QFETCH(int, bits);
        QFETCH(Range, levels);
        QFETCH(QString, text);
        QFETCH(QString, leftText);
        QFETCH(QString, rightText);
        QFETCH(bool, hasFullRange);
        const SampleKind kind(SampleKind::Number(number), bits);
        LevelsReport report = ReportOf(8, 0, 255);
        report.kind = kind;
        report.levels = report.axis = {levels.first, levels.second};
        m_dialog->slotReport(report);
        QCOMPARE(Depth()->text(), text);
        QCOMPARE(Left()->text(), leftText);
        QCOMPARE(Right()->text(), rightText);
        const int fullRange = Mode()->findText("Full range");
        QCOMPARE(Mode()->model()->flags(Mode()->model()->index(fullRange, 0)).testFlag(Qt::ItemIsEnabled), hasFullRange);

        Choose("Manual"); // nothing is cut off
        QCOMPARE(m_model->Setting(kind).left, levels.first);
        QCOMPARE(m_model->Setting(kind).right, levels.second);
        QTest::keyClick(Right(), Qt::Key_Return);
        QCOMPARE(m_model->Setting(kind).right, levels.second);
    }

    void aTypedLevelIsTaken_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<double>("level");
        QTest::newRow("fraction") << int(SampleKind::Floating) << "-0.125" << -0.125;
        QTest::newRow("power of ten") << int(SampleKind::Floating) << "-2.5e-3" << -0.0025;
        QTest::newRow("unfinished") << int(SampleKind::Floating) << "-2e" << -1.0;
        QTest::newRow("no number") << int(SampleKind::Floating) << "nan" << -1.0;
        QTest::newRow("whole") << int(SampleKind::Signed) << "-17" << -17.0;
        QTest::newRow("not whole") << int(SampleKind::Signed) << "-1.5" << -1.0;
    }

    void aTypedLevelIsTaken()
    {
        QFETCH(int, number);
        QFETCH(QString, typed);
        QFETCH(double, level);
        const SampleKind kind(SampleKind::Number(number), 32);
        LevelsReport report = ReportOf(8, 0, 255);
        report.kind = kind;
        report.levels = report.axis = {-1, 3};
        m_dialog->slotReport(report);
        Choose("Manual");
        Left()->selectAll();
        QTest::keyClicks(Left(), typed);
        QCOMPARE(m_model->Setting(kind).left, -1.0); // not while it is typed
        QTest::keyClick(Left(), Qt::Key_Return);
        QCOMPARE(m_model->Setting(kind).left, level);
    }

    void stepsSuitTheRange_data()
    {
        QTest::addColumn<double>("left");
        QTest::addColumn<double>("right");
        QTest::addColumn<double>("step");
        QTest::newRow("fractions") << 0.0 << 1.0 << 0.001;
        QTest::newRow("thousands") << -1000.0 << 1000.0 << 10.0;
        QTest::newRow("tiny") << 0.0 << 4e-9 << 1e-11;
        QTest::newRow("one value") << 5.0 << 5.0 << 0.01;
    }

    void stepsSuitTheRange()
    {
        QFETCH(double, left);
        QFETCH(double, right);
        QFETCH(double, step);
        QCOMPARE(LevelBox::StepFor({left, right}), step);
        LevelBox box;
        box.SetKind(SampleKind(SampleKind::Floating, 32), {left, right});
        box.setValue(left);
        box.stepUp();
        QCOMPARE(box.value(), left + step);
    }

    void levelsBeyondTheSamplesAreSeenInTheHistogram()
    {
        LevelsReport report = ReportOf(8, 0, 255);
        report.kind = SampleKind(SampleKind::Floating, 32);
        report.axis = {0, 1};
        report.levels = {-1, 3}; // the samples take the second quarter
        HistogramView strip;
        strip.resize(256, 100);
        strip.SetCurve(LevelsCurve(report));
        QPalette palette = strip.palette();
        palette.setColor(QPalette::Base, Qt::black);
        palette.setColor(QPalette::Mid, Qt::green);
        palette.setColor(QPalette::Highlight, Qt::red);
        strip.setPalette(palette);
        const QImage picture = strip.grab().toImage();
        QCOMPARE(picture.pixelColor(50, 20), QColor(Qt::black));
        QCOMPARE(picture.pixelColor(80, 20), QColor(Qt::green));
        QCOMPARE(picture.pixelColor(120, 20), QColor(Qt::green));
        QCOMPARE(picture.pixelColor(140, 20), QColor(Qt::black));
    }

    void histogramIsHighWhereSamplesAre()
    {
        LevelsReport report = ReportOf(8, 64, 192);
        report.histogram.fill(0);
        report.histogram[128] = 1000;
        HistogramView strip;
        strip.resize(256, 100);
        strip.SetCurve(LevelsCurve(report));
        QPalette palette = strip.palette();
        palette.setColor(QPalette::Base, Qt::black);
        palette.setColor(QPalette::Mid, Qt::green);
        palette.setColor(QPalette::Highlight, Qt::red);
        strip.setPalette(palette);
        const QImage picture = strip.grab().toImage();
        QCOMPARE(picture.pixelColor(128, 20), QColor(Qt::green)); // the one full column
        QCOMPARE(picture.pixelColor(100, 20), QColor(Qt::black));
        // The marks of the levels lie on the columns of 64 and 192; their dashes start at the top.
        QVERIFY(picture.pixelColor(64, 1).red() > 100);
        QVERIFY(picture.pixelColor(192, 2).red() > 100);
        QVERIFY(picture.pixelColor(40, 98).red() > 100); // the grey is black left of them
    }

    void columnHeightIsLogarithmic_data()
    {
        QTest::addColumn<qint64>("count");
        QTest::addColumn<double>("height");
        QTest::newRow("none") << qint64(0) << 0.0;
        QTest::newRow("all") << qint64(99) << 1.0;
        QTest::newRow("a tenth") << qint64(9) << 0.5;
    }

    void columnHeightIsLogarithmic()
    {
        QFETCH(qint64, count);
        QFETCH(double, height);
        QVERIFY(std::abs(HistogramView::ColumnHeight(count, 99) - height) < 1e-9);
    }

private:
    QComboBox *Mode() const { return m_dialog->findChild<QComboBox *>("comboBoxLevelsMode"); }
    LevelBox *Left() const { return m_dialog->findChild<LevelBox *>("spinBoxLevelsLeft"); }
    LevelBox *Right() const { return m_dialog->findChild<LevelBox *>("spinBoxLevelsRight"); }
    QDoubleSpinBox *Gamma() const { return m_dialog->findChild<QDoubleSpinBox *>("doubleSpinBoxLevelsGamma"); }
    QLabel *Depth() const { return m_dialog->findChild<QLabel *>("labelLevelsDepth"); }

    /// As a user does: by the keyboard, so that the box tells of it.
    void Choose(const QString &mode)
    {
        const int steps = Mode()->findText(mode) - Mode()->currentIndex();
        for (int i = 0; i < qAbs(steps); ++i)
            QTest::keyClick(Mode(), steps > 0 ? Qt::Key_Down : Qt::Key_Up);
    }

    std::unique_ptr<LevelsModel> m_model;
    std::unique_ptr<LevelsDialog> m_dialog;
};

GUARDED_TEST_MAIN(LevelsDialogTest)
#include "levelsdialogtest.moc"
