// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerasession.h"
#include "liveorientation.h"
#include "livepreview.h"
#include "plotpicture.h"
#include "spectrographscenario.h"
#include "spectrumdialogs.h"
#include "spectrumpipeline.h"
#include "spectrumsettings.h"
#include "viewcodes.h"

#include <QAction>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>

#include <qcustomplot.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr int width = 2048;
/// 390 nm in the first column and 930 nm in the last.
const SpectralCalibration straight({660, 270}, width);

} // namespace

/// A person stops the camera on a good frame, and works with its spectrum.
class StandingSpectrumScenario : public SpectrographScenario
{
    Q_OBJECT

private slots:
    void aCalibrationMovesTheCurveAndItsPeaks_data()
    {
        QTest::addColumn<bool>("isBinned");
        QTest::newRow("binned spectrum") << true;
        QTest::newRow("row of the picture") << false;
    }

    void aCalibrationMovesTheCurveAndItsPeaks()
    {
        QFETCH(bool, isBinned);
        m_workbench->Action("Curve with Peaks")->trigger();
        if (isBinned) {
            m_workbench->Action("All Rows")->trigger();
            WaitForBinned();
        }
        QTRY_VERIFY_WITH_TIMEOUT(Plot() && Plot()->graph(0)->dataCount() == width && !PeakKeys().isEmpty(), waitMs);
        StopCamera();

        SpectrumSettings *settings = m_workbench->services.Spectrum();
        settings->SetCalibration(straight, settings->ShownFrame());
        QCOMPARE(Plot()->xAxis->label(), QString("Wavelength [nm]"));
        CheckEnds(390, 930);
        m_workbench->Action("Pixels")->trigger();
        QCOMPARE(Plot()->xAxis->label(), QString("Pixel Number"));
        CheckEnds(0, width - 1);
        m_workbench->Action("Nanometres")->trigger();
        CheckEnds(390, 930);
    }

    void theBarBelowThePlotChoosesATrack()
    {
        m_workbench->Action("Curve")->trigger();
        m_workbench->Action("Find Tracks")->trigger();
        const SpectrumPipeline *spectra = m_workbench->services.Spectra();
        QTRY_COMPARE_WITH_TIMEOUT(spectra->Shown().tracks.size(), size_t(3), waitMs);
        StopCamera();
        const std::vector<Spectrum> &tracks = spectra->Shown().tracks;
        QTRY_COMPARE(Plot()->graph(0)->data()->at(1000)->value, tracks[0].values[1000]);
        QVERIFY(tracks[0].values[1000] != tracks[1].values[1000]);
        Plot()->parentWidget()->findChild<QScrollBar *>()->setValue(1);
        QTRY_COMPARE(Plot()->graph(0)->data()->at(1000)->value, tracks[1].values[1000]);
    }

    /// A page that is too narrow draws nothing.
    void aPageThatBecomesWideHasItsCurve()
    {
        m_workbench->Action("Curve")->trigger();
        m_workbench->Action("All Rows")->trigger();
        WaitForBinned();
        QTRY_VERIFY_WITH_TIMEOUT(Plot() && Plot()->graph(0)->dataCount() == width, waitMs);
        StopCamera();
        QWidget *page = Plot()->parentWidget();
        const QSize wide = page->size();
        page->resize(280, page->height());
        SpectrumSettings *settings = m_workbench->services.Spectrum();
        settings->SetCalibration(straight, settings->ShownFrame());
        QSignalSpy announced(m_workbench->services.Spectra(), SIGNAL(SignalUpdateFVB(void *)));
        QTRY_VERIFY(!announced.isEmpty());
        QCoreApplication::processEvents();
        QCOMPARE(Plot()->graph(0)->data()->at(0)->key, 0.0);
        page->resize(wide);
        QTRY_VERIFY(std::abs(Plot()->graph(0)->data()->at(0)->key - 390) < 1e-6);
    }

    /// The numbers, the curve and the marks on the picture.
    void theBandIsFoundAnewInTheOtherDirection()
    {
        m_workbench->Action("Curve")->trigger();
        m_workbench->Action("Band Found by Itself")->trigger();
        const SpectrumPipeline *spectra = m_workbench->services.Spectra();
        QTRY_VERIFY_WITH_TIMEOUT(spectra->Shown().raw.Count() == width && spectra->Shown().band.bottom - spectra->Shown().band.top < width,
                                 waitMs);
        StopCamera();
        const quint64 taken = spectra->Ledger().taken;
        const RowBand rows = spectra->Shown().band;
        m_workbench->Action("Vertical")->trigger();
        QTRY_VERIFY_WITH_TIMEOUT(!spectra->Shown().raw.place.isHorizontal, waitMs);
        const RowBand columns = spectra->Shown().band;
        QVERIFY(columns.top != rows.top || columns.bottom != rows.bottom);
        QCOMPARE(spectra->GetEndPointList(), QList<QPointF>({QPointF(0, columns.top), QPointF(0, columns.bottom - 1)}));
        QCOMPARE(spectra->Ledger().taken.load(), taken);
        QTRY_COMPARE(Plot()->graph(0)->data()->at(1000)->value, spectra->Shown().raw.values[1000]);

        m_workbench->Action("Horizontal")->trigger();
        QTRY_VERIFY_WITH_TIMEOUT(spectra->Shown().raw.place.isHorizontal, waitMs);
        // Found in another frame before, whose noise was another.
        QVERIFY(std::abs(spectra->Shown().band.top - rows.top) <= 2 && std::abs(spectra->Shown().band.bottom - rows.bottom) <= 2);
        QTRY_COMPARE(Plot()->graph(0)->data()->at(1000)->value, spectra->Shown().raw.values[1000]);
    }

    /// It was not binned while frames came.
    void binningIsSwitchedOn()
    {
        m_workbench->Action("Curve")->trigger();
        QTRY_VERIFY_WITH_TIMEOUT(Plot() && Plot()->graph(0)->dataCount() == width, waitMs);
        StopCamera();
        const double row = Highest();
        m_workbench->Action("All Rows")->trigger();
        WaitForBinned();
        QTRY_VERIFY(Highest() > 10 * row);
        QCOMPARE(m_workbench->services.Spectra()->Ledger().taken.load(), quint64(0));
    }

    /// And where the plot says that it is, is where the exported table says it.
    void wavelengthsStayWhenThePictureIsTurned_data()
    {
        QTest::addColumn<QVector<int>>("steps");
        QTest::addColumn<bool>("isCalibrated");
        QTest::newRow("mirrored") << QVector<int>{FlipHorizontal} << true;
        QTest::newRow("upside down") << QVector<int>{FlipVertical} << true;
        QTest::newRow("there and back") << QVector<int>{FlipHorizontal, FlipHorizontal} << true;
        QTest::newRow("along the other side") << QVector<int>{RotateBy90} << false;
    }

    void wavelengthsStayWhenThePictureIsTurned()
    {
        QFETCH(QVector<int>, steps);
        QFETCH(bool, isCalibrated);
        m_workbench->Action("Curve")->trigger();
        m_workbench->Action("All Rows")->trigger();
        WaitForBinned();
        QTRY_VERIFY_WITH_TIMEOUT(Plot() && Plot()->graph(0)->dataCount() == width, waitMs);
        StopCamera();
        SpectrumSettings *settings = m_workbench->services.Spectrum();
        settings->SetCalibration(straight, settings->ShownFrame());
        QTRY_VERIFY(Plot()->graph(0)->data()->at(0)->key > 389);
        const double before = Brightest();

        LiveOrientation *orientation = m_workbench->services.LivePosition();
        for (const int step : steps)
            orientation->slotSetMirrorRotate(step);
        const SpectrumPipeline *spectra = m_workbench->services.Spectra();
        QTRY_VERIFY_WITH_TIMEOUT(spectra->Shown().sensor.orientation == orientation->Get(), waitMs);
        QTRY_COMPARE(Plot()->xAxis->label(), QString(isCalibrated ? "Wavelength [nm]" : "Pixel Number"));
        const auto isDrawn = [&] {
            constexpr int sample = width / 3;
            const auto drawn = Plot()->graph(0)->data()->findBegin(settings->ShownAxis().At(sample), false); // sorted by that
            return drawn->value == spectra->Shown().corrected.values[sample];
        };
        QTRY_VERIFY(isDrawn());
        if (isCalibrated) {
            constexpr double pixel = 540.0 / (width - 1); // nm
            QTRY_VERIFY2(std::abs(Brightest() - before) < pixel, qPrintable(QString("%1 and not %2").arg(Brightest()).arg(before)));
        }
        const ExportedSpectrum exported = m_workbench->window.findChild<SpectrumDialogs *>()->Shown();
        const std::vector<double> &values = exported.product.raw.values;
        const auto highest = std::max_element(values.begin(), values.end()) - values.begin();
        QVERIFY(std::abs(exported.axis.At(double(highest)) - Brightest()) < 1e-6);
    }

    /// The picture is not turned before the camera is back.
    void theSpectrumOfALostCameraIsTurnedWithThePicture()
    {
        m_workbench->Action("Curve")->trigger();
        m_workbench->Action("All Rows")->trigger();
        WaitForBinned();
        emit m_workbench->link.Session()->signalControlLost();
        QCOMPARE(m_workbench->link.GetState(), CameraLink::State::Lost);
        const SpectrumLedger &ledger = m_workbench->services.Spectra()->Ledger();
        QTRY_COMPARE_WITH_TIMEOUT(ledger.computed + ledger.missed + ledger.dropped, quint64(ledger.taken), waitMs);
        for (int step = 0; step < 3; ++step) // announced, drawn, told to be
            QCoreApplication::processEvents();
        LiveOrientation *orientation = m_workbench->services.LivePosition();
        const SpectrumPipeline *spectra = m_workbench->services.Spectra();
        bool isAhead = false;
        connect(spectra, &SpectrumPipeline::signalSpectrumShown, this, [&] {
            isAhead = isAhead || (m_workbench->link.GetState() == CameraLink::State::Lost && !(spectra->Shown().sensor.orientation == Orientation()));
        });
        orientation->slotSetMirrorRotate(RotateBy90);
        m_workbench->services.Spectrum()->SetBinnedRows(BinnedRows::Auto);
        QTRY_VERIFY_WITH_TIMEOUT(spectra->Shown().sensor.orientation == orientation->Get(), waitMs);
        disconnect(spectra, nullptr, this, nullptr);
        QVERIFY(!isAhead);
        QCOMPARE(m_workbench->link.GetState(), CameraLink::State::Open);
    }

    void tracksThatAreRemovedAreGone()
    {
        m_workbench->Action("Curve")->trigger();
        m_workbench->Action("Find Tracks")->trigger();
        const SpectrumPipeline *spectra = m_workbench->services.Spectra();
        QTRY_COMPARE_WITH_TIMEOUT(spectra->Shown().tracks.size(), size_t(3), waitMs);
        StopCamera();
        const std::vector<double> second = spectra->Shown().tracks[1].values;
        const QList<QRectF> tracks = m_workbench->services.Spectrum()->GetMultiTrackList();
        QVERIFY(m_workbench->services.Spectrum()->SetTracks({tracks[1]}));
        QTRY_COMPARE_WITH_TIMEOUT(spectra->Shown().tracks.size(), size_t(1), waitMs);
        QCOMPARE(spectra->Shown().trackBands[0].top, qRound(tracks[1].top()));
        QTRY_COMPARE(Plot()->graph(0)->data()->at(1000)->value, spectra->Shown().tracks[0].values[1000]);
        QCOMPARE(spectra->Shown().tracks[0].Count(), int(second.size()));
    }

    void binningIsSwitchedOffAndOn()
    {
        m_workbench->Action("Curve")->trigger();
        m_workbench->Action("All Rows")->trigger();
        WaitForBinned();
        QTRY_VERIFY_WITH_TIMEOUT(Plot() && Plot()->graph(0)->dataCount() == width, waitMs);
        StopCamera();
        const SpectrumPipeline *spectra = m_workbench->services.Spectra();
        m_workbench->Action("Off")->trigger();
        QVERIFY(!spectra->Shown().HasSpectrum());
        m_workbench->Action("All Rows")->trigger();
        WaitForBinned();
        QTRY_COMPARE(Plot()->graph(0)->data()->at(1000)->value, spectra->Shown().raw.values[1000]);
        QVERIFY(Plot()->yAxis->range().contains(Highest()));
    }

    /// Of the standing picture, as that of the frame that would come next.
    void theProfileComesWhenTheSpectrumGoes_data()
    {
        QTest::addColumn<bool>("isBinned");
        QTest::newRow("binned spectrum") << true;
        QTest::newRow("tracks") << false;
    }

    void theProfileComesWhenTheSpectrumGoes()
    {
        QFETCH(bool, isBinned);
        SpectrumSettings *settings = m_workbench->services.Spectrum();
        m_workbench->Action("Curve")->trigger();
        m_workbench->Action(isBinned ? "All Rows" : "Find Tracks")->trigger();
        constexpr double mostOfAPixel = 65535;
        QTRY_VERIFY_WITH_TIMEOUT(Plot() && Highest() > mostOfAPixel, waitMs);
        StopCamera();
        if (isBinned)
            settings->SetFVBOnFlag(false);
        else
            settings->SetMultiTrackOnFlag(false);
        QTRY_VERIFY(Highest() > 0 && Highest() <= mostOfAPixel);
        QCOMPARE(Plot()->graph(0)->dataCount(), width);
    }

private:
    /// A row of the picture is as long as its spectrum.
    void WaitForBinned() const
    {
        QTRY_COMPARE_WITH_TIMEOUT(m_workbench->services.Spectra()->Shown().raw.Count(), width, waitMs);
    }

    /// Where the curve is highest, on the axis.
    double Brightest() const
    {
        const auto curve = Plot()->graph(0)->data();
        const auto lower = [](const QCPGraphData &a, const QCPGraphData &b) { return a.value < b.value; };
        return std::max_element(curve->constBegin(), curve->constEnd(), lower)->key;
    }

    /// Of the curve; 0 without one.
    double Highest() const
    {
        double highest = 0;
        for (const QCPGraphData &sample : *Plot()->graph(0)->data())
            highest = std::max(highest, sample.value);
        return highest;
    }

    /// By the button; then nothing is on its way any more.
    void StopCamera() const
    {
        auto *button = m_workbench->window.findChild<QPushButton *>("pushButtonPreviewChecked");
        QVERIFY(button);
        button->click();
        QVERIFY(!m_workbench->services.Preview()->isRunning());
        const SpectrumLedger &ledger = m_workbench->services.Spectra()->Ledger();
        QTRY_COMPARE_WITH_TIMEOUT(ledger.computed + ledger.missed + ledger.dropped, quint64(ledger.taken), waitMs);
        for (int step = 0; step < 3; ++step) // announced, drawn, told to be
            QCoreApplication::processEvents();
    }

    /// On the axis of the plot, of the marks of peaks.
    QVector<double> PeakKeys() const
    {
        QVector<double> keys;
        for (int i = 0; i < Plot()->itemCount(); ++i) {
            if (const auto *mark = qobject_cast<const QCPItemTracer *>(Plot()->item(i)))
                keys << mark->graphKey();
        }
        return keys;
    }

    /// The curve, the axis and the marks agree on what is where.
    void CheckEnds(double first, double last) const
    {
        const auto samples = Plot()->graph(0)->data();
        QTRY_VERIFY(std::abs(samples->at(0)->key - first) < 1e-6 && std::abs(samples->at(width - 1)->key - last) < 1e-6);
        QTRY_COMPARE(Plot()->xAxis->range().lower, samples->at(0)->key);
        QCOMPARE(Plot()->xAxis->range().upper, samples->at(width - 1)->key);
        QVERIFY(!PeakKeys().isEmpty());
        for (const double key : PeakKeys()) {
            const auto peak = samples->findBegin(key, false);
            const auto highest = std::max_element(peak - 3, peak + 4, [](const QCPGraphData &a, const QCPGraphData &b) { return a.value < b.value; });
            QVERIFY2(std::abs(peak->key - key) < 1e-6, qPrintable(QString::number(key)));
            QCOMPARE(peak->value, highest->value);
        }
    }
};

GUARDED_TEST_MAIN(StandingSpectrumScenario)
#include "tst_standingspectrum.moc"
