// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibrationfit.h"
#include "guardedtest.h"
#include "lineassignment.h"
#include "rowbinning.h"
#include "sampleview.h"
#include "sceneexposure.h"
#include "spectrographoptics.h"
#include "spectrographscene.h"

#include <cmath>
#include <random>

class LineAssignmentTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void theMainLinesAreInTheLists_data();
    void theMainLinesAreInTheLists();
    void theSimulatedLampIsCalibrated_data();
    void theSimulatedLampIsCalibrated();
    void fourLinesAreAssigned();
    void peaksOfNothingAreNotAssigned();
    void theNearestOfBoth();
};

void LineAssignmentTest::theMainLinesAreInTheLists_data()
{
    QTest::addColumn<int>("lamp");
    QTest::addColumn<double>("nm");
    // Air wavelengths as in handbooks, to their usual three digits.
    const auto rows = [](Lamp lamp, std::initializer_list<double> lines) {
        for (const double nm : lines)
            QTest::addRow("%s %.3f", qPrintable(LampName(lamp)), nm) << int(lamp) << nm;
    };
    rows(Lamp::Mercury, {365.015, 404.656, 435.833, 546.074, 576.960, 579.066});
    rows(Lamp::Argon, {696.543, 763.511, 811.531, 912.297});
    rows(Lamp::Neon, {585.249, 640.225, 703.241, 724.517, 743.890, 837.761});
    rows(Lamp::Krypton, {557.029, 587.092, 760.154, 811.290, 819.005, 877.675, 892.869});
    rows(Lamp::Helium, {388.865, 447.148, 501.568, 587.562, 667.815, 706.519});
    rows(Lamp::Xenon, {467.123, 823.163, 828.012, 881.941, 895.225, 979.970});
}

void LineAssignmentTest::theMainLinesAreInTheLists()
{
    QFETCH(int, lamp);
    QFETCH(double, nm);
    const CalibrationPoint line = NearestLine({Lamp(lamp)}, nm, 1);
    QVERIFY2(std::abs(line.nm - nm) < 0.0016, qPrintable(QString::number(line.nm, 'f', 4)));
    QCOMPARE(line.line, LampName(Lamp(lamp)));
}

void LineAssignmentTest::theSimulatedLampIsCalibrated_data()
{
    QTest::addColumn<double>("first");
    QTest::addColumn<double>("last");
    QTest::newRow("range known about") << 370.0 << 950.0;
    QTest::newRow("nothing known") << 0.0 << 0.0;
}

void LineAssignmentTest::theSimulatedLampIsCalibrated()
{
    QFETCH(double, first);
    QFETCH(double, last);
    SpectrographScene scene(11);
    SceneExposure exposure(2048, 512, 16);
    exposure.Settings().exposureUs = 2000;
    exposure.Expose(scene);
    const SpectrographOptics truth(QSize(2048, 512));
    const int row = int(std::lround(truth.TrackCentre(1)));
    SampleView picture;
    picture.samples = exposure.Bytes().data();
    picture.width = 2048;
    picture.height = 512;
    picture.strideBytes = exposure.Settings().strideBytes;
    picture.bitDepth = 16;
    BinnedLine line;
    BinRows(picture, row - 6, row + 7, &line);

    AssignmentHints hints;
    hints.lamps = {Lamp::Mercury, Lamp::Argon};
    hints.width = 2048;
    hints.firstNm = first;
    hints.lastNm = last;
    const auto points = AssignLines(FindPeaks(std::vector<double>(line.sums.begin(), line.sums.end())), hints).points;
    QVERIFY2(points.size() >= 14, qPrintable(QString::number(points.size())));
    const CalibrationFit fit = FitCalibration(points, 3, 2048);
    QVERIFY2(fit.IsGood(), qPrintable(fit.fault));
    QVERIFY2(fit.rmsPixel < 0.1, qPrintable(QString::number(fit.rmsPixel)));
    for (const EmissionLine &known : SpectrographOptics::Lines()) {
        const double place = truth.LinePosition(known.wavelengthNm, row);
        const double off = (fit.calibration.Wavelength(place) - known.wavelengthNm) / fit.calibration.Dispersion(place);
        QVERIFY2(std::abs(off) < 0.1, qPrintable(QString("%1 nm is off by %2 pixels").arg(known.wavelengthNm).arg(off)));
    }
}

/// Whatever part of the spectrum they lie in: a cubic through all four would turn for some.
void LineAssignmentTest::fourLinesAreAssigned()
{
    std::mt19937 random(1);
    std::uniform_real_distribution<double> part(0, 1);
    std::normal_distribution<double> error(0, 0.15);
    for (int spectrum = 0; spectrum < 300; ++spectrum) {
        AssignmentHints hints;
        hints.lamps = {Lamp::Mercury};
        hints.width = 2048;
        hints.firstNm = 150 + 240 * part(random);
        hints.lastNm = 700 + 900 * part(random);
        const double range = hints.lastNm - hints.firstNm;
        const double bend = (part(random) - 0.5) * 0.06 * range;
        const auto nmAt = [&](double pixel) {
            const double place = pixel / (hints.width - 1);
            return hints.firstNm + range * place + bend * 4 * place * (1 - place);
        };
        std::vector<SpectralPeak> peaks;
        for (const double nm : {404.6563, 435.8328, 546.0735, 576.9598}) {
            double low = 0;
            double high = hints.width - 1;
            while (high - low > 1e-6) {
                const double middle = (low + high) / 2;
                (nmAt(middle) < nm ? low : high) = middle;
            }
            SpectralPeak peak;
            peak.position = low + error(random);
            peak.index = int(std::lround(peak.position));
            peak.height = nm > 540 && nm < 550 ? 2000 : 1000;
            peak.prominence = peak.height;
            peak.width = 3;
            peaks.push_back(peak);
        }
        const AssignedLines assigned = AssignLines(peaks, hints);
        QVERIFY2(assigned.points.size() == 4,
                 qPrintable(QString("%1 of %2 to %3 nm").arg(assigned.points.size()).arg(hints.firstNm).arg(hints.lastNm)));
    }
}

void LineAssignmentTest::peaksOfNothingAreNotAssigned()
{
    AssignmentHints hints;
    hints.lamps = {Lamp::Neon};
    hints.width = 1000;
    QVERIFY(AssignLines({}, hints).points.isEmpty());
    std::vector<SpectralPeak> evenly(5);
    for (size_t i = 0; i < evenly.size(); ++i)
        evenly[i].position = 1 + 0.1 * double(i);
    QVERIFY(AssignLines(evenly, hints).points.isEmpty());
    hints.lamps.clear();
    QVERIFY(AssignLines(evenly, hints).points.isEmpty());
}

void LineAssignmentTest::theNearestOfBoth()
{
    QCOMPARE(NearestLine({Lamp::Mercury, Lamp::Argon}, 546.3, 1).line, QString("Hg"));
    QCOMPARE(NearestLine({Lamp::Mercury, Lamp::Argon}, 500, 1).nm, 0.0);
    std::vector<SpectralPeak> peaks(2);
    peaks[0].position = 10;
    peaks[1].position = 20;
    QCOMPARE(NearestPeak(peaks, 14, 8), &peaks[0]);
    QCOMPARE(NearestPeak(peaks, 16, 8), &peaks[1]);
    QVERIFY(!NearestPeak(peaks, 40, 8));
}

GUARDED_TEST_MAIN(LineAssignmentTest)
#include "lineassignmenttest.moc"
