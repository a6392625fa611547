// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibrationdialog.h"
#include "plotpicture.h"
#include "spectrographscenario.h"
#include "spectrumexport.h"
#include "spectrumpipeline.h"
#include "spectrumsettings.h"

#include <QAction>
#include <QDoubleSpinBox>

#include <qcustomplot.h>

#include <cmath>

namespace {

constexpr int width = 2048;
/// 390 nm in the first column and 930 nm in the last.
const SpectralCalibration straight({660, 270}, width);

} // namespace

/// The screen, the panel, the dialogs and the exported table tell a person the same.
class SpectrumAgreementScenario : public SpectrographScenario
{
    Q_OBJECT

private slots:
    /// Across the tracks there is no wavelength.
    void trackNumbersAreNoWavelengths()
    {
        m_workbench->Action("Curve")->trigger();
        m_workbench->Action("Find Tracks")->trigger();
        QTRY_COMPARE_WITH_TIMEOUT(Spectra()->Shown().tracks.size(), size_t(3), waitMs);
        m_workbench->Action("Vertical")->trigger();
        Settings()->SetCalibration(straight, Settings()->ShownFrame());
        QTRY_VERIFY_WITH_TIMEOUT(Plot() && Plot()->graph(0)->dataCount() == 3, waitMs);
        QTRY_COMPARE(Keys(), QVector<double>({1, 2, 3}));
        QCOMPARE(Plot()->xAxis->label(), QString("Track"));
        QTRY_COMPARE(Plot()->xAxis->range().upper, 3.0);
        SavePicture("across-tracks.png");

        // Along them, and of binned columns, it has one.
        m_workbench->Action("All Columns")->trigger();
        QCOMPARE(Plot()->xAxis->label(), QString("Wavelength [nm]"));
        QTRY_COMPARE_WITH_TIMEOUT(Plot()->graph(0)->dataCount(), width, waitMs);
        QTRY_VERIFY(std::abs(Keys().value(0) - 390) < 1e-6);
        m_workbench->Action("Show Tracks")->trigger();
        QTRY_COMPARE(Keys(), QVector<double>({1, 2, 3}));
        m_workbench->Action("Horizontal")->trigger();
        QTRY_COMPARE_WITH_TIMEOUT(Plot()->graph(0)->dataCount(), width, waitMs);
        QVERIFY(Plot()->xAxis->label() != "Track");
    }

    /// The assignment goes by them.
    void endsThatWereTypedAreShownAgain()
    {
        for (const bool isFirst : {true, false}) {
            CalibrationDialog dialog(m_workbench->services.Calibration(), [] { return Spectrum(); }, &m_workbench->window);
            auto *first = dialog.findChild<QDoubleSpinBox *>("spinBoxFirst");
            auto *last = dialog.findChild<QDoubleSpinBox *>("spinBoxLast");
            QCOMPARE(first->value(), isFirst ? 0.0 : 700.0);
            QCOMPARE(last->value(), isFirst ? 0.0 : 1100.0);
            first->setValue(700);
            last->setValue(1100);
        }
    }

private:
    SpectrumPipeline *Spectra() const { return m_workbench->services.Spectra(); }
    SpectrumSettings *Settings() const { return m_workbench->services.Spectrum(); }

    /// Of the curve, on the axis of the plot.
    QVector<double> Keys() const
    {
        QVector<double> keys;
        for (const QCPGraphData &sample : *Plot()->graph(0)->data())
            keys << sample.key;
        return keys;
    }

    /// For the eye, where a folder is given for it.
    void SavePicture(const QString &name) const
    {
        const QString folder = qEnvironmentVariable("SCENARIO_PICTURES");
        if (!folder.isEmpty())
            m_workbench->window.grab().save(folder + '/' + name);
    }
};

GUARDED_TEST_MAIN(SpectrumAgreementScenario)
#include "tst_spectrumagreement.moc"
