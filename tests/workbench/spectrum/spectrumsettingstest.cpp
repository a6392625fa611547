// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibrationfit.h"
#include "centredisplay.h"
#include "guardedtest.h"
#include "spectrumranges.h"
#include "spectrumsettings.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

Q_DECLARE_METATYPE(SensorFrame)

/// What is set of spectra, and who is told.
class SpectrumSettingsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void binningAndTracksTakeTurns();
    void rowsOfTheBandAreKept();
    void aBandOutsideOfThePictureIsTold_data();
    void aBandOutsideOfThePictureIsTold();
    void tracksThatCannotBeAreRefusedInWords();
    void moreThanTwentyTracksAreForThePlotAlongTheRows();
    void moreThanTwentyTracksAcrossAreForTheOtherPages();
    void aSmallerFrameSwitchesTracksOff();
    void tracksAreAsWideAsTheFrame();
    void calibratedInEveryUnit();
    void aCalibrationOfAnotherWidthIsNotUsed();
    void aCalibrationFollowsItsPixelsOfTheSensor_data();
    void aCalibrationFollowsItsPixelsOfTheSensor();
    void aCalibrationOfOtherPixelsIsSaidAndNotUsed_data();
    void aCalibrationOfOtherPixelsIsSaidAndNotUsed();
    void theAxisOfAFileIsThatOfItsPage();
    void anAxisThroughZeroStaysInNanometres();
    void aFileThatSaysNothingIsCalibratedByOurs();
    void oursTakesThePlaceOfAFilesOwnWhenItWasMadeOnIt();
    void aCalibrationMadeOnAFileIsNotThatOfLiveSpectra();
    void aCalibrationMadeOnAFileFollowsItsPixels_data();
    void aCalibrationMadeOnAFileFollowsItsPixels();
    void oursTakesThePlaceOfThatOfOneFileOnly();
    void anAxisThatIsLostIsNotReplacedByOurs();
    void spectraAlongTheColumnsAreAsLongAsThose();
    void whatAFileSaysOfItsAreaIsChecked_data();
    void whatAFileSaysOfItsAreaIsChecked();
    void styleReachesThePlots();

private:
    /// Calibrated with 1000 columns from column 100 on, unbinned and upright: 400 nm in the first and 0.25 nm in each.
    void CalibrateRegion();
    /// What is shown of the sensor from now on.
    void Show(const SensorFrame &frame);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QSettings> m_stored;
    std::unique_ptr<SpectrumRanges> m_ranges;
    std::unique_ptr<CentreDisplay> m_centre;
    std::unique_ptr<SpectrumSettings> m_settings;
};

namespace {

/// A picture of `width` columns as it is in its file.
SpectralPicture Opened(const SpectralAxis &axis, int width)
{
    const QSize size(width, 200);
    return {1, size, QRect(QPoint(0, 0), size), Orientation(), axis, axis};
}

/// 400 + 0.25 nm a pixel on 1000 pixels.
SpectralCalibration Straight()
{
    QVector<CalibrationPoint> points;
    points.append({0, 400, QString()});
    points.append({400, 500, QString()});
    return FitCalibration(points, 1, 1000).calibration;
}

} // namespace

void SpectrumSettingsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_stored = std::make_unique<QSettings>(m_folder->filePath("settings.ini"), QSettings::IniFormat);
    m_ranges = std::make_unique<SpectrumRanges>();
    m_centre = std::make_unique<CentreDisplay>(m_stored.get());
    m_settings = std::make_unique<SpectrumSettings>(m_ranges.get(), m_centre.get());
    m_settings->slotSetFrameSize(QSize(1000, 500));
}

void SpectrumSettingsTest::cleanup()
{
    m_settings.reset();
    m_centre.reset();
    m_ranges.reset();
}

void SpectrumSettingsTest::binningAndTracksTakeTurns()
{
    QSignalSpy changed(m_settings.get(), &SpectrumSettings::signalRecipeChanged);
    QSignalSpy on(m_settings.get(), &SpectrumUIManager::SignalFVBOnFlagChanged);
    QSignalSpy closed(m_settings.get(), &SpectrumUIManager::SignalFVBClose);
    QSignalSpy tracks(m_settings.get(), &SpectrumUIManager::SignalMultiTrackOnFlagChanged);
    m_settings->SetFVBOnFlag(1);
    m_settings->SetFVBOnFlag(1);
    QCOMPARE(on.count(), 1);
    QCOMPARE(changed.count(), 1);
    QVERIFY(m_settings->SetTracks({QRectF(0, 10, 1000, 20)}));
    m_settings->SetMultiTrackOnFlag(true);
    QCOMPARE(m_settings->GetFVBOnFlag(), 0);
    QCOMPARE(closed.count(), 1);
    QCOMPARE(tracks.count(), 1);
    m_settings->SetFVBOnFlag(1);
    QVERIFY(!m_settings->GetMultiTrackOnFlag());
    QVERIFY(m_settings->Recipe().isBinning && !m_settings->Recipe().hasTracks);
}

void SpectrumSettingsTest::rowsOfTheBandAreKept()
{
    QSignalSpy manual(m_settings.get(), &SpectrumUIManager::SignalFVBManualFlagChanged);
    QSignalSpy all(m_settings.get(), &SpectrumUIManager::SignalFVBModeAll);
    m_settings->SetBinnedRows(BinnedRows::Manual);
    QVERIFY(m_settings->GetManualFlag() && !m_settings->IsFVBModeAll() && !m_settings->IsFVBModeAuto());
    QCOMPARE(m_settings->GetTop(), 0);
    QCOMPARE(m_settings->GetBottom(), 499);
    m_settings->SetTop(100);
    m_settings->SetBottom(120);
    QCOMPARE(m_settings->Recipe().top, 100);
    QCOMPARE(m_settings->Recipe().bottom, 120);
    m_settings->SetBinnedRows(BinnedRows::Auto);
    QVERIFY(m_settings->IsFVBModeAuto());
    m_settings->SetBinnedRows(BinnedRows::All);
    QCOMPARE(all.count(), 1);
    QCOMPARE(manual.count(), 2);
}

void SpectrumSettingsTest::aBandOutsideOfThePictureIsTold_data()
{
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("bottom");
    QTest::addColumn<int>("keptTop");
    QTest::addColumn<QString>("text");
    QTest::newRow("outside") << 300 << 340 << 0
                             << "The band set by hand lay outside of the picture, which has 200 lines now: all of them are binned. "
                                "Set the band again.";
    QTest::newRow("beyond") << 150 << 240 << 150
                            << "The band set by hand went beyond the picture, which has 200 lines now, and was cut.";
}

void SpectrumSettingsTest::aBandOutsideOfThePictureIsTold()
{
    QFETCH(int, top);
    QFETCH(int, bottom);
    QFETCH(int, keptTop);
    QFETCH(QString, text);
    m_settings->SetBinnedRows(BinnedRows::Manual);
    m_settings->SetFVBOnFlag(1);
    m_settings->SetTop(top);
    m_settings->SetBottom(bottom);
    QSignalSpy told(m_settings.get(), &SpectrumSettings::signalMessage);
    QSignalSpy line(m_settings.get(), &SpectrumUIManager::SignalTopBottomChanged);
    QSignalSpy changed(m_settings.get(), &SpectrumSettings::signalRecipeChanged);
    m_settings->slotSetFrameSize(QSize(1000, 400));
    QCOMPARE(told.count(), 0);
    m_settings->slotSetFrameSize(QSize(1000, 200));
    QCOMPARE(told.value(0).value(0).toString(), text);
    QCOMPARE(line.count(), 1);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(m_settings->GetTop(), keptTop);
    QCOMPARE(m_settings->GetBottom(), 199);
}

void SpectrumSettingsTest::tracksThatCannotBeAreRefusedInWords()
{
    QSignalSpy told(m_settings.get(), &SpectrumSettings::signalMessage);
    m_settings->SetMultiTrackOnFlag(true);
    QVERIFY(!m_settings->GetMultiTrackOnFlag());
    QVERIFY(!m_settings->SetTracks({QRectF(0, 490, 1000, 20)}));
    QVERIFY(!m_settings->SetTracks({QRectF(0, 10, 1000, 20), QRectF(0, 20, 1000, 20)}));
    QCOMPARE(told.count(), 3);
    QVERIFY(told[0][0].toString().startsWith("There are no tracks"));
    QVERIFY(told[1][0].toString().contains("outside the sensor of 500 rows"));
    QVERIFY(told[2][0].toString().contains("overlap"));
    QVERIFY(m_settings->GetMultiTrackList().isEmpty());
}

void SpectrumSettingsTest::moreThanTwentyTracksAreForThePlotAlongTheRows()
{
    QList<QRectF> tracks;
    for (int i = 0; i < 21; ++i)
        tracks << QRectF(0, 20 * i, 1000, 10);
    m_settings->SetMode(DisplayMode::Plot);
    QVERIFY(m_settings->SetTracks(tracks));
    m_settings->SetMultiTrackOnFlag(true);
    QSignalSpy told(m_settings.get(), &SpectrumSettings::signalMessage);
    m_settings->SetHorizontal(false);
    QVERIFY(m_settings->IsDirectionHorinzontal());
    QCOMPARE(told.value(0).value(0).toString(), QString("There are 21 tracks and the plot shows 20 at most: take some away."));
    tracks.removeLast();
    QVERIFY(m_settings->SetTracks(tracks));
    m_settings->SetHorizontal(false);
    QVERIFY(!m_settings->IsDirectionHorinzontal());
}

/// The other pages show them all; the plot then shows the first ones and says so.
void SpectrumSettingsTest::moreThanTwentyTracksAcrossAreForTheOtherPages()
{
    QList<QRectF> tracks;
    for (int i = 0; i < 21; ++i)
        tracks << QRectF(0, 20 * i, 1000, 10);
    m_settings->SetMode(DisplayMode::Tracks3D);
    m_settings->SetHorizontal(false);
    QSignalSpy told(m_settings.get(), &SpectrumSettings::signalMessage);
    QVERIFY(m_settings->SetTracks(tracks));
    m_settings->SetMultiTrackOnFlag(true);
    QCOMPARE(m_settings->GetMultiTrackList().size(), 21);
    QCOMPARE(told.count(), 0);
    m_settings->SetMode(DisplayMode::Plot);
    QCOMPARE(told.value(0).value(0).toString(), QString("There are 21 tracks and the plot shows 20 at most: take some away."));
    QVERIFY(!m_settings->SetTracks(tracks));
    QCOMPARE(m_settings->GetMultiTrackList().size(), 21);
}

void SpectrumSettingsTest::aSmallerFrameSwitchesTracksOff()
{
    QVERIFY(m_settings->SetTracks({QRectF(0, 300, 1000, 20)}));
    m_settings->SetMultiTrackOnFlag(true);
    QSignalSpy told(m_settings.get(), &SpectrumSettings::signalMessage);
    m_settings->slotSetFrameSize(QSize(1000, 200));
    QVERIFY(!m_settings->GetMultiTrackOnFlag());
    QVERIFY(m_settings->GetMultiTrackList().isEmpty());
    QCOMPARE(told.count(), 1);
}

void SpectrumSettingsTest::tracksAreAsWideAsTheFrame()
{
    QVERIFY(m_settings->SetTracks({QRectF(100, 10, 50, 20)}));
    QCOMPARE(m_settings->GetMultiTrackList(), QList<QRectF>({QRectF(0, 10, 1000, 20)}));
    m_settings->slotSetFrameSize(QSize(800, 500));
    QCOMPARE(m_settings->GetMultiTrackList(), QList<QRectF>({QRectF(0, 10, 800, 20)}));
}

void SpectrumSettingsTest::calibratedInEveryUnit()
{
    double x = 0;
    QVERIFY(!m_settings->Calculate(200, x));
    QCOMPARE(x, 200.0);
    QCOMPARE(m_settings->GetTitleName(), QString("Pixel Number"));

    QSignalSpy told(m_settings.get(), &SpectrumUIManager::SignalConversationFormulaChanged);
    m_settings->SetCalibration(Straight(), SpectralFrame());
    QCOMPARE(told.count(), 1);
    QVERIFY(m_settings->Calculate(200, x));
    QVERIFY(std::abs(x - 450) < 1e-9);
    QCOMPARE(m_settings->GetTitleName(), QString("Wavelength [nm]"));
    m_settings->SetUnit(SpectralUnit::Wavenumber);
    QVERIFY(m_settings->Calculate(400, x));
    QVERIFY(std::abs(x - 20000) < 1e-6);
    QCOMPARE(m_settings->GetTitleName(), QString("Wavenumber [1/cm]"));
    m_settings->SetUnit(SpectralUnit::Pixel);
    QVERIFY(!m_settings->Calculate(400, x));
    QCOMPARE(x, 400.0);
}

void SpectrumSettingsTest::aCalibrationOfAnotherWidthIsNotUsed()
{
    m_settings->SetCalibration(Straight(), SpectralFrame());
    m_settings->slotSetFrameSize(QSize(500, 500));
    double x = 0;
    QVERIFY(!m_settings->Calculate(10, x));
    QCOMPARE(x, 10.0);
    QCOMPARE(m_settings->GetTitleName(), QString("Pixel Number"));
}

void SpectrumSettingsTest::CalibrateRegion()
{
    Show({QRect(100, 50, 1000, 1000), 1, Orientation()});
    m_settings->SetCalibration(Straight(), m_settings->ShownFrame());
}

void SpectrumSettingsTest::Show(const SensorFrame &frame)
{
    m_settings->SetSensorFrame(frame);
    m_settings->slotSetFrameSize(frame.orientation.Map(frame.region.size() / frame.binning));
}

void SpectrumSettingsTest::aCalibrationFollowsItsPixelsOfTheSensor_data()
{
    QTest::addColumn<SensorFrame>("frame");
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<double>("first"); // nm
    QTest::addColumn<double>("step");
    const QRect same(100, 50, 1000, 1000);
    const Orientation upright;
    QTest::newRow("as it was") << SensorFrame{same, 1, upright} << true << 400.0 << 0.25;
    QTest::newRow("mirrored") << SensorFrame{same, 1, upright.FlippedHorizontally()} << true << 649.75 << -0.25;
    QTest::newRow("upside down") << SensorFrame{same, 1, upright.FlippedVertically()} << true << 400.0 << 0.25;
    QTest::newRow("half a turn") << SensorFrame{same, 1, upright.RotatedRight().RotatedRight()} << true << 649.75 << -0.25;
    QTest::newRow("a quarter, along the columns") << SensorFrame{same, 1, upright.RotatedRight()} << false << 400.0 << 0.25;
    QTest::newRow("a quarter to the left") << SensorFrame{same, 1, upright.RotatedLeft()} << false << 649.75 << -0.25;
    QTest::newRow("a region in it") << SensorFrame{QRect(300, 0, 400, 100), 1, upright} << true << 450.0 << 0.25;
    QTest::newRow("mirrored region") << SensorFrame{QRect(300, 0, 400, 100), 1, upright.FlippedHorizontally()} << true << 549.75 << -0.25;
    QTest::newRow("binned") << SensorFrame{same, 2, upright} << true << 400.125 << 0.5;
    QTest::newRow("mirrored and binned") << SensorFrame{same, 4, upright.FlippedHorizontally()} << true << 649.375 << -1.0;
}

void SpectrumSettingsTest::aCalibrationFollowsItsPixelsOfTheSensor()
{
    QFETCH(SensorFrame, frame);
    QFETCH(bool, horizontal);
    QFETCH(double, first);
    QFETCH(double, step);
    CalibrateRegion();
    m_settings->SetHorizontal(horizontal);
    Show(frame);
    QSignalSpy told(m_settings.get(), &SpectrumSettings::signalMessage);
    const CalibratedAxis &axis = m_settings->ShownAxis();
    for (const int pixel : {0, 1, 77, axis.Width() - 1}) {
        double nm = 0;
        QVERIFY(m_settings->Calculate(pixel, nm));
        QVERIFY2(std::abs(nm - (first + step * pixel)) < 1e-9, qPrintable(QString("%1: %2").arg(pixel).arg(nm, 0, 'f', 6)));
    }
    QVERIFY(told.isEmpty());
    // Where a line of the calibration is now.
    QVERIFY(std::abs(axis.At(axis.PixelHere(200)) - 450) < 1e-9);
}

void SpectrumSettingsTest::aCalibrationOfOtherPixelsIsSaidAndNotUsed_data()
{
    QTest::addColumn<SensorFrame>("frame");
    QTest::addColumn<QString>("said");
    const QRect same(100, 50, 1000, 1000);
    QTest::newRow("as wide, further on") << SensorFrame{QRect(101, 50, 1000, 1000), 1, Orientation()}
                                         << "for the sensor's pixels 100 to 1099";
    QTest::newRow("wider") << SensorFrame{QRect(100, 50, 1200, 1000), 1, Orientation()} << "for the sensor's pixels 100 to 1099";
    QTest::newRow("as wide, binned") << SensorFrame{QRect(0, 0, 2000, 2000), 2, Orientation()} << "for the sensor's pixels 100 to 1099";
    QTest::newRow("turned") << SensorFrame{same, 1, Orientation().RotatedRight()} << "along the other side of the sensor";
}

void SpectrumSettingsTest::aCalibrationOfOtherPixelsIsSaidAndNotUsed()
{
    QFETCH(SensorFrame, frame);
    QFETCH(QString, said);
    CalibrateRegion();
    QSignalSpy told(m_settings.get(), &SpectrumSettings::signalMessage);
    Show(frame);
    double x = 0;
    QVERIFY(!m_settings->Calculate(10, x));
    QCOMPARE(x, 10.0);
    QCOMPARE(m_settings->GetTitleName(), QString("Pixel Number"));
    QCOMPARE(told.count(), 1);
    QVERIFY2(told[0][0].toString().contains(said), qPrintable(told[0][0].toString()));
    Show({QRect(100, 50, 1000, 1000), 1, Orientation()});
    QVERIFY(m_settings->Calculate(10, x));
    QCOMPARE(told.count(), 1);
}

void SpectrumSettingsTest::theAxisOfAFileIsThatOfItsPage()
{
    SpectralAxis axis;
    axis.unit = SpectralUnit::RamanShift;
    axis.values = {100, 110, 125};
    m_settings->SetImage(Opened(axis, 3));
    double x = 0;
    QVERIFY(!m_settings->Calculate(1, x));
    m_settings->slotSetImageShown(true);
    QVERIFY(m_settings->Calculate(1, x));
    QCOMPARE(x, 110.0);
    QVERIFY(m_settings->Calculate(4, x)); // on with the last step
    QCOMPARE(x, 155.0);
    QCOMPARE(m_settings->GetTitleName(), QString("Raman Shift [1/cm]"));
    m_settings->SetHorizontal(false);
    QVERIFY(!m_settings->Calculate(1, x)); // its rows have no wavelengths
    QCOMPARE(m_settings->GetTitleName(), QString("Pixel Number"));
    m_settings->SetHorizontal(true);
    m_settings->SetImage(Opened(SpectralAxis(), 3));
    QVERIFY(!m_settings->Calculate(1, x));
}

void SpectrumSettingsTest::anAxisThroughZeroStaysInNanometres()
{
    SpectralAxis axis;
    axis.unit = SpectralUnit::Nanometre;
    axis.values = {-10, 0, 10, 20};
    m_settings->SetImage(Opened(axis, 4));
    m_settings->slotSetImageShown(true);
    QSignalSpy told(m_settings.get(), &SpectrumSettings::signalMessage);
    m_settings->SetUnit(SpectralUnit::Wavenumber);
    QVERIFY(told.value(0).value(0).toString().contains("has no wavenumber"));
    QCOMPARE(m_settings->GetTitleName(), QString("Wavelength [nm]"));
    double x = 0;
    QVERIFY(m_settings->Calculate(2, x));
    QCOMPARE(x, 10.0);
    // Beyond zero there is a wavenumber for every pixel.
    axis.values = {400, 500, 625, 800};
    m_settings->SetImage(Opened(axis, 4));
    QCOMPARE(m_settings->GetTitleName(), QString("Wavenumber [1/cm]"));
    QVERIFY(m_settings->Calculate(2, x));
    QCOMPARE(x, 16000.0);
}

void SpectrumSettingsTest::aFileThatSaysNothingIsCalibratedByOurs()
{
    SpectralAxis ofFile;
    ofFile.unit = SpectralUnit::Nanometre;
    ofFile.values = {100, 110, 125};
    m_settings->SetCalibration(Straight(), SpectralFrame());
    m_settings->slotSetImageShown(true);
    double x = 0;
    m_settings->SetImage(Opened(SpectralAxis(), 1000));
    QCOMPARE(m_settings->GetTitleName(), QString("Wavelength [nm], by the calibration in use"));
    QVERIFY(m_settings->Calculate(200, x));
    QVERIFY(std::abs(x - 450) < 1e-9);
    m_settings->SetImage(Opened(SpectralAxis(), 999));
    QVERIFY(!m_settings->Calculate(200, x));
    m_settings->SetImage(Opened(ofFile, 1000));
    QCOMPARE(m_settings->GetTitleName(), QString("Wavelength [nm]"));
    QVERIFY(m_settings->Calculate(1, x));
    QCOMPARE(x, 110.0);
}

void SpectrumSettingsTest::oursTakesThePlaceOfAFilesOwnWhenItWasMadeOnIt()
{
    SpectralAxis wrong;
    wrong.unit = SpectralUnit::Nanometre;
    for (int pixel = 0; pixel < 1000; ++pixel)
        wrong.values << 100 + pixel;
    m_settings->SetImage(Opened(wrong, 1000));
    m_settings->slotSetImageShown(true);
    double x = 0;
    m_settings->SetCalibration(Straight(), m_settings->ShownFrame());
    QVERIFY(m_settings->Calculate(200, x));
    QVERIFY2(std::abs(x - 450) < 1e-9, qPrintable(QString::number(x)));
    m_settings->SetImage(Opened(wrong, 1000)); // its next frame
    QVERIFY(m_settings->Calculate(200, x));
    QVERIFY(std::abs(x - 450) < 1e-9);
    QVERIFY(!m_settings->ImageCalibration().isEmpty()); // saved with it
    SpectralAxis other = wrong;
    other.values[999] = 2000;
    m_settings->SetImage(Opened(other, 1000));
    QVERIFY(m_settings->Calculate(200, x));
    QCOMPARE(x, 300.0);
    QVERIFY(m_settings->ImageCalibration().isEmpty());
    m_settings->SetImage(Opened(wrong, 1000));
    m_settings->SetCalibration(SpectralCalibration(), SpectralFrame()); // taken away: the file's is back
    QVERIFY(m_settings->Calculate(200, x));
    QCOMPARE(x, 300.0);
}

/// Nobody knows which pixels of the sensor the picture shows, or whether it was mirrored when it was taken.
void SpectrumSettingsTest::aCalibrationMadeOnAFileIsNotThatOfLiveSpectra()
{
    const QSize size(1000, 1000);
    Show({QRect(QPoint(0, 0), size), 1, Orientation()});
    m_settings->SetImage(Opened(SpectralAxis(), 1000));
    m_settings->slotSetImageShown(true);
    QSignalSpy told(m_settings.get(), &SpectrumSettings::signalMessage);
    m_settings->SetCalibration(Straight(), m_settings->ShownFrame());
    QCOMPARE(told.count(), 1);
    QVERIFY2(told[0][0].toString().contains("was made on an opened picture"), qPrintable(told[0][0].toString()));
    double x = 0;
    QVERIFY(m_settings->Calculate(200, x));
    QVERIFY(std::abs(x - 450) < 1e-9);
    m_settings->slotSetImageShown(false);
    for (const Orientation &orientation : {Orientation(), Orientation().FlippedHorizontally()}) {
        Show({QRect(QPoint(0, 0), size), 1, orientation});
        QVERIFY(!m_settings->Calculate(200, x));
        QVERIFY(m_settings->LiveCalibration().isEmpty());
    }
    QCOMPARE(told.count(), 1);
    // One that was made live is assumed to be that of files as wide, as their title says.
    m_settings->SetCalibration(Straight(), m_settings->ShownFrame());
    m_settings->slotSetImageShown(true);
    QVERIFY(m_settings->Calculate(200, x));
    QVERIFY(std::abs(x - 450) < 1e-9);
    QCOMPARE(m_settings->GetTitleName(), QString("Wavelength [nm], by the calibration in use"));
}

void SpectrumSettingsTest::aCalibrationMadeOnAFileFollowsItsPixels_data()
{
    QTest::addColumn<QRect>("region");
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<int>("turns");
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<double>("first"); // nm
    QTest::addColumn<double>("step");
    const QRect whole(0, 0, 1000, 200);
    QTest::newRow("as it was") << whole << false << 0 << true << 400.0 << 0.25;
    QTest::newRow("mirrored") << whole << true << 0 << true << 649.75 << -0.25;
    QTest::newRow("cropped") << QRect(300, 10, 400, 50) << false << 0 << true << 475.0 << 0.25;
    QTest::newRow("cropped and mirrored") << QRect(300, 10, 400, 50) << true << 0 << true << 574.75 << -0.25;
    QTest::newRow("a quarter, along the columns") << whole << false << 1 << false << 400.0 << 0.25;
    QTest::newRow("a quarter to the left") << whole << false << 3 << false << 649.75 << -0.25;
    QTest::newRow("across") << whole << false << 0 << false << 0.0 << 0.0;
    QTest::newRow("a quarter, across") << whole << false << 1 << true << 0.0 << 0.0;
}

void SpectrumSettingsTest::aCalibrationMadeOnAFileFollowsItsPixels()
{
    QFETCH(QRect, region);
    QFETCH(bool, mirrored);
    QFETCH(int, turns);
    QFETCH(bool, horizontal);
    QFETCH(double, first);
    QFETCH(double, step);
    m_settings->SetImage(Opened(SpectralAxis(), 1000));
    m_settings->slotSetImageShown(true);
    m_settings->SetCalibration(Straight(), m_settings->ShownFrame());
    m_settings->SetHorizontal(horizontal);
    m_settings->SetImage({1, QSize(1000, 200), region, Orientation(mirrored, turns), SpectralAxis(), SpectralAxis()});
    const CalibratedAxis &axis = m_settings->ShownAxis();
    QCOMPARE(axis.Width(), horizontal != (turns == 1 || turns == 3) ? region.width() : region.height());
    QCOMPARE(axis.IsCalibrated(), step != 0);
    for (const int pixel : {0, 1, 77, axis.Width() - 1}) {
        double nm = 0;
        QCOMPARE(m_settings->Calculate(pixel, nm), step != 0);
        const double expected = step != 0 ? first + step * pixel : pixel;
        QVERIFY2(std::abs(nm - expected) < 1e-9, qPrintable(QString("%1: %2").arg(pixel).arg(nm, 0, 'f', 6)));
    }
    QString fault; // saved with it
    const SpectralAxis saved = AxisOfMetadata(m_settings->ImageCalibration(),
                                              Orientation(mirrored, turns).Map(region.size()), &fault);
    QCOMPARE(saved.IsEmpty(), step == 0);
    QCOMPARE(int(saved.side),
             int(horizontal || saved.IsEmpty() ? SpectralSide::Columns : SpectralSide::Rows));
    QVERIFY(saved.IsEmpty() || std::abs(saved.values.value(77) - (first + step * 77)) < 1e-9);
}

/// Files that were recorded one after the other say the same.
void SpectrumSettingsTest::oursTakesThePlaceOfThatOfOneFileOnly()
{
    SpectralAxis own;
    own.unit = SpectralUnit::Nanometre;
    for (int pixel = 0; pixel < 1000; ++pixel)
        own.values << 100 + pixel;
    SpectralPicture first = Opened(own, 1000);
    SpectralPicture second = first;
    second.file = first.file + 1;
    m_settings->SetImage(first);
    m_settings->slotSetImageShown(true);
    m_settings->SetCalibration(Straight(), m_settings->ShownFrame());
    const auto shown = [this] {
        double nm = 0;
        return m_settings->Calculate(200, nm) ? qRound(nm) : -1;
    };
    QCOMPARE(shown(), 450);
    m_settings->SetImage(second);
    QCOMPARE(shown(), 300);
    m_settings->SetImage(first);
    QCOMPARE(shown(), 450);
    first.region = QRect(100, 0, 300, 200); // a part of it is another picture, but no other file
    first.axis.values = own.values.mid(100, 300);
    m_settings->SetImage(first);
    QCOMPARE(shown(), 475);
}

/// As that of pixels that were joined: they stay in pixels rather than in the nanometres of another.
void SpectrumSettingsTest::anAxisThatIsLostIsNotReplacedByOurs()
{
    SpectralPicture turned = Opened(SpectralAxis(), 1000);
    turned.orientation = Orientation().FlippedHorizontally();
    turned.fileAxis.unit = SpectralUnit::Nanometre;
    for (int pixel = 0; pixel < 1000; ++pixel)
        turned.fileAxis.values << 100 + pixel;
    m_settings->SetCalibration(Straight(), SpectralFrame());
    m_settings->slotSetImageShown(true);
    m_settings->SetImage(turned);
    double x = 0;
    QVERIFY(!m_settings->Calculate(200, x));
}

void SpectrumSettingsTest::spectraAlongTheColumnsAreAsLongAsThose()
{
    m_settings->SetCalibration(Straight(), SpectralFrame());
    m_settings->SetHorizontal(false);
    double x = 0;
    QVERIFY(!m_settings->Calculate(200, x));
    m_settings->slotSetFrameSize(QSize(500, 1000));
    QVERIFY(m_settings->Calculate(200, x));
    QVERIFY(std::abs(x - 450) < 1e-9);
}

void SpectrumSettingsTest::whatAFileSaysOfItsAreaIsChecked_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");
    QTest::newRow("area") << "500.1;620" << true;
    QTest::newRow("falling") << "620;-500" << true;
    QTest::newRow("nothing") << "" << false;
    QTest::newRow("one number") << "500" << false;
    QTest::newRow("a point") << "500;500" << false;
    QTest::newRow("words") << "left;right" << false;
}

void SpectrumSettingsTest::whatAFileSaysOfItsAreaIsChecked()
{
    QFETCH(QString, text);
    QFETCH(bool, valid);
    QCOMPARE(m_settings->IsValidConversation(&text), valid);
    QVERIFY(!m_settings->IsValidConversation(nullptr));
}

void SpectrumSettingsTest::styleReachesThePlots()
{
    QSignalSpy told(m_settings.get(), &SpectrumUIManager::SignalSpectralPropertyChanged);
    PlotStyle style;
    style.line = QPen(Qt::green, 2, Qt::DashLine);
    style.peakNumber = 7;
    style.blankRatio = 0.3;
    m_settings->SetStyle(style);
    QCOMPARE(told.count(), 1);
    QCOMPARE(m_settings->GetLineColor(), QColor(Qt::green));
    QCOMPARE(m_settings->GetLineWidth(), 2.0);
    QCOMPARE(m_settings->GetLineStyle() + 1, int(Qt::DashLine));
    QCOMPARE(m_settings->GetPeakNumber(), 7);
    QCOMPARE(m_settings->GetBlankRatio(), 0.3);
}

GUARDED_TEST_MAIN(SpectrumSettingsTest)
#include "spectrumsettingstest.moc"
