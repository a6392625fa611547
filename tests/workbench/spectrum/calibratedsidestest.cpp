// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibrationfit.h"
#include "settingsfixture.h"

#include <cmath>

Q_DECLARE_METATYPE(SensorFrame)

/// Spectra along the rows and along the columns, and which of the two a calibration is that of.
class CalibratedSidesTest : public SettingsFixture
{
    Q_OBJECT

private slots:
    void theAxisOfTheRowsOfAFileIsThatOfSpectraAlongItsColumns();
    void theOtherSideOfAFileWithAnAxisIsNotAssumedToBeOurs();
    void oursTakesThePlaceOfAnAxisOfTheRowsToo();
    void filesAreAssumedToLieAsWhatWasCalibratedLive_data();
    void filesAreAssumedToLieAsWhatWasCalibratedLive();
    void recordingsHaveTheCalibrationOfTheirSide_data();
    void recordingsHaveTheCalibrationOfTheirSide();

private:
    /// What is shown of the sensor from now on.
    void Show(const SensorFrame &frame);
};

namespace {

/// A picture of `width` columns as it is in its file.
SpectralPicture Opened(const SpectralAxis &axis, int width)
{
    const QSize size(width, 200);
    return { 1, size, QRect(QPoint(0, 0), size), Orientation(), axis, axis };
}

/// 100 nm and one more for each pixel.
SpectralAxis Other(SpectralSide side, int count)
{
    SpectralAxis axis;
    axis.unit = SpectralUnit::Nanometre;
    axis.side = side;
    for (int pixel = 0; pixel < count; ++pixel)
        axis.values << 100 + pixel;
    return axis;
}

/// 400 + 0.25 nm a pixel on 1000 pixels.
SpectralCalibration Straight()
{
    QVector<CalibrationPoint> points;
    points.append({ 0, 400, QString() });
    points.append({ 400, 500, QString() });
    return FitCalibration(points, 1, 1000).calibration;
}

} // namespace

void CalibratedSidesTest::Show(const SensorFrame &frame)
{
    m_settings->SetSensorFrame(frame);
    m_settings->slotSetFrameSize(frame.orientation.Map(frame.region.size() / frame.binning));
}

void CalibratedSidesTest::theAxisOfTheRowsOfAFileIsThatOfSpectraAlongItsColumns()
{
    m_settings->SetImage(Opened(Other(SpectralSide::Rows, 200), 200));
    m_settings->slotSetImageShown(true);
    double x = 0;
    QVERIFY(!m_settings->Calculate(7, x));
    QCOMPARE(m_settings->GetTitleName(), QString("Pixel Number"));
    m_settings->SetHorizontal(false);
    QVERIFY(m_settings->Calculate(7, x));
    QCOMPARE(x, 107.0);
    QCOMPARE(m_settings->GetTitleName(), QString("Wavelength [nm]"));
    m_settings->SetUnit(SpectralUnit::Wavenumber);
    QVERIFY(m_settings->Calculate(25, x));
    QCOMPARE(x, 80000.0);
}

void CalibratedSidesTest::theOtherSideOfAFileWithAnAxisIsNotAssumedToBeOurs()
{
    Show({ QRect(100, 50, 1000, 1000), 1, Orientation() });
    m_settings->SetCalibration(Straight(), m_settings->ShownFrame());
    m_settings->slotSetImageShown(true);
    double x = 0;
    m_settings->SetImage(Opened(SpectralAxis(), 1000));
    QVERIFY(m_settings->Calculate(200, x)); // it says nothing
    m_settings->SetImage(Opened(Other(SpectralSide::Rows, 200), 1000));
    QVERIFY(!m_settings->Calculate(200, x)); // it says that its spectra lie along the other side
    QCOMPARE(m_settings->GetTitleName(), QString("Pixel Number"));
    // But one that is made on it holds.
    m_settings->SetCalibration(Straight(), m_settings->ShownFrame());
    QVERIFY(m_settings->Calculate(200, x));
    QCOMPARE(x, 450.0);
    m_settings->SetHorizontal(false);
    QVERIFY(m_settings->Calculate(20, x));
    QCOMPARE(x, 120.0);
}

void CalibratedSidesTest::oursTakesThePlaceOfAnAxisOfTheRowsToo()
{
    const QSize size(200, 1000);
    const SpectralAxis wrong = Other(SpectralSide::Rows, 1000);
    const SpectralPicture picture{ 1, size, QRect(QPoint(0, 0), size), Orientation(), wrong, wrong };
    m_settings->SetImage(picture);
    m_settings->slotSetImageShown(true);
    m_settings->SetHorizontal(false);
    double x = 0;
    QVERIFY(m_settings->Calculate(200, x));
    QCOMPARE(x, 300.0);
    QVERIFY(m_settings->ImageCalibration().isEmpty());
    m_settings->SetCalibration(Straight(), m_settings->ShownFrame());
    QVERIFY(m_settings->Calculate(200, x));
    QCOMPARE(x, 450.0);
    QString fault;
    const SpectralAxis saved = AxisOfMetadata(m_settings->ImageCalibration(), size, &fault);
    QCOMPARE(int(saved.side), int(SpectralSide::Rows));
    QCOMPARE(saved.values.value(200), 450.0);
}

void CalibratedSidesTest::filesAreAssumedToLieAsWhatWasCalibratedLive_data()
{
    QTest::addColumn<int>("turns"); // of the live picture
    QTest::addColumn<bool>("horizontal");
    for (const int turns : { 0, 1 }) {
        QTest::addRow("along the rows, %d turns", turns) << turns << true;
        QTest::addRow("along the columns, %d turns", turns) << turns << false;
    }
}

/// Whichever side of the sensor that was: a recording is as the live picture was seen.
void CalibratedSidesTest::filesAreAssumedToLieAsWhatWasCalibratedLive()
{
    QFETCH(int, turns);
    QFETCH(bool, horizontal);
    m_settings->SetHorizontal(horizontal);
    Show({ QRect(0, 0, 1000, 1000), 1, Orientation(false, turns) });
    m_settings->SetCalibration(Straight(), m_settings->ShownFrame());
    m_settings->slotSetImageShown(true);
    const QSize size(1000, 1000);
    m_settings->SetImage(
        { 1, size, QRect(QPoint(0, 0), size), Orientation(), SpectralAxis(), SpectralAxis() });
    double x = 0;
    QVERIFY(m_settings->Calculate(200, x));
    QCOMPARE(x, 450.0);
    m_settings->SetHorizontal(!horizontal);
    QVERIFY(!m_settings->Calculate(200, x));
}

void CalibratedSidesTest::recordingsHaveTheCalibrationOfTheirSide_data()
{
    QTest::addColumn<SensorFrame>("frame");
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<double>("first"); // nm
    QTest::addColumn<double>("step");
    const QRect same(50, 100, 1000, 1000);
    const QRect part(0, 300, 100, 400);
    const Orientation upright;
    QTest::newRow("as it was") << SensorFrame{ same, 1, upright } << false << 400.0 << 0.25;
    QTest::newRow("upside down") << SensorFrame{ same, 1, upright.FlippedVertically() } << false << 649.75
                                 << -0.25;
    QTest::newRow("mirrored") << SensorFrame{ same, 1, upright.FlippedHorizontally() } << false << 400.0
                              << 0.25;
    QTest::newRow("a quarter, along the rows")
        << SensorFrame{ same, 1, upright.RotatedLeft() } << true << 400.0 << 0.25;
    QTest::newRow("a quarter to the right")
        << SensorFrame{ same, 1, upright.RotatedRight() } << true << 649.75 << -0.25;
    QTest::newRow("a region in it") << SensorFrame{ part, 1, upright } << false << 450.0 << 0.25;
    QTest::newRow("half a turn, binned")
        << SensorFrame{ part, 2, Orientation(false, 2) } << false << 549.625 << -0.5;
    QTest::newRow("along the other side") << SensorFrame{ same, 1, upright } << true << 0.0 << 0.0;
}

/// Calibrated with 1000 rows from row 100 on, upright: 400 nm in the first and 0.25 nm in each.
void CalibratedSidesTest::recordingsHaveTheCalibrationOfTheirSide()
{
    QFETCH(SensorFrame, frame);
    QFETCH(bool, horizontal);
    QFETCH(double, first);
    QFETCH(double, step);
    m_settings->SetHorizontal(false);
    Show({ QRect(50, 100, 1000, 1000), 1, Orientation() });
    m_settings->SetCalibration(Straight(), m_settings->ShownFrame());
    m_settings->SetHorizontal(horizontal);
    Show(frame);
    const QSize recorded = frame.orientation.Map(frame.region.size() / frame.binning);
    QString fault;
    const SpectralAxis axis = AxisOfMetadata(m_settings->LiveCalibration(frame), recorded, &fault);
    QCOMPARE(fault, QString());
    QCOMPARE(axis.IsEmpty(), step == 0);
    for (int pixel = 0; pixel < axis.values.size(); ++pixel)
        QVERIFY(std::abs(axis.values[pixel] - (first + step * pixel)) < 1e-9);
    if (!axis.IsEmpty())
        QCOMPARE(int(axis.side), int(horizontal ? SpectralSide::Columns : SpectralSide::Rows));
}

GUARDED_TEST_MAIN(CalibratedSidesTest)
#include "calibratedsidestest.moc"
