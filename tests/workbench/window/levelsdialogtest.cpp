// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelsdialog.h"
#include "guardedtest.h"
#include "levelshistogram.h"
#include "levelsmodel.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

#include <cmath>

namespace {

LevelsReport ReportOf(int bitDepth, int left, int right, double gamma = 1.0)
{
    LevelsReport report;
    report.bitDepth = bitDepth;
    report.levels = {left, right, gamma};
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
        QCOMPARE(Left()->value(), 130);
        QCOMPARE(Right()->value(), 2750);
        QVERIFY(Left()->isReadOnly());
        QVERIFY(Right()->isReadOnly());
        m_dialog->slotReport(ReportOf(12, 140, 2800));
        QCOMPARE(Left()->value(), 140);
        QCOMPARE(Right()->value(), 2800);
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
        QCOMPARE(Left()->value(), 200);
        QCOMPARE(Right()->value(), 3000);
    }

    void blackStaysBelowWhite()
    {
        m_dialog->slotReport(ReportOf(8, 0, 255));
        Choose("Manual");
        Right()->setValue(100);
        Left()->setValue(180);
        QCOMPARE(Left()->value(), 180);
        QCOMPARE(Right()->value(), 181);
        QCOMPARE(m_model->Setting(8).right, 181);
    }

    void eachDepthShowsItsOwnSetting()
    {
        m_dialog->slotReport(ReportOf(16, 100, 60000));
        Choose("Full range");
        m_dialog->slotReport(ReportOf(12, 5, 4000));
        QCOMPARE(Mode()->currentText(), QString("Automatic (0.1 % to 99.9 %)"));
        QCOMPARE(Right()->maximum(), 4095);
        m_dialog->slotReport(ReportOf(16, 0, 65535));
        QCOMPARE(Mode()->currentText(), QString("Full range"));
        QCOMPARE(Right()->maximum(), 65535);
        QCOMPARE(Right()->value(), 65535);
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

    void histogramIsHighWhereSamplesAre()
    {
        LevelsReport report = ReportOf(8, 64, 192);
        report.histogram.fill(0);
        report.histogram[128] = 1000;
        LevelsHistogram strip;
        strip.resize(256, 100);
        strip.SetReport(report);
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
        QVERIFY(std::abs(LevelsHistogram::ColumnHeight(count, 99) - height) < 1e-9);
    }

private:
    QComboBox *Mode() const { return m_dialog->findChild<QComboBox *>("comboBoxLevelsMode"); }
    QSpinBox *Left() const { return m_dialog->findChild<QSpinBox *>("spinBoxLevelsLeft"); }
    QSpinBox *Right() const { return m_dialog->findChild<QSpinBox *>("spinBoxLevelsRight"); }
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
