// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibrationmodel.h"
#include "madespectra.h"
#include "settingsfixture.h"

#include <QSignalSpy>

#include <cmath>

/// A calibration is made, applied and kept.
class CalibrationModelTest : public SettingsFixture
{
    Q_OBJECT

private slots:
    void init() override;
    void aPickSnapsToThePeakAndTheListedLine();
    void aPointOnASaturatedPeakIsMarkedAndStaysSo();
    void nothingNearIsTakenAsItIs();
    void theFitSaysWhichLineAPeakShouldBe();
    void everyStepCanBeUndone();
    void linesAreAssignedInTheBackground();
    void whatFitsNothingChangesNothing();
    void anAnswerOfTheSpectrumBeforeIsDropped();
    void aBadCalibrationIsNotApplied_data();
    void aBadCalibrationIsNotApplied();
    void whatWasAppliedIsKept();
    void whatWasTakenAwayIsGone();
    void whatIsKeptMayBeNonsense_data();
    void whatIsKeptMayBeNonsense();
    void aSpectrumOfAnotherWidthBeginsAnew();
    void aSpectrumOfOtherPixelsBeginsAnew();
    void whereItWasMadeIsKept();
    void theDirectionInWhichItWasMadeIsKept();
    void thatItWasMadeOnAFileIsKept();
    void theCameraItWasMadeWithIsKept();

private:
    std::unique_ptr<CalibrationModel> Model() { return std::make_unique<CalibrationModel>(m_settings.get(), m_stored.get()); }
};

namespace {

constexpr int width = 1000;
constexpr double hgViolet = 404.6565;
constexpr double hgBlue = 435.8335;
constexpr double hgGreen = 546.0750;

/// 400 + 0.2 nm a pixel.
double PixelOf(double nm) { return (nm - 400) * 5; }

/// Mercury's lines, with a little noise.
std::vector<double> HgLamp()
{
    std::vector<double> samples = NoiseOnly(width, 100, 1, 5);
    for (const double nm : {hgViolet, hgBlue, hgGreen, 576.9610, 579.0670})
        AddLine(&samples, PixelOf(nm), 5000, 2.0);
    Round(&samples);
    return samples;
}

/// A straight line through two lines of the lamp.
bool ApplyTwoLines(CalibrationModel *model)
{
    model->SetSpectrum(HgLamp());
    model->SetDegree(1);
    model->AddPoint(PixelOf(hgBlue), hgBlue);
    model->AddPoint(PixelOf(hgGreen), hgGreen);
    return model->Apply();
}

} // namespace

void CalibrationModelTest::init()
{
    SettingsFixture::init();
    m_settings->slotSetFrameSize(QSize(width, 100));
}

void CalibrationModelTest::aPickSnapsToThePeakAndTheListedLine()
{
    const auto model = Model();
    model->SetSpectrum(HgLamp());
    QCOMPARE(model->Peaks().size(), size_t(5));
    model->AddPoint(PixelOf(hgGreen) - 6, 546);
    QCOMPARE(model->Points().size(), 1);
    QVERIFY(std::abs(model->Points()[0].pixel - PixelOf(hgGreen)) < 0.1);
    QVERIFY(std::abs(model->Points()[0].nm - hgGreen) < 1e-3);
    QCOMPARE(model->Points()[0].line, QString("Hg"));
    model->AddPoint(PixelOf(hgBlue) + 3, 436);
    QVERIFY(model->Points()[0].pixel < model->Points()[1].pixel); // by rising pixel
}

void CalibrationModelTest::aPointOnASaturatedPeakIsMarkedAndStaysSo()
{
    std::vector<quint8> saturated(width, 0);
    saturated[size_t(std::lround(PixelOf(hgGreen)))] = 1;
    {
        const auto model = Model();
        model->SetSpectrum(HgLamp(), saturated);
        model->SetDegree(1);
        model->AddPoint(PixelOf(hgBlue), hgBlue);
        model->AddPoint(PixelOf(hgGreen), hgGreen);
        model->AddPoint(PixelOf(hgGreen) - 50, 540); // near no peak
        QCOMPARE(model->Points()[0].LineText(), QString("Hg"));
        QVERIFY(model->Points()[2].isSaturated && !model->Points()[1].isSaturated);
        QCOMPARE(model->Points()[2].LineText(), QString("Hg (saturated)"));
        model->RemovePoint(1);
        QVERIFY(model->Apply());
    }
    const auto restarted = Model();
    QVERIFY(restarted->AppliedPoints()[1].isSaturated && !restarted->AppliedPoints()[0].isSaturated);
    // Lines that are assigned by themselves are marked too.
    restarted->SetSpectrum(HgLamp(), saturated);
    restarted->SetLamps({Lamp::Mercury});
    restarted->SetRange(restarted->Fit().calibration.Wavelength(0), restarted->Fit().calibration.Wavelength(width - 1));
    QSignalSpy assigned(restarted.get(), &CalibrationModel::signalAssigned);
    restarted->Assign();
    QVERIFY(assigned.wait());
    QVERIFY(assigned.first().first().toBool());
    for (const CalibrationPoint &point : restarted->Points())
        QCOMPARE(point.isSaturated, std::abs(point.nm - hgGreen) < 0.01);
}

void CalibrationModelTest::nothingNearIsTakenAsItIs()
{
    const auto model = Model();
    model->SetSpectrum(HgLamp());
    model->AddPoint(300, 460);
    QCOMPARE(model->Points()[0].pixel, 300.0);
    QCOMPARE(model->Points()[0].nm, 460.0);
    QCOMPARE(model->Points()[0].line, QString());
}

void CalibrationModelTest::theFitSaysWhichLineAPeakShouldBe()
{
    const auto model = Model();
    model->SetSpectrum(HgLamp());
    QCOMPARE(model->ExpectedLine(PixelOf(hgViolet)), 0.0);
    model->SetDegree(1);
    model->AddPoint(PixelOf(hgBlue), hgBlue);
    model->AddPoint(PixelOf(hgGreen), hgGreen);
    QVERIFY(std::abs(model->ExpectedLine(PixelOf(hgViolet)) - hgViolet) < 1e-3);
    QCOMPARE(model->ExpectedLine(PixelOf(460)), 0.0); // there is none
}

void CalibrationModelTest::everyStepCanBeUndone()
{
    const auto model = Model();
    model->SetSpectrum(HgLamp());
    QVERIFY(!model->CanUndo());
    model->AddPoint(PixelOf(hgBlue), hgBlue);
    model->SetWavelength(0, 450);
    model->SetDegree(2);
    model->RemovePoint(0);
    model->RemovePoint(7); // there is none
    QVERIFY(model->Points().isEmpty());
    model->Undo();
    QCOMPARE(model->Points()[0].nm, 450.0);
    QCOMPARE(model->Degree(), 2);
    model->Undo();
    QCOMPARE(model->Degree(), 3);
    model->Undo();
    QVERIFY(std::abs(model->Points()[0].nm - hgBlue) < 1e-3);
    model->Undo();
    QVERIFY(model->Points().isEmpty());
    QVERIFY(!model->CanUndo());
    model->Undo();
}

void CalibrationModelTest::linesAreAssignedInTheBackground()
{
    const auto model = Model();
    model->SetSpectrum(HgLamp());
    model->SetLamps({Lamp::Mercury});
    model->SetRange(400, 600);
    model->SetDegree(2);
    QSignalSpy assigned(model.get(), &CalibrationModel::signalAssigned);
    model->Assign();
    QVERIFY(model->Points().isEmpty());
    QVERIFY(assigned.wait());
    QCOMPARE(assigned[0][0].toBool(), true);
    QCOMPARE(model->Points().size(), 5);
    QCOMPARE(model->Assigned().points.size(), 5);
    QVERIFY2(model->Fit().IsGood() && model->Fit().rmsPixel < 0.1, qPrintable(model->Fit().fault));
    for (const double nm : {hgViolet, hgBlue, hgGreen})
        QVERIFY(std::abs(model->Fit().calibration.Wavelength(PixelOf(nm)) - nm) < 0.02);
}

void CalibrationModelTest::whatFitsNothingChangesNothing()
{
    const auto model = Model();
    model->SetSpectrum(NoiseOnly(width, 100, 5, 3));
    model->AddPoint(300, 460);
    QSignalSpy assigned(model.get(), &CalibrationModel::signalAssigned);
    model->Assign();
    QVERIFY(assigned.wait());
    QCOMPARE(assigned[0][0].toBool(), false);
    QCOMPARE(model->Points().size(), 1);
}

void CalibrationModelTest::anAnswerOfTheSpectrumBeforeIsDropped()
{
    const auto model = Model();
    model->SetSpectrum(HgLamp());
    QSignalSpy assigned(model.get(), &CalibrationModel::signalAssigned);
    model->Assign();
    model->SetSpectrum(NoiseOnly(width, 100, 5, 3));
    model->Assign();
    QVERIFY(assigned.wait());
    QCOMPARE(assigned.count(), 1);
    QCOMPARE(assigned[0][0].toBool(), false);
}

void CalibrationModelTest::aBadCalibrationIsNotApplied_data()
{
    QTest::addColumn<QVector<QPointF>>("points");
    QTest::addColumn<QString>("said");
    QTest::newRow("too few") << QVector<QPointF>{{300, 460}, {500, 500}} << "needs at least 3 points and there are 2";
    QTest::newRow("two equal points") << QVector<QPointF>{{300, 460}, {300, 462}, {500, 500}, {700, 540}}
                                      << "Two points lie at pixel 300.00";
    QTest::newRow("one wavelength twice") << QVector<QPointF>{{300, 460}, {350, 460}, {500, 500}, {700, 540}}
                                          << "Two points have the wavelength 460.000 nm";
    QTest::newRow("not monotonic") << QVector<QPointF>{{100, 500}, {500, 460}, {900, 501}} << "does not rise or fall steadily";
}

void CalibrationModelTest::aBadCalibrationIsNotApplied()
{
    QFETCH(QVector<QPointF>, points);
    QFETCH(QString, said);
    const auto model = Model();
    model->SetLamps({});
    model->SetSpectrum(NoiseOnly(width, 100, 5, 3));
    model->SetDegree(2);
    for (const QPointF &point : points)
        model->AddPoint(point.x(), point.y());
    QSignalSpy applied(model.get(), &CalibrationModel::signalApplied);
    QVERIFY(!model->Apply());
    QVERIFY2(model->Fit().fault.contains(said), qPrintable(model->Fit().fault));
    QVERIFY(applied.isEmpty());
    QVERIFY(m_settings->Calibration().IsNull());
    QVERIFY(!model->Applied().IsGood());
    QVERIFY(m_stored->allKeys().filter("calibration").isEmpty());
}

void CalibrationModelTest::whatWasAppliedIsKept()
{
    auto model = Model();
    model->SetSpectrum(HgLamp());
    model->SetDegree(1);
    model->AddPoint(PixelOf(hgBlue), hgBlue);
    model->AddPoint(PixelOf(hgGreen), hgGreen);
    m_settings->SetUnit(SpectralUnit::Pixel);
    QVERIFY(model->Apply());
    QVERIFY(model->IsApplied());
    QCOMPARE(m_settings->Unit(), SpectralUnit::Nanometre);
    double nm = 0;
    QVERIFY(m_settings->Calculate(500, nm));
    QVERIFY2(std::abs(nm - 500) < 0.05, qPrintable(QString::number(nm)));
    const QVector<CalibrationPoint> points = model->Points();
    model->AddPoint(PixelOf(hgViolet), hgViolet);
    QVERIFY(!model->IsApplied());

    m_settings->SetCalibration(SpectralCalibration(), SpectralFrame());
    model = Model();
    QCOMPARE(model->Points(), points);
    QCOMPARE(model->AppliedPoints(), points);
    QCOMPARE(model->Degree(), 1);
    QCOMPARE(model->Width(), width);
    double again = 0;
    QVERIFY(m_settings->Calculate(500, again));
    QCOMPARE(again, nm);
}

void CalibrationModelTest::whatWasTakenAwayIsGone()
{
    auto model = Model();
    QVERIFY(ApplyTwoLines(model.get()));
    model->TakeAway();
    QVERIFY(!model->IsApplied());
    QCOMPARE(model->Points().size(), 2); // they can be applied again
    QVERIFY(m_settings->Calibration().IsNull());
    model = Model();
    QVERIFY(model->Points().isEmpty());
    QVERIFY(m_settings->Calibration().IsNull());
}

void CalibrationModelTest::whatIsKeptMayBeNonsense_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("width of nothing") << "width" << QVariant(0);
    QTest::newRow("width beyond all frames") << "width" << QVariant(2000000000);
    QTest::newRow("negative width") << "width" << QVariant(-5);
    QTest::newRow("degree") << "degree" << QVariant(400);
    QTest::newRow("a point outside") << "points/1/pixel" << QVariant(5000);
    QTest::newRow("a pixel that is no number") << "points/1/pixel" << QVariant("nan");
    QTest::newRow("a wavelength that is no number") << "points/1/nm" << QVariant("nan");
    QTest::newRow("number of points") << "points/size" << QVariant(2000000000);
}

void CalibrationModelTest::whatIsKeptMayBeNonsense()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    auto model = Model();
    QVERIFY(ApplyTwoLines(model.get()));
    QVERIFY(m_stored->contains("spectrum/calibration/" + key));
    m_stored->setValue("spectrum/calibration/" + key, value);
    m_settings->SetCalibration(SpectralCalibration(), SpectralFrame());
    model = Model();
    QVERIFY(m_settings->Calibration().IsNull());
    QVERIFY(model->Points().isEmpty());
}

void CalibrationModelTest::aSpectrumOfAnotherWidthBeginsAnew()
{
    const auto model = Model();
    model->SetSpectrum(HgLamp());
    model->AddPoint(PixelOf(hgBlue), hgBlue);
    model->SetSpectrum(HgLamp());
    QCOMPARE(model->Points().size(), 1);
    model->SetSpectrum({}); // there is none at the moment
    QCOMPARE(model->Points().size(), 1);
    model->SetSpectrum(NoiseOnly(width - 1, 100, 5, 3));
    QVERIFY(model->Points().isEmpty());
    QVERIFY(!model->CanUndo());
}

void CalibrationModelTest::aSpectrumOfOtherPixelsBeginsAnew()
{
    m_settings->SetSensorFrame({QRect(0, 0, width, 100), 1, Orientation()});
    const auto model = Model();
    model->SetSpectrum(HgLamp());
    model->AddPoint(PixelOf(hgBlue), hgBlue);
    model->SetSpectrum(HgLamp());
    QCOMPARE(model->Points().size(), 1);
    m_settings->SetSensorFrame({QRect(0, 0, width, 100), 1, Orientation().FlippedHorizontally()});
    model->SetSpectrum(HgLamp());
    QVERIFY(model->Points().isEmpty());
    QVERIFY(!model->CanUndo());
}

void CalibrationModelTest::whereItWasMadeIsKept()
{
    m_settings->SetSensorFrame({QRect(64, 0, width, 100), 1, Orientation()});
    auto model = Model();
    QVERIFY(ApplyTwoLines(model.get()));
    double nm = 0;
    QVERIFY(m_settings->Calculate(100, nm));

    m_settings->SetCalibration(SpectralCalibration(), SpectralFrame());
    model = Model();
    double again = 0;
    QVERIFY(m_settings->Calculate(100, again));
    QCOMPARE(again, nm);
    m_settings->SetSensorFrame({QRect(64, 0, width, 100), 1, Orientation().FlippedHorizontally()});
    QVERIFY(m_settings->Calculate(width - 1 - 100, again));
    QVERIFY2(std::abs(again - nm) < 1e-9, qPrintable(QString::number(again)));
    m_settings->SetSensorFrame({QRect(65, 0, width, 100), 1, Orientation()});
    QVERIFY(!m_settings->Calculate(100, again));
}

/// Files that say nothing are taken to lie in the same way.
void CalibrationModelTest::theDirectionInWhichItWasMadeIsKept()
{
    m_settings->SetHorizontal(false);
    m_settings->SetSensorFrame({ QRect(0, 0, 100, width), 1, Orientation() });
    m_settings->slotSetFrameSize(QSize(100, width));
    auto model = Model();
    QVERIFY(ApplyTwoLines(model.get()));
    double nm = 0;
    QVERIFY(m_settings->Calculate(100, nm));

    m_settings->SetCalibration(SpectralCalibration(), SpectralFrame());
    model = Model();
    const QSize size(width, width);
    m_settings->SetImage(
        { 1, size, QRect(QPoint(0, 0), size), Orientation(), SpectralAxis(), SpectralAxis() });
    m_settings->slotSetImageShown(true);
    double again = 0;
    QVERIFY(m_settings->Calculate(100, again));
    QCOMPARE(again, nm);
    m_settings->SetHorizontal(true);
    QVERIFY(!m_settings->Calculate(100, again));
}

void CalibrationModelTest::thatItWasMadeOnAFileIsKept()
{
    const QSize size(width, 100);
    m_settings->SetSensorFrame({QRect(QPoint(0, 0), size), 1, Orientation()});
    auto model = Model();
    model->SetSpectrum(HgLamp());
    model->AddPoint(PixelOf(hgViolet), hgViolet);
    m_settings->SetImage({1, size, QRect(QPoint(0, 0), size), Orientation(), SpectralAxis(), SpectralAxis()});
    m_settings->slotSetImageShown(true);
    QCOMPARE(model->SetSpectrum(HgLamp()), 1);
    QVERIFY(model->Points().isEmpty()); // that one was of a live spectrum
    model->SetDegree(1);
    model->AddPoint(PixelOf(hgBlue), hgBlue);
    model->AddPoint(PixelOf(hgGreen), hgGreen);
    QVERIFY(model->Apply());
    double nm = 0;
    QVERIFY(m_settings->Calculate(100, nm));

    m_settings->SetCalibration(SpectralCalibration(), SpectralFrame());
    model = Model();
    double again = 0;
    QVERIFY(m_settings->Calculate(100, again));
    QCOMPARE(again, nm);
    m_settings->slotSetImageShown(false);
    QVERIFY(!m_settings->Calculate(100, again));
    QCOMPARE(model->SetSpectrum(HgLamp()), 0); // what was applied is not lost
}

/// It is applied to another one as before, with a word.
void CalibrationModelTest::theCameraItWasMadeWithIsKept()
{
    m_settings->SetSensorFrame({QRect(0, 0, width, 100), 1, Orientation()});
    m_settings->SetCamera("First");
    auto model = Model();
    QVERIFY(ApplyTwoLines(model.get()));
    QCOMPARE(m_settings->CameraNote(), QString());

    m_settings->SetCalibration(SpectralCalibration(), SpectralFrame());
    model = Model();
    QSignalSpy told(m_settings.get(), &SpectrumSettings::signalMessage);
    m_settings->SetCamera("Second");
    const QString note = "The calibration was made with the camera First: calibrate anew if this one does not stand in its place.";
    QCOMPARE(m_settings->CameraNote(), note);
    QCOMPARE(told.value(0).value(0).toString(), note);
    double nm = 0;
    QVERIFY(m_settings->Calculate(100, nm));
    m_settings->SetCamera("First");
    QCOMPARE(m_settings->CameraNote(), QString());
    QCOMPARE(told.count(), 1);
    m_settings->SetCamera("Second");
    model->SetSpectrum(HgLamp());
    QVERIFY(model->Apply()); // made with this one
    QCOMPARE(m_settings->CameraNote(), QString());
}

GUARDED_TEST_MAIN(CalibrationModelTest)
#include "calibrationmodeltest.moc"
