// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "linepayload.h"
#include "madespectra.h"
#include "peakfinding.h"

#include <QSignalSpy>

#include <algorithm>

Q_DECLARE_METATYPE(CorrectionSettings)

/// Peaks in what the plots are given, which has nothing below 0, nor fractions.
class PeakFindingTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void thePlotTakesPeaksByIndex();
    void correctedNoiseHasNoPeak_data();
    void correctedNoiseHasNoPeak();
    void aLineOutOfCutNoiseIsFound();
    void tracksAreSearchedUncut();
    void whatNobodyKnowsIsSearchedAsItIs();
};

namespace {

constexpr int count = 2048;
constexpr int window = 15;
constexpr float threshold = 10;

Spectrum Noise(double level, double noise, unsigned seed) { return {NoiseOnly(count, level, noise, seed), std::vector<quint8>(count, 0)}; }

/// Noise, with all that was done to it.
SpectrumProduct Corrected(const CorrectionSettings &settings, double level, double noise, unsigned seed)
{
    SpectrumCorrections corrections;
    corrections.SetSettings(settings);
    corrections.SetDark(Noise(level / 2, noise, 100000 + seed));
    corrections.SetReference(Noise(level, noise, 200000 + seed));
    SpectrumProduct product;
    product.corrected = corrections.Apply(Noise(level, noise, seed));
    product.corrections = corrections.Applied();
    return product;
}

std::vector<unsigned> Plotted(const Spectrum &spectrum, SpectrumQuantity quantity)
{
    std::vector<unsigned> data;
    std::transform(spectrum.values.begin(), spectrum.values.end(), std::back_inserter(data),
                   [quantity](double value) { return PlotValue(value, quantity); });
    return data;
}

std::vector<int> PeaksOf(PeakFinding *finding, std::vector<unsigned> data)
{
    std::vector<int> peaks;
    finding->Findcurvepeak(data.data(), int(data.size()), 0, peaks, window, threshold, 0);
    return peaks;
}

CorrectionSettings BaselineRemoved()
{
    CorrectionSettings settings;
    settings.removesBaseline = true;
    return settings;
}

} // namespace

void PeakFindingTest::thePlotTakesPeaksByIndex()
{
    PeakFinding finding;
    QSignalSpy counted(&finding, &PeakFinding::signalCounted);
    std::vector<unsigned> data(500, 1000);
    for (size_t i = 0; i < data.size(); ++i)
        data[i] += unsigned(i * 7919 % 5);
    for (const int place : {100, 250, 400}) {
        for (int i = -8; i <= 8; ++i)
            data[size_t(place + i)] += unsigned((place == 250 ? 900 : 3000) * std::exp(-0.5 * i * i / 4.0));
    }
    std::vector<int> peaks = {1, 2, 3};
    finding.Findcurvepeak(data.data(), 500, 2, peaks, window, threshold, 0);
    QCOMPARE(peaks, std::vector<int>({100, 400}));
    QCOMPARE(finding.Marked(), 2);
    QCOMPARE(finding.Found(), 3);
    finding.Findcurvepeak(data.data(), 500, 2, peaks, window, threshold, 0);
    QCOMPARE(counted.count(), 1);
    finding.Findcurvepeak(data.data(), 500, 0, peaks, window, threshold, 0);
    QCOMPARE(peaks, std::vector<int>({100, 250, 400}));
    QCOMPARE(finding.Marked(), 3);
    QCOMPARE(counted.count(), 2);
    finding.Findcurvepeak(nullptr, 500, 2, peaks, window, threshold, 0);
    QVERIFY(peaks.empty());
}

void PeakFindingTest::correctedNoiseHasNoPeak_data()
{
    QTest::addColumn<CorrectionSettings>("settings");
    QTest::addColumn<double>("noise");
    QTest::addColumn<unsigned>("spectra");
    CorrectionSettings settings;
    settings.subtractsReference = true; // of the same light: nothing is left
    QTest::newRow("reference subtracted, 1 count") << settings << 1.0 << 200U;
    QTest::newRow("reference subtracted, 30 counts") << settings << 30.0 << 1000U;
    settings.subtractsDark = true;
    settings.quantity = SpectrumQuantity::Absorbance;
    QTest::newRow("absorbance") << settings << 30.0 << 1000U;
    settings.quantity = SpectrumQuantity::Transmission;
    QTest::newRow("transmission") << settings << 30.0 << 200U;
    QTest::newRow("baseline removed") << BaselineRemoved() << 30.0 << 1000U;
    settings = BaselineRemoved();
    settings.smoothing = 21;
    QTest::newRow("baseline removed and smoothed") << settings << 30.0 << 200U;
    settings.removesBaseline = false;
    QTest::newRow("smoothed") << settings << 30.0 << 200U;
}

void PeakFindingTest::correctedNoiseHasNoPeak()
{
    QFETCH(CorrectionSettings, settings);
    QFETCH(double, noise);
    QFETCH(unsigned, spectra);
    SpectrumProduct product;
    PeakFinding finding([&product] { return &product; });
    size_t found = 0;
    for (unsigned spectrum = 0; spectrum < spectra; ++spectrum) {
        product = Corrected(settings, 4000, noise, spectrum);
        QVERIFY(product.corrections.Quantity() == settings.quantity);
        found += PeaksOf(&finding, Plotted(product.corrected, settings.quantity)).size();
    }
    QCOMPARE(found, size_t(0));
}

void PeakFindingTest::aLineOutOfCutNoiseIsFound()
{
    CorrectionSettings settings;
    settings.subtractsReference = true;
    SpectrumProduct product;
    PeakFinding finding([&product] { return &product; });
    for (unsigned spectrum = 0; spectrum < 50; ++spectrum) {
        product = Corrected(settings, 4000, 30, spectrum);
        // The noise of both spectra together, eight times.
        AddLine(&product.corrected.values, 700, 8 * 30 * std::sqrt(2.0), 2.5);
        const std::vector<int> peaks = PeaksOf(&finding, Plotted(product.corrected, SpectrumQuantity::Counts));
        QCOMPARE(peaks.size(), size_t(1));
        QVERIFY2(std::abs(peaks.front() - 700) <= 3, qPrintable(QString::number(peaks.front())));
    }
}

void PeakFindingTest::tracksAreSearchedUncut()
{
    SpectrumProduct product;
    PeakFinding finding([&product] { return &product; });
    for (unsigned spectrum = 0; spectrum < 100; ++spectrum) {
        product.tracks = {Corrected(BaselineRemoved(), 4000, 30, spectrum).corrected,
                          Corrected(BaselineRemoved(), 900, 30, spectrum + 500).corrected};
        AddLine(&product.tracks[1].values, 700, 400, 2.5);
        QVERIFY(PeaksOf(&finding, Plotted(product.tracks[0], SpectrumQuantity::Counts)).empty());
        QCOMPARE(PeaksOf(&finding, Plotted(product.tracks[1], SpectrumQuantity::Counts)).size(), size_t(1));
    }
}

/// The row of a picture, while another spectrum is there.
void PeakFindingTest::whatNobodyKnowsIsSearchedAsItIs()
{
    SpectrumProduct product = Corrected(BaselineRemoved(), 4000, 30, 1);
    PeakFinding finding([&product] { return &product; }, [] { return true; });
    std::vector<double> row = NoiseOnly(count, 500, 5, 9);
    AddLine(&row, 300, 900, 2);
    const std::vector<int> peaks = PeaksOf(&finding, std::vector<unsigned>(row.begin(), row.end()));
    QCOMPARE(peaks.size(), size_t(1));
    QVERIFY(std::abs(peaks.front() - 300) <= 1);
    QCOMPARE(finding.Found(), 1);

    // The camera's page, behind that of the opened file, draws its own.
    AddLine(&product.corrected.values, 700, 4000, 2.5);
    AddLine(&product.corrected.values, 900, 4000, 2.5);
    QCOMPARE(PeaksOf(&finding, Plotted(product.corrected, SpectrumQuantity::Counts)).size(), size_t(2));
    QCOMPARE(finding.Found(), 1);
}

GUARDED_TEST_MAIN(PeakFindingTest)
#include "peakfindingtest.moc"
