// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibrationfit.h"
#include "settingsfixture.h"

#include <QSignalSpy>

Q_DECLARE_METATYPE(SensorFrame)

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

/// What pixels mean: by a calibration of ours, or by what a file says of its columns.
class SpectrumSettingsCalibrationTest : public SettingsFixture
{
    Q_OBJECT

private slots:
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

private:
    /// Calibrated with 1000 columns from column 100 on, unbinned and upright: 400 nm in the first and 0.25 nm in each.
    void CalibrateRegion();
    /// What is shown of the sensor from now on.
    void Show(const SensorFrame &frame);
};

void SpectrumSettingsCalibrationTest::CalibrateRegion()
{
    Show({QRect(100, 50, 1000, 1000), 1, Orientation()});
    m_settings->SetCalibration(Straight(), m_settings->ShownFrame());
}

void SpectrumSettingsCalibrationTest::Show(const SensorFrame &frame)
{
    m_settings->SetSensorFrame(frame);
    m_settings->slotSetFrameSize(frame.orientation.Map(frame.region.size() / frame.binning));
}

void SpectrumSettingsCalibrationTest::calibratedInEveryUnit()
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

void SpectrumSettingsCalibrationTest::aCalibrationOfAnotherWidthIsNotUsed()
{
    m_settings->SetCalibration(Straight(), SpectralFrame());
    m_settings->slotSetFrameSize(QSize(500, 500));
    double x = 0;
    QVERIFY(!m_settings->Calculate(10, x));
    QCOMPARE(x, 10.0);
    QCOMPARE(m_settings->GetTitleName(), QString("Pixel Number"));
}

void SpectrumSettingsCalibrationTest::aCalibrationFollowsItsPixelsOfTheSensor_data()
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

void SpectrumSettingsCalibrationTest::aCalibrationFollowsItsPixelsOfTheSensor()
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

void SpectrumSettingsCalibrationTest::aCalibrationOfOtherPixelsIsSaidAndNotUsed_data()
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

void SpectrumSettingsCalibrationTest::aCalibrationOfOtherPixelsIsSaidAndNotUsed()
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

void SpectrumSettingsCalibrationTest::theAxisOfAFileIsThatOfItsPage()
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

void SpectrumSettingsCalibrationTest::anAxisThroughZeroStaysInNanometres()
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

void SpectrumSettingsCalibrationTest::aFileThatSaysNothingIsCalibratedByOurs()
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

void SpectrumSettingsCalibrationTest::oursTakesThePlaceOfAFilesOwnWhenItWasMadeOnIt()
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
void SpectrumSettingsCalibrationTest::aCalibrationMadeOnAFileIsNotThatOfLiveSpectra()
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
        const SensorFrame frame{QRect(QPoint(0, 0), size), 1, orientation};
        Show(frame);
        QVERIFY(!m_settings->Calculate(200, x));
        QVERIFY(m_settings->LiveCalibration(frame).isEmpty());
    }
    QCOMPARE(told.count(), 1);
    // One that was made live is assumed to be that of files as wide, as their title says.
    m_settings->SetCalibration(Straight(), m_settings->ShownFrame());
    m_settings->slotSetImageShown(true);
    QVERIFY(m_settings->Calculate(200, x));
    QVERIFY(std::abs(x - 450) < 1e-9);
    QCOMPARE(m_settings->GetTitleName(), QString("Wavelength [nm], by the calibration in use"));
}

void SpectrumSettingsCalibrationTest::aCalibrationMadeOnAFileFollowsItsPixels_data()
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

void SpectrumSettingsCalibrationTest::aCalibrationMadeOnAFileFollowsItsPixels()
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
    const SpectralAxis saved = AxisOfMetadata(m_settings->ImageCalibration(), Orientation(mirrored, turns).Map(region.size()), &fault);
    QCOMPARE(saved.IsEmpty(), step == 0);
    QCOMPARE(int(saved.side), int(horizontal || saved.IsEmpty() ? SpectralSide::Columns : SpectralSide::Rows));
    QVERIFY(saved.IsEmpty() || std::abs(saved.values.value(77) - (first + step * 77)) < 1e-9);
}

/// Files that were recorded one after the other say the same.
void SpectrumSettingsCalibrationTest::oursTakesThePlaceOfThatOfOneFileOnly()
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
void SpectrumSettingsCalibrationTest::anAxisThatIsLostIsNotReplacedByOurs()
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

void SpectrumSettingsCalibrationTest::spectraAlongTheColumnsAreAsLongAsThose()
{
    m_settings->SetCalibration(Straight(), SpectralFrame());
    m_settings->SetHorizontal(false);
    double x = 0;
    QVERIFY(!m_settings->Calculate(200, x));
    m_settings->slotSetFrameSize(QSize(500, 1000));
    QVERIFY(m_settings->Calculate(200, x));
    QVERIFY(std::abs(x - 450) < 1e-9);
}

GUARDED_TEST_MAIN(SpectrumSettingsCalibrationTest)
#include "spectrumsettingscalibrationtest.moc"
