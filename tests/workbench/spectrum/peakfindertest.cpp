// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "madespectra.h"
#include "peakfinder.h"
#include "rowbinning.h"
#include "sampleview.h"
#include "sceneexposure.h"
#include "spectrographoptics.h"
#include "spectrographscene.h"
#include "spectrumnoise.h"

/// Peaks of spectra that were made, so that every line is known.
class PeakFinderTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void noiseIsTheStandardDeviation_data();
    void noiseIsTheStandardDeviation();
    void noiseCutAtZeroIsThatBefore_data();
    void noiseCutAtZeroIsThatBefore();
    void linesDoNotCountAsNoise();
    void linesOverZerosDoNotCountAsNoise();
    void noiseAloneHasNoPeak_data();
    void noiseAloneHasNoPeak();
    void noiseOnWavesHasNoPeak();
    void falsePeaksAreAsRareAsWanted();
    void linesFiveTimesAboveTheNoiseAreFound_data();
    void linesFiveTimesAboveTheNoiseAreFound();
    void thePlaceIsBetterThanATenthOfASample_data();
    void thePlaceIsBetterThanATenthOfASample();
    void aLineThatIsCutOffKeepsItsPlace();
    void aSumWithFewSaturatedRowsIsSaturated();
    void twoLinesSideBySideAreTwo();
    void aSlopeIsNoPeak();
    void aWidthIsFoundThroughTheSmoothing();
    void everyLineOfTheSceneIsFoundWhereItIs();
    void fewOrOddSamplesHaveNoPeaks();
};

void PeakFinderTest::noiseIsTheStandardDeviation_data()
{
    QTest::addColumn<double>("noise");
    for (const double noise : {1.0, 3.0, 20.0, 300.0})
        QTest::addRow("%g counts", noise) << noise;
}

void PeakFinderTest::noiseIsTheStandardDeviation()
{
    QFETCH(double, noise);
    const double found = EstimateNoise(NoiseOnly(20000, 1000, noise, 5));
    // Rounding to whole counts makes the smallest coarser.
    QVERIFY2(std::abs(found / noise - 1) < (noise < 2 ? 0.2 : 0.05), qPrintable(QString::number(found)));
}

void PeakFinderTest::noiseCutAtZeroIsThatBefore_data()
{
    QTest::addColumn<double>("level");
    QTest::newRow("most is cut") << -40.0;
    QTest::newRow("half is cut") << 0.0;
    QTest::newRow("a third is cut") << 15.0;
}

/// A sensor, or a plot, has no values below 0. The noise is 30.
void PeakFinderTest::noiseCutAtZeroIsThatBefore()
{
    QFETCH(double, level);
    int found = 0;
    double noise = 0;
    constexpr unsigned spectra = 300;
    for (unsigned spectrum = 0; spectrum < spectra; ++spectrum) {
        std::vector<double> samples = NoiseOnly(2048, level, 30, spectrum);
        for (double &sample : samples)
            sample = std::max(0.0, sample);
        noise += EstimateNoise(samples) / spectra;
        found += int(FindPeaks(samples).size());
    }
    QCOMPARE(found, 0);
    QVERIFY2(std::abs(noise / 30 - 1) < 0.05, qPrintable(QString::number(noise)));
}

void PeakFinderTest::linesOverZerosDoNotCountAsNoise()
{
    std::vector<double> samples(2048, 0);
    for (int line = 0; line < 20; ++line)
        AddLine(&samples, 50 + 100 * line, 3000, 2.5);
    Round(&samples);
    QCOMPARE(int(FindPeaks(samples).size()), 20);
}

void PeakFinderTest::linesDoNotCountAsNoise()
{
    std::vector<double> samples = NoiseOnly(2048, 1000, 10, 5);
    for (int line = 0; line < 20; ++line)
        AddLine(&samples, 50 + 100 * line, 30000, 2.5);
    QVERIFY(std::abs(EstimateNoise(samples) / 10 - 1) < 0.4);
}

void PeakFinderTest::noiseAloneHasNoPeak_data()
{
    QTest::addColumn<double>("noise");
    QTest::newRow("half a count") << 0.5;
    QTest::newRow("1 count") << 1.0;
    QTest::newRow("30 counts") << 30.0;
}

void PeakFinderTest::noiseAloneHasNoPeak()
{
    QFETCH(double, noise);
    int found = 0;
    for (unsigned spectrum = 0; spectrum < 1000; ++spectrum)
        found += int(FindPeaks(NoiseOnly(2048, 500, noise, spectrum)).size());
    QCOMPARE(found, 0);
}

/// Light of a wide source, a hundred times as high as the noise and much wider than any line.
void PeakFinderTest::noiseOnWavesHasNoPeak()
{
    int found = 0;
    for (unsigned spectrum = 0; spectrum < 1000; ++spectrum) {
        std::vector<double> samples = NoiseOnly(2048, 1000, 5, spectrum, false);
        for (size_t i = 0; i < samples.size(); ++i)
            samples[i] += 300 * std::sin(double(i) / 150);
        Round(&samples);
        found += int(FindPeaks(samples).size());
    }
    QCOMPARE(found, 0);
}

/// The rate that the rules name, where it is high enough to be counted: 50 expected at most, and noise that is estimated.
void PeakFinderTest::falsePeaksAreAsRareAsWanted()
{
    PeakRules rules;
    rules.thousandsPerFalsePeak = 0.02;
    int found = 0;
    for (unsigned spectrum = 0; spectrum < 1000; ++spectrum)
        found += int(FindPeaks(NoiseOnly(2048, 500, 30, 20000 + spectrum), rules).size());
    QVERIFY2(found > 5 && found <= 50, qPrintable(QString::number(found)));
}

void PeakFinderTest::linesFiveTimesAboveTheNoiseAreFound_data()
{
    QTest::addColumn<double>("noise");
    QTest::addColumn<double>("sigma");
    QTest::addColumn<double>("height");
    QTest::addColumn<int>("most");
    for (const double noise : {1.0, 30.0}) {
        for (const double sigma : {1.5, 2.5, 4.0, 6.0})
            QTest::addRow("noise %g, line of sigma %g, 5 times the noise of a sample", noise, sigma) << noise << sigma << 5.0 << 0;
        // In the best of all filters such a line stands 5 sqrt(sqrt(pi)) = 6.66 deviations high. Noise alone in 1,000
        // spectra reaches 5.2 there, and the bar, which 20 lines lower to 5.01, is missed by 1 of 20: by 20 of 400, and
        // by 34 once in a thousand times.
        QTest::addRow("noise %g, line of sigma 1, 5 times the noise of a sample", noise) << noise << 1.0 << 5.0 << 34;
        QTest::addRow("noise %g, line of sigma 1, 6.5 times the noise of a sample", noise) << noise << 1.0 << 6.5 << 0;
    }
}

/// Of 400 lines, with noise added that lifts some and lowers others.
void PeakFinderTest::linesFiveTimesAboveTheNoiseAreFound()
{
    QFETCH(double, noise);
    QFETCH(double, sigma);
    QFETCH(double, height);
    QFETCH(int, most);
    const double ofSample = std::sqrt(noise * noise + 1.0 / 12); // rounding to whole counts adds its own
    const double reach = std::max(3.0, 1.5 * sigma);
    int missed = 0;
    for (unsigned spectrum = 0; spectrum < 20; ++spectrum) {
        std::vector<double> samples = NoiseOnly(2048, 500, noise, 7000 + spectrum, false);
        for (int line = 0; line < 20; ++line)
            AddLine(&samples, 52.3 + 100 * line, height * ofSample, sigma);
        Round(&samples);
        const std::vector<SpectralPeak> peaks = FindPeaks(samples);
        for (int line = 0; line < 20; ++line) {
            const auto isIt = [&](const SpectralPeak &peak) { return std::abs(peak.position - 52.3 - 100 * line) < reach; };
            missed += std::any_of(peaks.begin(), peaks.end(), isIt) ? 0 : 1;
        }
    }
    QVERIFY2(missed <= most, qPrintable(QString::number(missed)));
}

void PeakFinderTest::thePlaceIsBetterThanATenthOfASample_data()
{
    QTest::addColumn<double>("noise");
    QTest::addColumn<double>("height");
    QTest::newRow("1 count of noise") << 1.0 << 40.0;
    QTest::newRow("strong") << 20.0 << 20000.0;
}

void PeakFinderTest::thePlaceIsBetterThanATenthOfASample()
{
    QFETCH(double, noise);
    QFETCH(double, height);
    double squares = 0;
    for (unsigned i = 0; i < 100; ++i) {
        std::vector<double> samples = NoiseOnly(256, 500, noise, i, false);
        const double place = 100 + i / 100.0;
        AddLine(&samples, place, height, 2.2);
        Round(&samples);
        const std::vector<SpectralPeak> peaks = FindPeaks(samples);
        QCOMPARE(int(peaks.size()), 1);
        squares += std::pow(peaks[0].position - place, 2);
    }
    QVERIFY2(std::sqrt(squares / 100) < 0.1, qPrintable(QString::number(std::sqrt(squares / 100))));
}

void PeakFinderTest::aLineThatIsCutOffKeepsItsPlace()
{
    for (const double place : {300.0, 300.25, 300.5, 300.8}) {
        std::vector<double> samples = NoiseOnly(1024, 1000, 20, 3, false);
        AddLine(&samples, place, 200000, 4);
        Round(&samples, 65535);
        const std::vector<SpectralPeak> peaks = FindPeaks(samples);
        QCOMPARE(int(peaks.size()), 1);
        QVERIFY(peaks[0].isSaturated);
        QVERIFY2(std::abs(peaks[0].position - place) < 0.1, qPrintable(QString::number(peaks[0].position)));
    }
}

/// 40 rows, of which only a third is bright enough to be cut off: the top of the sum is not flat, but lower.
void PeakFinderTest::aSumWithFewSaturatedRowsIsSaturated()
{
    constexpr double most = 65535;
    for (const double place : {300.0, 300.3, 300.5}) {
        std::vector<double> sums(1024, 0);
        std::vector<quint8> saturated(sums.size(), 0);
        for (int row = 0; row < 40; ++row) {
            std::vector<double> samples = NoiseOnly(1024, 1000, 20, unsigned(row), false);
            AddLine(&samples, place, row < 14 ? 90000 : 30000, 4);
            AddLine(&samples, 700, 30000, 4);
            Round(&samples, most);
            for (size_t i = 0; i < sums.size(); ++i) {
                sums[i] += samples[i];
                saturated[i] |= quint8(samples[i] >= most);
            }
        }
        QVERIFY(!FindPeaks(sums).front().isSaturated); // nothing shows
        const std::vector<SpectralPeak> peaks = FindPeaks(sums, PeakRules(), saturated);
        QCOMPARE(int(peaks.size()), 2);
        QVERIFY(peaks[0].isSaturated && !peaks[1].isSaturated);
        QVERIFY2(std::abs(peaks[0].position - place) < 0.1, qPrintable(QString::number(peaks[0].position)));
    }
}

void PeakFinderTest::twoLinesSideBySideAreTwo()
{
    std::vector<double> samples = NoiseOnly(512, 1000, 10, 3, false);
    AddLine(&samples, 200.0, 5000, 2);
    AddLine(&samples, 207.5, 4000, 2);
    Round(&samples);
    const std::vector<SpectralPeak> peaks = FindPeaks(samples);
    QCOMPARE(int(peaks.size()), 2);
    QVERIFY(std::abs(peaks[0].position - 200.0) < 0.2);
    QVERIFY(std::abs(peaks[1].position - 207.5) < 0.2);
    QVERIFY(peaks[0].prominence > peaks[1].prominence);
}

void PeakFinderTest::aSlopeIsNoPeak()
{
    std::vector<double> samples = NoiseOnly(2048, 0, 5, 3, false);
    for (size_t i = 0; i < samples.size(); ++i)
        samples[i] += 20.0 * double(i);
    Round(&samples);
    QCOMPARE(int(FindPeaks(samples).size()), 0);
}

void PeakFinderTest::aWidthIsFoundThroughTheSmoothing()
{
    for (const double sigma : {1.5, 2.5, 5.0}) {
        std::vector<double> samples = NoiseOnly(512, 1000, 1, 3, false);
        AddLine(&samples, 250.2, 10000, sigma);
        const std::vector<SpectralPeak> peaks = FindPeaks(samples);
        QCOMPARE(int(peaks.size()), 1);
        QVERIFY2(std::abs(peaks[0].width / (2.3548 * sigma) - 1) < 0.05, qPrintable(QString::number(peaks[0].width)));
    }
}

/// The truth of the simulated lamp, at the middle row of its middle track.
void PeakFinderTest::everyLineOfTheSceneIsFoundWhereItIs()
{
    SpectrographScene scene(7);
    SceneExposure exposure(2048, 512, 16);
    exposure.Settings().exposureUs = 2000; // nothing is cut off
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
    const std::vector<SpectralPeak> peaks = FindPeaks(std::vector<double>(line.sums.begin(), line.sums.end()));
    double squares = 0;
    for (const EmissionLine &known : SpectrographOptics::Lines()) {
        const double place = truth.LinePosition(known.wavelengthNm, row);
        const auto nearest = std::min_element(peaks.begin(), peaks.end(), [&](const SpectralPeak &a, const SpectralPeak &b) {
            return std::abs(a.position - place) < std::abs(b.position - place);
        });
        QVERIFY(nearest != peaks.end());
        QVERIFY2(std::abs(nearest->position - place) < 0.3,
                 qPrintable(QString("%1 nm: %2 and not %3").arg(known.wavelengthNm).arg(nearest->position).arg(place)));
        squares += std::pow(nearest->position - place, 2);
    }
    QVERIFY(std::sqrt(squares / double(SpectrographOptics::Lines().size())) < 0.1);
}

void PeakFinderTest::fewOrOddSamplesHaveNoPeaks()
{
    QCOMPARE(int(FindPeaks({}).size()), 0);
    QCOMPARE(int(FindPeaks({1, 100, 1}).size()), 0);
    QCOMPARE(int(FindPeaks(std::vector<double>(500, 42.0)).size()), 0);
    QCOMPARE(int(FindPeaks(std::vector<double>(500, NAN)).size()), 0);
}

GUARDED_TEST_MAIN(PeakFinderTest)
#include "peakfindertest.moc"
