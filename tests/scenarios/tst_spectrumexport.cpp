// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerasession.h"
#include "fieldsource.h"
#include "fitsbytes.h"
#include "livepreview.h"
#include "openedpicture.h"
#include "picturedesk.h"
#include "plotpicture.h"
#include "spebytes.h"
#include "spectrographscenario.h"
#include "spectrumdialogs.h"
#include "spectrumexport.h"
#include "spectrumpipeline.h"
#include "spectrumsettings.h"
#include "viewcodes.h"
#include "workspaceconfig.h"

#include <QAction>
#include <QComboBox>
#include <QFileDialog>
#include <QImageReader>
#include <QLineEdit>
#include <QMessageBox>
#include <QRegularExpression>

#include <qcustomplot.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>

namespace {

constexpr int side = 2048; ///< of the sensor, pixels
/// 390 nm in the first column and 930 nm in the last.
const SpectralCalibration straight({660, 270}, side);

} // namespace

/// A person takes spectra home.
class SpectrumExportScenario : public SpectrographScenario
{
    Q_OBJECT

private slots:
    /// What follows the dot is no suffix.
    void namesWithADotGetTheSuffixOfTheirForm()
    {
        OpenFile("lamp 1.5s.spe", 100);
        m_workbench->Action("Curve")->trigger();
        QTRY_VERIFY(VisiblePlot(m_workbench->window.centralWidget()));

        QFileDialog *dialog = Exporting().Open("Export Spectrum…");
        QVERIFY(dialog);
        SpectrumExport::Accept(dialog);
        QVERIFY(Exporting().IsSaved("lamp 1.5s spectrum.csv"));

        dialog = Exporting().Open("Export Plot…");
        QVERIFY(dialog);
        SpectrumExport::Accept(dialog);
        QVERIFY(Exporting().IsSaved("lamp 1.5s spectrum.png"));

        dialog = Exporting().Open("Export Plot…");
        QVERIFY(dialog);
        ChooseSvg(dialog);
        QCOMPARE(NameIn(dialog), QString("lamp 1.5s spectrum.svg"));
        SpectrumExport::Accept(dialog);
        QVERIFY(Exporting().IsSaved("lamp 1.5s spectrum.svg"));
        QCOMPARE(QImageReader::imageFormat(m_folder->filePath("lamp 1.5s spectrum.svg")), QByteArray("svg"));

        // Typed without one.
        dialog = Exporting().Open("Export Plot…");
        QVERIFY(dialog);
        ChooseSvg(dialog);
        dialog->findChild<QLineEdit *>("fileNameEdit")->setText("lamp 0.3s");
        SpectrumExport::Accept(dialog);
        QVERIFY(Exporting().IsSaved("lamp 0.3s.svg"));
        m_workbench->services.Config()->SetCameraView(); // a live picture leaves with its page
    }

    /// The stick was pulled while the dialog was open.
    void aFolderThatIsGoneIsSaid()
    {
        m_workbench->Action("Tracks in 3D")->trigger();
        m_workbench->Action("Find Tracks")->trigger();
        QTRY_VERIFY_WITH_TIMEOUT(VisiblePlot(m_workbench->window.centralWidget()), waitMs);
        QFileDialog *dialog = Exporting().Open("Export Plot…");
        QVERIFY(dialog);
        emit dialog->fileSelected(m_folder->filePath("gone/tracks.svg"));
        dialog->reject();
        QMessageBox *shown = nullptr;
        QTRY_VERIFY((shown = Notice()));
        QVERIFY2(shown->text().contains("tracks.svg"), qPrintable(shown->text()));
        QVERIFY(QDir(m_folder->path()).entryList({"*track*"}, QDir::Files).isEmpty());
        shown->close();
    }

    /// A long plot as lines, beside a recording: the program goes on.
    void tooLittleMemoryForAFileIsSaid()
    {
        auto *dialogs = m_workbench->window.findChild<SpectrumDialogs *>();
        dialogs->Write(m_folder->filePath("huge.svg"), []() -> QByteArray { throw std::bad_alloc(); });
        QMessageBox *shown = nullptr;
        QTRY_VERIFY((shown = Notice()));
        QVERIFY2(shown->text().contains(QString::fromUtf8("“huge.svg” was not saved: there is not enough memory")),
                 qPrintable(shown->text()));
        QVERIFY(!QFile::exists(m_folder->filePath("huge.svg")));
        shown->close();
    }

    /// Messages stay on their lines.
    void lineBreaksInFileNamesAreMarked()
    {
        auto *dialogs = m_workbench->window.findChild<SpectrumDialogs *>();
        dialogs->Write(m_folder->filePath("two\nlines.csv"), [] { return QByteArray("1,2\n"); });
        QTRY_COMPARE(m_workbench->StatusText(), QString::fromUtf8("“two⏎lines.csv” was saved."));
        QVERIFY(QFile::exists(m_folder->filePath("two\nlines.csv")));

        dialogs->Write(m_folder->filePath("no\nmemory.svg"), [] { return QByteArray(); });
        QMessageBox *shown = nullptr;
        QTRY_VERIFY((shown = Notice()));
        QVERIFY2(shown->text().contains(QString::fromUtf8("“no⏎memory.svg” was not saved")), qPrintable(shown->text()));
        shown->close();
    }

    /// They run along the rows whatever the direction is, and have the axis of those.
    void tracksKeepTheAxisOfTheRows()
    {
        SpectrumSettings *settings = m_workbench->services.Spectrum();
        settings->SetCalibration(straight, settings->ShownFrame());
        m_workbench->Action("Vertical")->trigger();
        m_workbench->Action("Find Tracks")->trigger();
        QTRY_COMPARE_WITH_TIMEOUT(m_workbench->services.Spectra()->Shown().tracks.size(), size_t(3), waitMs);
        CheckAxis("tracks.csv", "# axis: nm", 390);

        // That of the other side of the sensor is none for them.
        settings->SetCalibration(straight, settings->ShownFrame());
        CheckAxis("others.csv", "# axis: pixel", 0);
    }

    /// Also while the direction is another one already, and the spectrum of that is not made yet.
    void aSpectrumHasTheAxisOfItsDirection()
    {
        SpectrumSettings *settings = m_workbench->services.Spectrum();
        m_workbench->Action("All Rows")->trigger();
        SpectrumPipeline *spectra = m_workbench->services.Spectra();
        QTRY_COMPARE_WITH_TIMEOUT(spectra->Shown().raw.Count(), side, waitMs);
        settings->SetCalibration(straight, settings->ShownFrame());
        m_workbench->services.Preview()->StopPreview();
        const SpectrumLedger &ledger = spectra->Ledger();
        QTRY_COMPARE_WITH_TIMEOUT(ledger.computed + ledger.missed + ledger.dropped, quint64(ledger.taken), waitMs);
        QCoreApplication::processEvents();
        m_workbench->Action("Vertical")->trigger();
        const ExportedSpectrum before = m_workbench->window.findChild<SpectrumDialogs *>()->Shown();
        QVERIFY(before.product.raw.place.isHorizontal);
        QVERIFY(std::abs(before.axis.At(0) - 390) < 1e-6);
        QTRY_VERIFY_WITH_TIMEOUT(!spectra->Shown().raw.place.isHorizontal, waitMs);
        CheckAxis("columns.csv", "# axis: pixel", 0);
    }

    /// And its camera, whatever that is told while it stands.
    void aStandingSpectrumKeepsItsPixels()
    {
        m_workbench->link.SetRegion(QRect(side / 4, side / 4, side / 2, side / 2));
        m_workbench->Action("Curve")->trigger();
        m_workbench->Action("All Rows")->trigger();
        SpectrumPipeline *spectra = m_workbench->services.Spectra();
        QTRY_COMPARE_WITH_TIMEOUT(spectra->Shown().raw.Count(), side / 2, waitMs);
        SpectrumSettings *settings = m_workbench->services.Spectrum();
        QTRY_COMPARE(settings->ShownFrame().first, side / 4);
        settings->SetCalibration(SpectralCalibration({660, 270}, side / 2), settings->ShownFrame());
        m_workbench->services.Preview()->StopPreview();
        const SpectrumLedger &ledger = spectra->Ledger();
        QTRY_COMPARE_WITH_TIMEOUT(ledger.computed + ledger.missed + ledger.dropped, quint64(ledger.taken), waitMs);

        m_workbench->link.SetRegion(QRect(0, 0, side / 2, side / 2));
        QTRY_COMPARE(m_workbench->link.Session()->Format().region.topLeft(), QPoint(0, 0));
        QCOMPARE(settings->ShownAxis().At(0), 390.0);
        const QStringList lines = Exporting().Lines("Export Spectrum…", "standing.csv");
        QVERIFY2(lines.contains("# axis: nm"), qPrintable(lines.filter("axis").join(' ')));
        QVERIFY(lines.contains("# source: Simulated Camera"));
        QVERIFY(std::abs(ColumnsOf(lines).value(1).value(0) - 390) < 1e-6);

        m_workbench->link.Close();
        QVERIFY(Exporting().Lines("Export Spectrum…", "closed.csv").contains("# source: Simulated Camera"));
    }

    /// The panel speaks of the opened curve, and the menu takes nothing that is not seen.
    void anOpenedCurveIsSaidToBeSaturated()
    {
        OpenFile("bright.spe", 65535);
        m_workbench->Action("Curve")->trigger();
        QTRY_VERIFY(IsSaturationSaid());
        m_workbench->Action("Take Dark Spectrum")->trigger();
        QCOMPARE(m_workbench->StatusText(), QString("An opened file is shown: go to the camera first."));
        OpenFile("faint.spe", 100);
        QTRY_VERIFY(!IsSaturationSaid());
        m_workbench->services.Config()->SetCameraView();
    }

    /// In the curve, at the axis, at the cross and in the table.
    void fractionsAreThoseOfTheFile_data()
    {
        QTest::addColumn<float>("low");
        QTest::addColumn<float>("high");
        QTest::newRow("little above 0") << 0.0F << 1.5F;
        QTest::newRow("on both sides of 0") << -3.0F << 7.0F;
    }

    void fractionsAreThoseOfTheFile()
    {
        QFETCH(float, low);
        QFETCH(float, high);
        const std::vector<float> values = OpenFractions(low, high);
        m_workbench->Action("Curve")->trigger();
        QTRY_VERIFY(Plot() && Plot()->graph(0)->dataCount() == int(values.size()));
        for (size_t x = 0; x < values.size(); ++x)
            QVERIFY(std::abs(Plot()->graph(0)->data()->at(int(x))->value - double(values[x])) < 1e-6);
        QCOMPARE(Plot()->yAxis->label(), QString("Counts"));
        QCOMPARE(Plot()->yAxis->range().lower, double(low));
        QCOMPARE(Plot()->yAxis->range().upper, double(high) / (1 - m_workbench->services.Spectrum()->GetBlankRatio()));

        const QPoint place = Plot()->axisRect()->center();
        QTest::mouseClick(Plot(), Qt::LeftButton, {}, place);
        const double x = Plot()->xAxis->pixelToCoord(place.x());
        const double told = TracerValue();
        QVERIFY2(told >= double(values[size_t(x) - 1]) && told <= double(values[size_t(x) + 2]), qPrintable(QString::number(told)));

        const QVector<QVector<double>> columns = ColumnsOf(Exporting().Lines("Export Spectrum…", "fractions.csv"));
        QCOMPARE(columns.value(2).size(), int(values.size()));
        for (int i = 0; i < columns[2].size(); ++i)
            QVERIFY(std::abs(columns[2][i] - double(values[size_t(i)])) <= std::abs(double(values[size_t(i)])) * 1e-11);
        m_workbench->services.Config()->SetCameraView();
    }

private:
    QCustomPlot *Plot() const { return qobject_cast<QCustomPlot *>(VisiblePlot(m_workbench->window.centralWidget())); }
    /// Of what went wrong; null when none is seen.
    QMessageBox *Notice() const
    {
        for (QMessageBox *notice : m_workbench->window.findChildren<QMessageBox *>("FaultNotice")) {
            if (notice->isVisible())
                return notice;
        }
        return nullptr;
    }

    /// Not a number when none is told.
    double TracerValue() const
    {
        for (int i = 0; i < Plot()->itemCount(); ++i) {
            const auto *label = qobject_cast<const QCPItemText *>(Plot()->item(i));
            const QRegularExpressionMatch match =
                QRegularExpression("Value : (.*)\\]").match(label ? label->text() : QString());
            if (match.hasMatch())
                return match.captured(1).toDouble();
        }
        return std::numeric_limits<double>::quiet_NaN();
    }

    /// Opens a picture whose rows rise evenly from one end to the other; the samples of a row.
    std::vector<float> OpenFractions(float low, float high)
    {
        constexpr int width = 401;
        std::vector<float> values;
        QByteArray row;
        for (int x = 0; x < width; ++x) {
            values.push_back(low + (high - low) * float(x) / float(width - 1));
            QByteArray sample(4, '\0');
            qToBigEndian(values.back(), sample.data());
            row += sample;
        }
        QFile file(m_folder->filePath("fractions.fits"));
        const QByteArray bytes = FitsHeader(FitsPictureCards(-32, {width, 3})) + FitsBlocks(row + row + row);
        [&] { QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()); }();
        file.close();
        Open("fractions.fits");
        return values;
    }

    SpectrumExport Exporting() const { return SpectrumExport(m_workbench.get(), m_folder->path()); }

    /// A spectrum of one row with one line, so high.
    void OpenFile(const QString &name, quint16 height)
    {
        constexpr int width = 400;
        SpeBytes spe(width, 1, 3, 1);
        for (int x = 0; x < width; ++x) {
            QByteArray sample(2, '\0');
            qToLittleEndian(quint16(x == 200 ? height : 5), sample.data());
            spe.Append(sample);
        }
        QFile file(m_folder->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(spe.Bytes()) > 0);
        file.close();
        Open(name);
    }

    void Open(const QString &name)
    {
        PictureDesk *desk = m_workbench->services.Desk();
        desk->Open({m_folder->filePath(name)}, desk->MainPicture());
        QTRY_COMPARE(desk->MainPicture()->GetFileName(), name);
        QTRY_VERIFY(m_workbench->services.Spectrum()->IsImageShown());
    }

    /// As by hand: the box tells the dialog.
    static void ChooseSvg(QFileDialog *dialog)
    {
        auto *filters = dialog->findChild<QComboBox *>("fileTypeCombo");
        const int svg = filters->findText("svg", Qt::MatchContains);
        filters->setCurrentIndex(svg);
        QMetaObject::invokeMethod(filters, "activated", Q_ARG(int, svg));
    }

    static QString NameIn(const QFileDialog *dialog) { return dialog->findChild<QLineEdit *>("fileNameEdit")->text(); }

    void CheckAxis(const QString &name, const QString &comment, double first) const
    {
        const QStringList lines = Exporting().Lines("Export Spectrum…", name);
        QVERIFY2(lines.contains(comment), qPrintable(lines.filter("axis").join(' ')));
        const QVector<QVector<double>> columns = ColumnsOf(lines);
        QCOMPARE(columns.value(0).size(), side);
        QVERIFY2(std::abs(columns[1][0] - first) < 1e-6, qPrintable(QString::number(columns[1][0])));
    }

    static bool IsSaturationSaid()
    {
        const PanelFields fields = FieldSource::Find(FieldSource::SpectrumName)->Fields();
        return std::any_of(fields.begin(), fields.end(), [](const PanelField &field) { return field.key == "saturated"; });
    }
};

GUARDED_TEST_MAIN(SpectrumExportScenario)
#include "tst_spectrumexport.moc"
