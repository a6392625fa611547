// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibrationfit.h"
#include "guardedtest.h"

#include <cmath>

class CalibrationFitTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void aPolynomialIsFoundAgain_data();
    void aPolynomialIsFoundAgain();
    void residualsAreThoseOfTheStraightLine();
    void leavingAPointOutIsWorseThanKeepingIt();
    void theInverseIsTheInverse();
    void whatCannotBeIsToldInWords_data();
    void whatCannotBeIsToldInWords();
};

namespace {

constexpr int width = 2048;

double Truth(double pixel, int degree)
{
    const double u = pixel / (width - 1);
    const double coefficients[] = {390, 540, 8, -5, 3, -1};
    double nm = 0;
    for (int power = degree; power >= 0; --power)
        nm = nm * u + coefficients[power];
    return nm;
}

QVector<CalibrationPoint> Points(std::initializer_list<QPair<double, double>> pairs)
{
    QVector<CalibrationPoint> points;
    for (const auto &pair : pairs)
        points.append({pair.first, pair.second, QString()});
    return points;
}

} // namespace

void CalibrationFitTest::aPolynomialIsFoundAgain_data()
{
    QTest::addColumn<int>("degree");
    for (int degree = 1; degree <= 5; ++degree)
        QTest::addRow("degree %d", degree) << degree;
}

void CalibrationFitTest::aPolynomialIsFoundAgain()
{
    QFETCH(int, degree);
    QVector<CalibrationPoint> points;
    for (int i = 0; i < 12; ++i)
        points.append({20.25 + 180 * i, Truth(20.25 + 180 * i, degree), "Hg"});
    const CalibrationFit fit = FitCalibration(points, degree, width);
    QVERIFY2(fit.IsGood(), qPrintable(fit.fault));
    QVERIFY(fit.rmsPixel < 1e-7);
    QVERIFY(fit.leaveOneOutPixel < 1e-6);
    const QVector<double> powers = fit.calibration.PixelCoefficients();
    for (double pixel = 0; pixel < width; pixel += 100.7) {
        QVERIFY(std::abs(fit.calibration.Wavelength(pixel) - Truth(pixel, degree)) < 1e-7);
        double byPowers = 0;
        for (int power = degree; power >= 0; --power)
            byPowers = byPowers * pixel + powers[power];
        QVERIFY(std::abs(byPowers - Truth(pixel, degree)) < 1e-6);
    }
}

/// Worked out by hand: the best straight line through (0,0) (1,1) (2,3) is -1/6 + 3/2 x.
void CalibrationFitTest::residualsAreThoseOfTheStraightLine()
{
    const CalibrationFit fit = FitCalibration(Points({{0, 0}, {100, 100}, {200, 300}}), 1, 201);
    QVERIFY2(fit.IsGood(), qPrintable(fit.fault));
    QVERIFY(std::abs(fit.calibration.Wavelength(0) + 100.0 / 6) < 1e-9);
    QVERIFY(std::abs(fit.calibration.Dispersion(50) - 1.5) < 1e-9);
    const double expected[] = {-100.0 / 6 / 1.5, 100.0 / 3 / 1.5, -100.0 / 6 / 1.5};
    for (int i = 0; i < 3; ++i)
        QVERIFY(std::abs(fit.residualsPixel[i] - expected[i]) < 1e-9);
    QVERIFY(std::abs(fit.rmsNm - std::sqrt((2 * 10000.0 / 36 + 10000.0 / 9) / 3)) < 1e-9);
    // Without one of them the line goes through the other two: it misses the first by -100 (2 p - 100 at 0), the
    // middle one by 50 and the last one by -100.
    QVERIFY(std::abs(fit.leaveOneOutPixel - std::sqrt((10000.0 + 2500.0 + 10000.0) / 3) / 1.5) < 1e-9);
}

void CalibrationFitTest::leavingAPointOutIsWorseThanKeepingIt()
{
    QVector<CalibrationPoint> points;
    for (int i = 0; i < 8; ++i)
        points.append({100.0 + 250 * i, Truth(100.0 + 250 * i, 3) + (i % 2 ? 0.02 : -0.02), "Ne"});
    const CalibrationFit fit = FitCalibration(points, 3, width);
    QVERIFY(fit.IsGood());
    QVERIFY(fit.leaveOneOutPixel > fit.rmsPixel);
    points.resize(4);
    QVERIFY(FitCalibration(points, 3, width).leaveOneOutPixel < 0); // too few to tell
}

void CalibrationFitTest::theInverseIsTheInverse()
{
    QVector<CalibrationPoint> points;
    for (int i = 0; i < 6; ++i)
        points.append({100.0 + 300 * i, Truth(100.0 + 300 * i, 2), "Ne"});
    const SpectralCalibration calibration = FitCalibration(points, 2, width).calibration;
    for (const double pixel : {0.0, 17.3, 1023.5, 2047.0})
        QVERIFY(std::abs(calibration.PixelAt(calibration.Wavelength(pixel)) - pixel) < 1e-6);
    QVERIFY(std::abs(calibration.PixelAt(100)) < 1e-6);
    QVERIFY(std::abs(calibration.PixelAt(3000) - 2047) < 1e-6);
}

void CalibrationFitTest::whatCannotBeIsToldInWords_data()
{
    QTest::addColumn<QVector<CalibrationPoint>>("points");
    QTest::addColumn<int>("degree");
    QTest::addColumn<QString>("text");
    QTest::newRow("same pixel") << Points({{100, 400}, {100.2, 500}, {300, 600}}) << 1 << "Two points lie at pixel 100.00 (400.000 nm and 500.000 nm)";
    QTest::newRow("same line") << Points({{100, 400}, {200, 400}, {300, 600}}) << 1 << "Two points have the wavelength 400.000 nm";
    QTest::newRow("too few") << Points({{100, 400}, {200, 500}}) << 2 << "A polynomial of degree 2 needs at least 3 points and there are 2";
    QTest::newRow("none") << Points({}) << 1 << "A polynomial of degree 1 needs at least 2 points and there are 0";
    QTest::newRow("turns") << Points({{100, 400}, {1000, 600}, {1900, 401}}) << 2 << "does not rise or fall steadily (it turns at pixel";
    QTest::newRow("outside") << Points({{100, 400}, {5000, 600}}) << 1 << "The point at pixel 5000 lies outside the spectrum of 2048 pixels";
    QTest::newRow("no number") << Points({{100, 400}, {500, NAN}}) << 1 << "The point at pixel 500 lies outside";
    QTest::newRow("degree 6") << Points({{100, 400}, {500, 500}}) << 6 << "The degree must be from 1 to 5.";
}

void CalibrationFitTest::whatCannotBeIsToldInWords()
{
    QFETCH(QVector<CalibrationPoint>, points);
    QFETCH(int, degree);
    QFETCH(QString, text);
    const CalibrationFit fit = FitCalibration(points, degree, width);
    QVERIFY2(fit.fault.contains(text), qPrintable(fit.fault));
    QVERIFY(!fit.IsGood());
    QVERIFY(fit.calibration.IsNull());
}

GUARDED_TEST_MAIN(CalibrationFitTest)
#include "calibrationfittest.moc"
