// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibrationdialog.h"
#include "fieldsource.h"
#include "openedpicture.h"
#include "picturedesk.h"
#include "plotpicture.h"
#include "spebytes.h"
#include "spectrographscenario.h"
#include "spectrumexport.h"
#include "spectrumpipeline.h"
#include "spectrumsettings.h"
#include "workspaceconfig.h"

#include <QAction>
#include <QDoubleSpinBox>
#include <QRegularExpression>

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

    /// Its band by hand is one of columns, and stays that.
    void anOpenedFileLeavesTheDirectionOfTheCamera()
    {
        m_workbench->Action("Curve")->trigger();
        m_workbench->Action("Vertical")->trigger();
        m_workbench->Action("Band by Hand")->trigger();
        Settings()->SetTop(580);
        Settings()->SetBottom(600);
        QTRY_COMPARE_WITH_TIMEOUT(Spectra()->Shown().band.bottom, 601, waitMs);
        OpenFile();
        QVERIFY(m_workbench->Action("Horizontal")->isChecked());
        QTRY_VERIFY(Plot() && Plot()->graph(0)->dataCount() == fileWidth);
        m_workbench->services.Config()->SetCameraView();
        QVERIFY(m_workbench->Action("Vertical")->isChecked());
        const quint64 frame = Spectra()->Shown().frameId;
        QTRY_VERIFY_WITH_TIMEOUT(Spectra()->Shown().frameId != frame, waitMs);
        QVERIFY(!Spectra()->Shown().raw.place.isHorizontal);
        QCOMPARE(Spectra()->Shown().band.top, 580);
        QCOMPARE(Spectra()->Shown().band.bottom, 601);
    }

    void theValueAxisNamesWhatIsDrawn()
    {
        m_workbench->Action("Curve")->trigger();
        m_workbench->Action("All Rows")->trigger();
        QTRY_COMPARE_WITH_TIMEOUT(Spectra()->Shown().raw.Count(), width, waitMs);
        QCOMPARE(Plot()->yAxis->label(), QString("Counts"));
        m_workbench->Action("Transmission")->trigger();
        QVERIFY(m_workbench->WaitForNextPicture());
        QCOMPARE(Plot()->yAxis->label(), QString("Counts")); // without a reference it is these
        m_workbench->Action("Take Reference Spectrum")->trigger();
        QTRY_COMPARE_WITH_TIMEOUT(Plot()->yAxis->label(), QString("Transmission [1/100 %]"), waitMs);
        QVERIFY(Note("corrections").endsWith("transmission in 1/100 %. Values below zero are drawn at zero."));
        SavePicture("transmission.png");
        const QString drawing = SpectrumExport(m_workbench.get(), m_folder->path()).Lines("Export Plot…", "plot.svg").join(' ');
        QVERIFY(drawing.contains("Transmission [1/100 %]"));
        QVERIFY(!drawing.contains("Counts"));
        m_workbench->Action("Absorbance")->trigger();
        QTRY_COMPARE_WITH_TIMEOUT(Plot()->yAxis->label(), QString("Absorbance [1/10000]"), waitMs);
        m_workbench->Action("Find Tracks")->trigger(); // of which there is no reference
        QTRY_COMPARE_WITH_TIMEOUT(Plot()->yAxis->label(), QString("Counts"), waitMs);
    }

    /// Not all of them are marked, at first.
    void thePanelTellsHowManyPeaksAreMarked()
    {
        QVERIFY(Note("peaks").isEmpty());
        m_workbench->Action("Curve with Peaks")->trigger();
        m_workbench->Action("All Rows")->trigger();
        const QRegularExpression form("^([0-9]+) of ([0-9]+) lines$");
        QTRY_VERIFY_WITH_TIMEOUT(form.match(Note("peaks")).captured(2).toInt() > 15, waitMs);
        QCOMPARE(form.match(Note("peaks")).captured(1).toInt(), 10);
        const PlotStyle before = Settings()->Style();
        PlotStyle all = before;
        all.peakNumber = 0;
        Settings()->SetStyle(all);
        const auto areAllMarked = [&] {
            const QRegularExpressionMatch note = form.match(Note("peaks"));
            return note.captured(1).toInt() > 15 && note.captured(1) == note.captured(2);
        };
        QTRY_VERIFY_WITH_TIMEOUT(areAllMarked(), waitMs);
        OpenFile();
        QTRY_COMPARE_WITH_TIMEOUT(Note("peaks"), QString("1 of 1 lines"), waitMs);
        m_workbench->services.Config()->SetCameraView();
        QTRY_VERIFY_WITH_TIMEOUT(areAllMarked(), waitMs);
    }

private:
    static constexpr int fileWidth = 400;

    /// A spectrum of one row with one line.
    void OpenFile()
    {
        SpeBytes spe(fileWidth, 1, 3, 1);
        for (int x = 0; x < fileWidth; ++x)
            spe.AppendRamp(1, x == 200 ? 3000 : 5);
        QFile file(m_folder->filePath("line.spe"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(spe.Bytes()) > 0);
        file.close();
        PictureDesk *desk = m_workbench->services.Desk();
        desk->Open({file.fileName()}, desk->MainPicture());
        QTRY_VERIFY(Settings()->IsImageShown());
    }

    /// The line of the panel that tells something; empty without one.
    static QString Note(const QString &key)
    {
        for (const PanelField &field : FieldSource::Find(FieldSource::SpectrumName)->Fields()) {
            if (field.key == key)
                return field.value.toString();
        }
        return QString();
    }

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
