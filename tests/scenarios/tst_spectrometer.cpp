// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibrationmodel.h"
#include "camerasession.h"
#include "fieldsource.h"
#include "liveorientation.h"
#include "openedpicture.h"
#include "picturedesk.h"
#include "plotpicture.h"
#include "recordingdesk.h"
#include "scenariotest.h"
#include "spectrographoptics.h"
#include "spectrographscene.h"
#include "spectrumexport.h"
#include "spectrumpipeline.h"
#include "spectrumsettings.h"
#include "stylesheet.h"
#include "usearea.h"
#include "viewcodes.h"
#include "workspaceconfig.h"

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableWidget>
#include <qcustomplot.h>

#include <cmath>
#include <memory>

namespace {

constexpr QSize sensor(2048, 2048);
constexpr int waitMs = 20000;
constexpr double faintExposureUs = 2000; ///< nothing is cut off

} // namespace

/// A person puts a lamp before a spectrometer, calibrates it, and takes the spectrum home.
class SpectrometerScenario : public ScenarioTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_folder = std::make_unique<QTemporaryDir>();
        Start();
    }

    void cleanup() override
    {
        m_workbench.reset();
        QVERIFY(CameraSession::WaitForTeardown(waitMs));
        EndGuard();
    }

    void fromTheLampToTheCalibratedTable()
    {
        ShowLamp();
        m_workbench->Action("Calibrate…")->trigger();
        m_dialog = m_workbench->window.findChild<QDialog *>("CalibrationDialog");
        QVERIFY(m_dialog && QTest::qWaitForWindowExposed(m_dialog));
        QVERIFY(!Button("Apply")->isEnabled());
        QVERIFY(Label("labelVerdict").contains("at least 4 points"));
        Button("Assign")->click();
        QTRY_VERIFY_WITH_TIMEOUT(Button("Apply")->isEnabled(), waitMs);
        CheckAgainstTheTruth();
        PickOneAgainByHand();

        Button("Apply")->click();
        QVERIFY(Label("labelVerdict").endsWith("It is applied."));
        const QAbstractItemModel *page = FieldSource::Find(FieldSource::CalibrationName)->Table();
        QCOMPARE(page->rowCount(), m_workbench->services.Calibration()->Points().size());
        QVERIFY(std::abs(page->index(0, 3).data(Qt::UserRole).toDouble()) < 0.1);
        QCOMPARE(Plot()->xAxis->label(), QString("Wavelength [nm]"));
        QTRY_VERIFY(std::abs(Plot()->graph(0)->data()->at(0)->key - 390) < 1);
        QTRY_VERIFY(std::abs(Plot()->xAxis->range().upper - 930) < 2);
        m_dialog->close();

        CheckTable(Exporting().Lines("Export Spectrum…", "lamp.csv"));
        Exporting().CheckPlots(Plot());
        m_workbench->Action("Wavenumbers")->trigger();
        QCOMPARE(Plot()->xAxis->label(), QString("Wavenumber [1/cm]"));
    }

    void whatTheFitIsWorthIsSeenAndItCanBeTakenAway()
    {
        ShowLamp();
        m_workbench->Action("Calibrate…")->trigger();
        m_dialog = m_workbench->window.findChild<QDialog *>("CalibrationDialog");
        QVERIFY(m_dialog && QTest::qWaitForWindowExposed(m_dialog));
        QVERIFY(!Button("None")->isEnabled());
        Button("Assign")->click();
        QTRY_VERIFY_WITH_TIMEOUT(Button("Apply")->isEnabled(), waitMs);
        const CalibrationModel *model = m_workbench->services.Calibration();
        const CalibrationFit &fit = model->Fit();
        const QCPGraph *residuals = m_dialog->findChild<QCustomPlot *>("calibrationPlot")->graph(3);
        QCOMPARE(residuals->dataCount(), model->Points().size());
        for (int i = 0; i < model->Points().size(); ++i) {
            QCOMPARE(residuals->data()->at(i)->key, model->Points()[i].pixel);
            QCOMPARE(residuals->data()->at(i)->value, fit.residualsPixel[i]);
        }
        const QString verdict = QString("Residual %1 pixels (%2 nm) rms; leaving one out: %3 pixels.")
                                    .arg(fit.rmsPixel, 0, 'f', 3).arg(fit.rmsNm, 0, 'f', 4).arg(fit.leaveOneOutPixel, 0, 'f', 3);
        const AssignedLines &assigned = model->Assigned();
        QCOMPARE(Label("labelVerdict"),
                 QString("%1 Left out: peaks broader or narrower than a line: %2, two lines in one: %3, off the curve: %4.")
                     .arg(verdict).arg(assigned.oddWidths).arg(assigned.blends).arg(assigned.outliers));
        QVERIFY(assigned.oddWidths + assigned.blends + assigned.outliers > 0);

        Button("Apply")->click();
        QCOMPARE(Plot()->xAxis->label(), QString("Wavelength [nm]"));
        QVERIFY(Button("None")->isEnabled());
        Button("None")->click();
        QCOMPARE(Label("labelVerdict"), verdict); // not applied any more
        QVERIFY(!Button("None")->isEnabled());
        QCOMPARE(Plot()->xAxis->label(), QString("Pixel Number"));
        QVERIFY(m_workbench->services.Spectrum()->Calibration().IsNull());
        m_dialog->close();
    }

    void theCalibrationIsThereAtTheNextStart()
    {
        CalibrateByLamp();
        const QVector<CalibrationPoint> points = m_workbench->services.Calibration()->Points();
        m_workbench.reset();
        QVERIFY(CameraSession::WaitForTeardown(waitMs));
        Start();
        QCOMPARE(m_workbench->services.Calibration()->AppliedPoints(), points);
        ShowLamp();
        QTRY_COMPARE(Plot()->xAxis->label(), QString("Wavelength [nm]"));
    }

    void theCalibrationFollowsAMirroredPictureAndARegion()
    {
        CalibrateByLamp();
        WaitForNextSpectrum();
        QVERIFY2(std::abs(GreenLine() - 546.074) < 0.3, qPrintable(QString::number(GreenLine())));

        m_workbench->services.LivePosition()->slotSetMirrorRotate(FlipHorizontal);
        double last = 0; // with the first spectrum of the mirrored picture
        QTRY_VERIFY_WITH_TIMEOUT(m_workbench->services.Spectrum()->Calculate(sensor.width() - 1, last) && std::abs(last - 390) < 1, waitMs);
        WaitForNextSpectrum();
        QVERIFY2(std::abs(GreenLine() - 546.074) < 0.3, qPrintable(QString::number(GreenLine())));

        m_workbench->link.SetRegion(QRect(512, 0, 1024, sensor.height()));
        QTRY_COMPARE_WITH_TIMEOUT(m_workbench->services.Spectrum()->ShownAxis().Width(), 1024, waitMs);
        QTRY_VERIFY_WITH_TIMEOUT(Plot()->graph(0)->dataCount() == 1024 && std::abs(GreenLine() - 546.074) < 0.3, waitMs);

        m_workbench->services.LivePosition()->slotSetMirrorRotate(RotateBy90);
        QTRY_VERIFY_WITH_TIMEOUT(m_workbench->StatusText().startsWith("The calibration was made along the other side"), waitMs);
        QCOMPARE(Plot()->xAxis->label(), QString("Pixel Number"));
    }

    /// What was calibrated then counts, whatever is in use now.
    void aRecordingIsOpenedWithItsCalibration()
    {
        CalibrateByLamp();
        const QString path = m_folder->filePath("lamp.tif");
        QVERIFY(RecordOneFrame(path));
        m_workbench->services.Calibration()->TakeAway();

        PictureDesk *desk = m_workbench->services.Desk();
        desk->Open({path}, desk->MainPicture());
        QTRY_VERIFY(Plot() && m_workbench->services.Spectrum()->IsImageShown() && Plot()->graph(0)->dataCount() == sensor.width());
        QTRY_COMPARE(Plot()->xAxis->label(), QString("Wavelength [nm]"));
        QVERIFY(std::abs(Plot()->graph(0)->data()->at(0)->key - 390) < 1);
        m_workbench->services.Config()->SetCameraView(); // a live picture leaves with its page
    }

    /// Along its columns it has nanometres, along its rows it is a picture like any other.
    void aRecordingOfATurnedSpectrumIsOpenedWithItsCalibration()
    {
        CalibrateByLamp();
        m_workbench->services.LivePosition()->slotSetMirrorRotate(RotateBy90);
        SpectrumSettings *spectrum = m_workbench->services.Spectrum();
        spectrum->SetHorizontal(false);
        double first = 0;
        QTRY_VERIFY_WITH_TIMEOUT(spectrum->Calculate(0, first) && std::abs(first - 390) < 1, waitMs);
        const QString path = m_folder->filePath("turned.tif");
        QVERIFY(RecordOneFrame(path));
        m_workbench->services.Calibration()->TakeAway();

        PictureDesk *desk = m_workbench->services.Desk();
        desk->Open({ path }, desk->MainPicture());
        QTRY_VERIFY_WITH_TIMEOUT(
            Plot() && spectrum->IsImageShown() && Plot()->graph(0)->dataCount() == sensor.width(), waitMs);
        QTRY_COMPARE(Plot()->xAxis->label(), QString("Wavelength [nm]"));
        QCOMPARE(Plot()->graph(0)->data()->at(0)->key, first);
        spectrum->SetHorizontal(true);
        QTRY_COMPARE(Plot()->xAxis->label(), QString("Pixel Number"));
        QTRY_COMPARE(Plot()->graph(0)->dataCount(), sensor.height());
        QCOMPARE(Plot()->graph(0)->data()->at(5)->key, 5.0);
        m_workbench->services.Config()->SetCameraView(); // a live picture leaves with its page
    }

    void thePanelShowsTheCurveToo()
    {
        QVERIFY(!m_workbench->services.GetUseArea()->IsSpectrumPagePresent());
        FieldSource::Find(FieldSource::SpectrumName)->Set("mode", int(DisplayMode::Plot));
        QVERIFY(m_workbench->services.GetUseArea()->IsSpectrumPagePresent());
        QTRY_VERIFY(Plot());
        QVERIFY(m_workbench->Action("Curve")->isChecked());
    }

    void withoutASpectrumThereIsAWord()
    {
        m_workbench->Action("Export Spectrum…")->trigger();
        QCOMPARE(m_workbench->StatusText(),
                 QString("There is no spectrum to export: switch vertical binning or tracks on, or open a spectrum."));
        m_workbench->Action("Export Plot…")->trigger();
        QCOMPARE(m_workbench->StatusText(), QString("There is no plot to export: show the curve or the tracks in 3D first."));
        m_workbench->Action("Calibrate…")->trigger();
        m_dialog = m_workbench->window.findChild<QDialog *>("CalibrationDialog");
        QVERIFY(Label("labelSpectrum").startsWith("There is no spectrum:"));
        QVERIFY(!Button("Assign")->isEnabled());
        m_dialog->close();
    }

    void tracksAreShownIn3DAndExported()
    {
        m_workbench->link.SetScene(SpectrographScene::SceneName());
        QVERIFY(m_workbench->WaitForNextPicture());
        m_workbench->Action("Tracks in 3D")->trigger();
        m_workbench->Action("Find Tracks")->trigger();
        QTRY_COMPARE_WITH_TIMEOUT(m_workbench->services.Spectra()->Shown().tracks.size(), size_t(3), waitMs);
        QTRY_VERIFY(VisiblePlot(m_workbench->window.centralWidget()));
        WaitForNextSpectrum();
        Exporting().CheckPlots(VisiblePlot(m_workbench->window.centralWidget()));
        const QVector<QPolygonF> tracks = Exporting().TracksIn("tracks.svg", m_workbench->services.Spectrum()->GetLineColor());
        QCOMPARE(tracks.size(), 3);
        for (const QPolygonF &track : tracks)
            QCOMPARE(track.size(), sensor.width());
        const QStringList lines = Exporting().Lines("Export Spectrum…", "tracks.csv");
        QVERIFY(lines.contains("pixel,axis,track1,track2,track3,saturated1,saturated2,saturated3"));
        QCOMPARE(ColumnsOf(lines).value(0).size(), sensor.width());
    }

#ifdef TEST_DATA
    /// Raman spectra with the calibration of their own program; the numbers are those that others read of the file.
    void anOpenedSpectrumHasItsOwnAxis()
    {
        PictureDesk *desk = m_workbench->services.Desk();
        m_workbench->Action("Vertical")->trigger();
        desk->Open({QString(TEST_DATA) + "/spe/blut1.SPE"}, desk->MainPicture());
        QTRY_VERIFY(desk->MainPicture()->IsSenImage());
        m_workbench->Action("Curve")->trigger();
        QVERIFY(m_workbench->Action("Horizontal")->isChecked());
        QTRY_VERIFY(Plot() && Plot()->graph(0)->dataCount() == 1023);
        QCOMPARE(Plot()->xAxis->label(), QString("Raman Shift [1/cm]"));
        QVERIFY(std::abs(Plot()->graph(0)->data()->at(620)->key - 2618.027) < 0.01);
        m_workbench->window.findChild<QFrame *>("MultiImageToolUI")->findChild<QScrollBar *>()->setValue(4);
        QTRY_COMPARE(Plot()->graph(0)->data()->at(76)->value, 1484.0);

        const QStringList lines = Exporting().Lines("Export Spectrum…", "raman.csv");
        QVERIFY(lines.contains("# frame: 5"));
        QVERIFY(lines.contains("# calibration: from the file"));
        QVERIFY(lines.contains("# rows: 0 to 0"));
        const QVector<QVector<double>> columns = ColumnsOf(lines);
        QCOMPARE(columns.value(0).size(), 1023);
        QCOMPARE(columns[2][76], 1484.0);
        QVERIFY(std::abs(columns[1][620] - 2618.027) < 0.01);
        Exporting().CheckPlots(Plot());
        m_workbench->services.Config()->SetCameraView(); // a live picture leaves with its page
    }

    /// Its program subtracted a background, which left counts below zero.
    void countsBelowZeroAreDrawnBelowZero()
    {
        PictureDesk *desk = m_workbench->services.Desk();
        m_workbench->Action("Curve")->trigger();
        desk->Open({QString(TEST_DATA) + "/spe/one_dimensional_spectrum.spe"}, desk->MainPicture());
        QTRY_VERIFY(Plot() && Plot()->graph(0)->dataCount() == 1024);
        bool found = false;
        const QCPRange drawn = Plot()->graph(0)->getValueRange(found);
        QCOMPARE(drawn.lower, -12.0);
        QCOMPARE(drawn.upper, 6473.0);
        QCOMPARE(Plot()->yAxis->range().lower, -12.0);
        m_workbench->services.Config()->SetCameraView(); // a live picture leaves with its page
    }
#endif

    /// A folder that went away after it was chosen.
    void whatCannotBeWrittenIsTold()
    {
        ShowLamp();
        QFileDialog *dialog = Exporting().Open("Export Plot…");
        QVERIFY(dialog);
        emit dialog->fileSelected(m_folder->filePath("gone") + "/plot.png");
        dialog->close();
        QTRY_VERIFY2(NoticeText().startsWith(QString::fromUtf8("“plot.png” was not saved: ")), qPrintable(NoticeText()));
        CloseNotices();
    }

private:
    void Start()
    {
        m_workbench = std::make_unique<RunningWorkbench>(m_folder->path());
        QVERIFY(m_workbench->WaitForPicture());
    }

    /// The curve of the brightest fibre.
    void ShowLamp()
    {
        m_workbench->link.SetScene(SpectrographScene::SceneName());
        m_workbench->link.SetPixelLayout(PixelLayout::Mono16);
        m_workbench->link.Session()->SetExposureUs(faintExposureUs);
        QVERIFY(m_workbench->WaitForNextPicture());
        m_workbench->Action("Curve")->trigger();
        m_workbench->Action("Band Found by Itself")->trigger();
        SpectrumPipeline *spectra = m_workbench->services.Spectra();
        QTRY_VERIFY_WITH_TIMEOUT(spectra->Shown().raw.Count() == sensor.width() && spectra->Shown().band.top > 0, waitMs);
        QTRY_VERIFY(Plot() && Plot()->graph(0)->dataCount() == sensor.width());
        WaitForNextSpectrum();
    }

    /// Waits until it is saved.
    bool RecordOneFrame(const QString &path)
    {
        RecordingSettings settings;
        settings.mode = RecordingSettings::Mode::Single;
        RecordingDesk *recording = m_workbench->services.Recording();
        QSignalSpy ended(recording, &RecordingDesk::signalRunEnded);
        QString error;
        if (!recording->Start(settings, path, &error)) {
            qWarning("%s", qPrintable(error));
            return false;
        }
        return (!ended.isEmpty() || ended.wait(waitMs)) && ended.count() == 1;
    }

    /// By the lines that are found by themselves.
    void CalibrateByLamp()
    {
        ShowLamp();
        CalibrationModel *model = m_workbench->services.Calibration();
        model->SetSpectrum(m_workbench->services.Spectra()->Shown().raw.values);
        QSignalSpy assigned(model, &CalibrationModel::signalAssigned);
        model->Assign();
        QVERIFY(assigned.wait(waitMs));
        QVERIFY(model->Apply());
    }

    /// One that was made of a frame after this call, and drawn.
    void WaitForNextSpectrum() const
    {
        const SpectrumPipeline *spectra = m_workbench->services.Spectra();
        const quint64 before = spectra->Shown().frameId;
        QTRY_VERIFY_WITH_TIMEOUT(spectra->Shown().frameId > before + 3, waitMs);
    }

    QCustomPlot *Plot() const { return qobject_cast<QCustomPlot *>(VisiblePlot(m_workbench->window.centralWidget())); }

    /// Where the curve is highest near the green line of mercury, nm; 0 when that is not in it.
    double GreenLine() const
    {
        QCPGraphData highest;
        for (const QCPGraphData &sample : *Plot()->graph(0)->data()) {
            if (std::abs(sample.key - 546.074) < 3 && sample.value > highest.value)
                highest = sample;
        }
        return highest.key;
    }

    QPushButton *Button(const QString &name) const { return m_dialog->findChild<QPushButton *>("pushButton" + name); }

    QString Label(const QString &name) const { return m_dialog->findChild<QLabel *>(name)->text(); }

    /// Where the optics put the light, at the middle of the band.
    void CheckAgainstTheTruth() const
    {
        const CalibrationModel *model = m_workbench->services.Calibration();
        QVERIFY2(model->Fit().rmsPixel < 0.1, qPrintable(QString::number(model->Fit().rmsPixel)));
        QVERIFY2(model->Points().size() >= 10, qPrintable(QString::number(model->Points().size())));
        const RowBand band = m_workbench->services.Spectra()->Shown().band;
        const SpectrographOptics truth(sensor);
        double squares = 0;
        for (const CalibrationPoint &point : model->Points()) {
            const double place = truth.LinePosition(point.nm, (band.top + band.bottom - 1) / 2.0);
            const SpectralCalibration &calibration = model->Fit().calibration;
            squares += std::pow((calibration.Wavelength(place) - point.nm) / calibration.Dispersion(place), 2);
        }
        const double rms = std::sqrt(squares / model->Points().size());
        QVERIFY2(rms < 0.1, qPrintable(QString::number(rms)));
    }

    /// A point is taken away and comes back by a click on its peak; both can be undone.
    void PickOneAgainByHand()
    {
        CalibrationModel *model = m_workbench->services.Calibration();
        const QVector<CalibrationPoint> all = model->Points();
        const int row = all.size() / 2;
        auto *table = m_dialog->findChild<QTableWidget *>("tableWidgetPoints");
        QCOMPARE(table->rowCount(), all.size());
        table->setCurrentCell(row, 0);
        Button("Remove")->click();
        QCOMPARE(model->Points().size(), all.size() - 1);

        auto *plot = m_dialog->findChild<QCustomPlot *>("calibrationPlot");
        const QPoint besideThePeak(qRound(plot->xAxis->coordToPixel(all[row].pixel + 2)), plot->axisRect()->center().y());
        QTest::mouseClick(plot, Qt::LeftButton, Qt::NoModifier, besideThePeak);
        auto *pixel = m_dialog->findChild<QDoubleSpinBox *>("spinBoxPixel");
        QVERIFY2(std::abs(pixel->value() - all[row].pixel) < 0.01, qPrintable(QString("%1 and not %2").arg(pixel->value()).arg(all[row].pixel)));
        QCOMPARE(m_dialog->findChild<QComboBox *>("comboBoxWavelength")->currentData().toDouble(), all[row].nm);
        Button("AddLine")->click();
        QCOMPARE(model->Points(), all);
        QTest::keySequence(m_dialog, QKeySequence::Undo);
        QCOMPARE(model->Points().size(), all.size() - 1);
        Button("Undo")->click();
        QCOMPARE(model->Points(), all);
    }

    SpectrumExport Exporting() const { return SpectrumExport(m_workbench.get(), m_folder->path()); }

    /// The window has one for pictures and one for spectra.
    QString NoticeText() const
    {
        for (const QMessageBox *notice : m_workbench->window.findChildren<QMessageBox *>("FaultNotice")) {
            if (notice->isVisible())
                return notice->text();
        }
        return QString();
    }

    void CloseNotices() const
    {
        for (QMessageBox *notice : m_workbench->window.findChildren<QMessageBox *>("FaultNotice"))
            notice->close();
    }

    /// Those of the calibration; which ones these are is up to the frame that was taken.
    void CheckLines(const QStringList &lines)
    {
        const QVector<CalibrationPoint> &points = m_workbench->services.Calibration()->Points();
        QCOMPARE(lines.size(), points.size());
        const QRegularExpression form("^# line: pixel (\\S+) is (\\S+) nm (Hg|Ar)$");
        for (int i = 0; i < lines.size(); ++i) {
            const QRegularExpressionMatch line = form.match(lines.at(i));
            QVERIFY2(line.hasMatch(), qPrintable(lines.at(i)));
            QVERIFY2(std::abs(line.captured(1).toDouble() - points.at(i).pixel) < 1e-3, qPrintable(lines.at(i)));
            QVERIFY2(std::abs(line.captured(2).toDouble() - points.at(i).nm) < 1e-4, qPrintable(lines.at(i)));
            QCOMPARE(line.captured(3), points.at(i).line);
        }
    }

    void CheckTable(const QStringList &lines)
    {
        QVERIFY(lines.contains("# axis: nm"));
        QVERIFY(lines.contains("# corrected values: counts"));
        QVERIFY(lines.contains("pixel,axis,raw,corrected,saturated"));
        CheckLines(lines.filter(QRegularExpression("^# line: ")));
        QVERIFY(!lines.filter(QRegularExpression("^# source: Simulated Camera")).isEmpty());
        const QVector<QVector<double>> columns = ColumnsOf(lines);
        QCOMPARE(columns.size(), 5);
        QCOMPARE(columns[0].size(), sensor.width());
        // The green line of mercury stands where it belongs.
        int brightest = -1;
        for (int i = 0; i < columns[1].size(); ++i) {
            if (std::abs(columns[1][i] - 546.07) < 3 && (brightest < 0 || columns[2][i] > columns[2][brightest]))
                brightest = i;
        }
        QVERIFY(brightest >= 0);
        QVERIFY2(std::abs(columns[1][brightest] - 546.074) < 0.2, qPrintable(QString::number(columns[1][brightest])));
        // The powers of the header give the axis.
        const QString powers = lines.filter(QRegularExpression("^# coefficients: ")).value(0).section(": ", 1);
        double nm = 0;
        const QStringList coefficients = powers.split(' ');
        for (int power = coefficients.size() - 1; power >= 0; --power)
            nm = nm * 1000 + coefficients[power].toDouble();
        QVERIFY2(std::abs(nm - columns[1][1000]) < 1e-6, qPrintable(QString::number(nm)));
    }

    QPointer<QDialog> m_dialog;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    StyleSheet::Named("dark").Apply(application);
    SpectrometerScenario test;
    return GuardedTest::Run(&test, argc, argv);
}

#include "tst_spectrometer.moc"
