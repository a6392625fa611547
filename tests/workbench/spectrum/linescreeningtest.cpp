// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibrationfit.h"
#include "guardedtest.h"
#include "linescreening.h"

#include <cmath>
#include <random>

class LineScreeningTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void theUsualWidthIsThatOfStrongPeaks();
    void oddPeaksAreLeftOutWhileEnoughRemain();
    void aBlendOfListedLinesIsLeftOut();
    void outliersGoOneByOne();
    void goodPointsStay();
};

namespace {

constexpr int width = 1000;

std::vector<SpectralPeak> Peaks(std::initializer_list<double> widths)
{
    std::vector<SpectralPeak> peaks;
    for (const double peakWidth : widths) {
        SpectralPeak peak;
        peak.position = 10.0 * double(peaks.size());
        peak.height = 1000;
        peak.width = peakWidth;
        peaks.push_back(peak);
    }
    return peaks;
}

/// On a parabola, each missed by up to some hundredths of a pixel.
QVector<CalibrationPoint> Points(int count, unsigned seed = 5)
{
    std::mt19937 random(seed);
    std::normal_distribution<double> error(0, 0.02);
    QVector<CalibrationPoint> points;
    for (int i = 0; i < count; ++i) {
        const double pixel = 20 + 950.0 * i / (count - 1);
        points.append({pixel + error(random), 400 + 0.3 * pixel + 1e-5 * pixel * pixel, QString()});
    }
    return points;
}

} // namespace

void LineScreeningTest::theUsualWidthIsThatOfStrongPeaks()
{
    std::vector<SpectralPeak> peaks = Peaks({3, 3.1, 2.9, 6, 3, 0});
    QCOMPARE(UsualWidth(peaks), 3.0);
    for (int faint = 0; faint < 40; ++faint) {
        peaks.push_back(peaks.front());
        peaks.back().height = faint < 11 ? 30 : 20;
        peaks.back().width = faint < 11 ? 3 : 9;
    }
    QCOMPARE(UsualWidth(peaks), 3.0);
    QCOMPARE(UsualWidth({}), 0.0);
}

void LineScreeningTest::oddPeaksAreLeftOutWhileEnoughRemain()
{
    std::vector<SpectralPeak> peaks = Peaks({3, 3.6, 2.4, 4, 2, 0, 9});
    QCOMPARE(int(PeaksOfWidth(peaks, 3, 0).size()), 3);
    QCOMPARE(int(PeaksOfWidth(peaks, 3, 3).size()), 3);
    QCOMPARE(int(PeaksOfWidth(peaks, 3, 5).size()), 5); // 4 and 2 are the next, as far off
    QCOMPARE(int(PeaksOfWidth(peaks, 3, 100).size()), 7);
    peaks.back().isSaturated = true; // its half height is cut off
    QCOMPARE(int(PeaksOfWidth(peaks, 3, 0).size()), 4);
    QVERIFY(PeaksOfWidth({}, 3, 5).empty());
}

/// Neon has 878.062 and, half as strong, 878.375 nm; 849.536 stands alone. Argon has 772.376 and 772.421.
void LineScreeningTest::aBlendOfListedLinesIsLeftOut()
{
    const SpectralCalibration calibration = FitCalibration({{0, 700, QString()}, {999, 900, QString()}}, 1, width).calibration; // 0.2 nm a pixel
    const QVector<CalibrationPoint> points = {{calibration.PixelAt(849.536), 849.5359, "Ne"}, {calibration.PixelAt(878.062), 878.0622, "Ne"},
                                              {calibration.PixelAt(772.38), 772.3761, "Ar"}};
    const auto left = [&](const QVector<Lamp> &lamps, double peakWidth, int least) {
        QVector<double> nm;
        for (const CalibrationPoint &point : WithoutBlends(points, lamps, calibration, peakWidth, least))
            nm << point.nm;
        return nm;
    };
    QCOMPARE(left({Lamp::Neon, Lamp::Argon}, 4, 0), QVector<double>({849.5359}));
    QCOMPARE(left({Lamp::Neon, Lamp::Argon}, 1, 0), QVector<double>({849.5359, 878.0622})); // 1.6 pixels apart
    QCOMPARE(left({Lamp::Neon, Lamp::Argon}, 4, 2).size(), 3);
}

void LineScreeningTest::outliersGoOneByOne()
{
    QVector<CalibrationPoint> points = Points(14);
    points[3].pixel += 0.5;
    points[9].pixel -= 0.4;
    const QVector<CalibrationPoint> left = WithoutOutliers(points, 2, width, 12);
    QCOMPARE(left.size(), 12);
    QVERIFY(!left.contains(points[3]) && !left.contains(points[9]));
    QCOMPARE(WithoutOutliers(points, 2, width, 13).size(), 13);
    QCOMPARE(WithoutOutliers(points, 2, width, 14), points);
}

/// Three deviations are passed by accident now and then.
void LineScreeningTest::goodPointsStay()
{
    QCOMPARE(LeastScreenedPoints(3), 8);
    constexpr unsigned spectra = 200;
    int left = 0;
    for (unsigned spectrum = 0; spectrum < spectra; ++spectrum)
        left += WithoutOutliers(Points(20, spectrum), 3, width, LeastScreenedPoints(3)).size();
    QVERIFY2(left > 19 * int(spectra), qPrintable(QString::number(left)));
}

GUARDED_TEST_MAIN(LineScreeningTest)
#include "linescreeningtest.moc"
