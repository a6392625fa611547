// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "madespectra.h"
#include "spectrumcorrections.h"

/// What is taken for a cosmic ray in one spectrum after another, and what is not.
class CosmicRaysTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void cosmicRaysGoAndSharpLinesStay();
    void aLampThatIsSwitchedOnIsNoCosmicRay();
    void linesThatStayAreSeenFromTheirSecondFrameOn();
    void twoRaysInTwoFramesGo();
};

namespace {

Spectrum Of(const std::vector<double> &values)
{
    return {values, std::vector<quint8>(values.size(), 0), 0};
}

} // namespace

void CosmicRaysTest::cosmicRaysGoAndSharpLinesStay()
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

void CosmicRaysTest::aLampThatIsSwitchedOnIsNoCosmicRay()
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

/// Fewer samples than those of a lamp jump, and nothing but their staying tells them from rays.
void CosmicRaysTest::linesThatStayAreSeenFromTheirSecondFrameOn()
{
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.removesCosmicRays = true;
    corrections.SetSettings(settings);
    constexpr unsigned first = 10;
    for (unsigned i = 0; i < first + 5; ++i) {
        std::vector<double> values = NoiseOnly(2048, 1000, 10, i);
        for (const double line : {200, 500, 900, 1400, 1900})
            AddLine(&values, line, i < first ? 0 : 20000, 2);
        const Spectrum corrected = corrections.Apply(Of(values));
        for (const size_t line : {200, 500, 900, 1400, 1900}) {
            const double expected = i <= first ? 1000 : 21000;
            QVERIFY2(std::abs(corrected.values[line] - expected) < 100,
                     qPrintable(QString("%1 in frame %2").arg(corrected.values[line]).arg(i)));
        }
    }
}

/// What one of them left among the spectra before hides no other.
void CosmicRaysTest::twoRaysInTwoFramesGo()
{
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.removesCosmicRays = true;
    corrections.SetSettings(settings);
    for (unsigned i = 0; i < 8; ++i) {
        std::vector<double> values = NoiseOnly(1024, 1000, 10, i);
        if (i == 4 || i == 5)
            values[i == 4 ? 300 : 700] += 3000;
        const Spectrum corrected = corrections.Apply(Of(values));
        QVERIFY2(std::abs(corrected.values[300] - 1000) < 60, qPrintable(QString::number(corrected.values[300])));
        QVERIFY2(std::abs(corrected.values[700] - 1000) < 60, qPrintable(QString::number(corrected.values[700])));
    }
}

GUARDED_TEST_MAIN(CosmicRaysTest)
#include "cosmicraystest.moc"
