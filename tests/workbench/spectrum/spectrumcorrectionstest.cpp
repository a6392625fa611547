// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "madespectra.h"
#include "spectrumcorrections.h"

class SpectrumCorrectionsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void nothingOnChangesNothing();
    void theAverageIsThatOfTheNewest();
    void saturationStaysInTheAverage();
    void darkAndReference_data();
    void darkAndReference();
    void aDarkOfAnotherWidthIsLeftOutAndTold();
    void cosmicRaysGoAndSharpLinesStay();
    void aLampThatIsSwitchedOnIsNoCosmicRay();
    void theBaselineGoesAndTheLineStays();
    void theSentenceSaysAll();
};

namespace {

Spectrum Of(const std::vector<double> &values)
{
    return {values, std::vector<quint8>(values.size(), 0), 0};
}

} // namespace

void SpectrumCorrectionsTest::nothingOnChangesNothing()
{
    SpectrumCorrections corrections;
    QVERIFY(corrections.Apply(Of({5, 7, 9})).values == std::vector<double>({5, 7, 9}));
    QCOMPARE(corrections.Description(3), QString("No correction is on."));
}

void SpectrumCorrectionsTest::theAverageIsThatOfTheNewest()
{
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.averaged = 2;
    corrections.SetSettings(settings);
    QVERIFY(corrections.Apply(Of({10, 0})).values == std::vector<double>({10, 0}));
    QVERIFY(corrections.Apply(Of({20, 0})).values == std::vector<double>({15, 0}));
    QVERIFY(corrections.Apply(Of({60, 0})).values == std::vector<double>({40, 0}));
    QVERIFY(corrections.Apply(Of({1, 2, 3})).values == std::vector<double>({1, 2, 3})); // another width
}

void SpectrumCorrectionsTest::saturationStaysInTheAverage()
{
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.averaged = 2;
    corrections.SetSettings(settings);
    Spectrum cutOff = Of({100, 5});
    cutOff.saturated[0] = 1;
    corrections.Apply(cutOff);
    QCOMPARE(corrections.Apply(Of({90, 5})).saturated, std::vector<quint8>({1, 0}));
    QCOMPARE(corrections.Apply(Of({90, 5})).saturated, std::vector<quint8>({0, 0}));
}

void SpectrumCorrectionsTest::darkAndReference_data()
{
    QTest::addColumn<bool>("dark");
    QTest::addColumn<bool>("reference");
    QTest::addColumn<int>("quantity");
    QTest::addColumn<double>("value");
    const auto counts = int(SpectrumQuantity::Counts);
    QTest::newRow("dark") << true << false << counts << 400.0;
    QTest::newRow("reference") << false << true << counts << -600.0;
    QTest::newRow("both") << true << true << counts << -600.0;
    QTest::newRow("transmission") << true << false << int(SpectrumQuantity::Transmission) << 0.4;
    QTest::newRow("transmission without dark") << false << false << int(SpectrumQuantity::Transmission) << 500.0 / 1100;
    QTest::newRow("absorbance") << true << false << int(SpectrumQuantity::Absorbance) << 0.39794000867;
}

/// Sample 500, dark 100, reference 1100.
void SpectrumCorrectionsTest::darkAndReference()
{
    QFETCH(bool, dark);
    QFETCH(bool, reference);
    QFETCH(int, quantity);
    QFETCH(double, value);
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.subtractsDark = dark;
    settings.subtractsReference = reference;
    settings.quantity = SpectrumQuantity(quantity);
    corrections.SetSettings(settings);
    corrections.SetDark({100, 100});
    corrections.SetReference({1100, 100});
    const Spectrum result = corrections.Apply(Of({500, 500}));
    QVERIFY2(std::abs(result.values[0] - value) < 1e-9, qPrintable(QString::number(result.values[0])));
    QVERIFY(std::isfinite(result.values[1])); // no light in the reference
}

void SpectrumCorrectionsTest::aDarkOfAnotherWidthIsLeftOutAndTold()
{
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.subtractsDark = true;
    corrections.SetSettings(settings);
    corrections.SetDark({100, 100, 100});
    QVERIFY(corrections.Apply(Of({500, 500})).values == std::vector<double>({500, 500}));
    QCOMPARE(corrections.Description(2), QString("Corrections: no dark spectrum of this width to subtract."));
    QCOMPARE(corrections.Description(3), QString("Corrections: dark subtracted."));
}

void SpectrumCorrectionsTest::cosmicRaysGoAndSharpLinesStay()
{
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.removesCosmicRays = true;
    corrections.SetSettings(settings);
    Spectrum last;
    for (unsigned i = 0; i < 5; ++i) {
        std::vector<double> values = NoiseOnly(1024, 1000, 10, i);
        AddLine(&values, 300, 20000, 0.8);
        if (i == 4)
            values[700] += 3000;
        last = corrections.Apply(Of(values));
    }
    QVERIFY2(std::abs(last.values[700] - 1000) < 60, qPrintable(QString::number(last.values[700])));
    QVERIFY2(std::abs(last.values[300] - 21000) < 60, qPrintable(QString::number(last.values[300])));
}

void SpectrumCorrectionsTest::aLampThatIsSwitchedOnIsNoCosmicRay()
{
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.removesCosmicRays = true;
    corrections.SetSettings(settings);
    for (unsigned i = 0; i < 3; ++i)
        corrections.Apply(Of(NoiseOnly(1024, 100, 3, i)));
    const std::vector<double> bright = NoiseOnly(1024, 5000, 3, 9);
    QVERIFY(corrections.Apply(Of(bright)).values == bright);
}

void SpectrumCorrectionsTest::theBaselineGoesAndTheLineStays()
{
    std::vector<double> samples(1024);
    for (size_t i = 0; i < samples.size(); ++i)
        samples[i] = 1000 + 300 * std::sin(double(i) / 400);
    AddLine(&samples, 500, 5000, 3);
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.removesBaseline = true;
    corrections.SetSettings(settings);
    const std::vector<double> values = corrections.Apply(Of(samples)).values;
    QVERIFY2(std::abs(values[500] - 5000) < 50, qPrintable(QString::number(values[500])));
    QVERIFY2(std::abs(values[200]) < 20, qPrintable(QString::number(values[200])));
}

void SpectrumCorrectionsTest::theSentenceSaysAll()
{
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.removesCosmicRays = true;
    settings.averaged = 8;
    settings.subtractsDark = true;
    settings.quantity = SpectrumQuantity::Transmission;
    settings.removesBaseline = true;
    settings.smoothing = 6;
    corrections.SetSettings(settings);
    corrections.SetDark({1, 1});
    corrections.SetReference({2, 2});
    QCOMPARE(corrections.Description(2), QString("Corrections: cosmic rays removed, average of 8, dark subtracted, "
                                                 "transmission in 1/100 %, baseline removed, smoothed over 7 samples."));
}

GUARDED_TEST_MAIN(SpectrumCorrectionsTest)
#include "spectrumcorrectionstest.moc"
