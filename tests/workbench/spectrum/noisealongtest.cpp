// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "madespectra.h"
#include "matchedfilter.h"
#include "noisealong.h"

/// The noise of each sample of spectra whose noise is known.
class NoiseAlongTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void smallNoiseOfWholeNumbersIsKnown_data();
    void smallNoiseOfWholeNumbersIsKnown();
    void linesDoNotCount();
    void aNoisyStretchIsNoisy();
    void nothingButTheSameHasTheNoiseOfRounding();
};

namespace {

constexpr double level = 500;

FilteredNoise Filtered(const std::vector<double> &samples)
{
    const MatchedFilter filter(2.5);
    FilteredNoise filtered;
    filtered.curve = filter.Apply(samples);
    filtered.background.assign(samples.size(), level);
    filtered.noiseShare = filter.NoiseShare(int(samples.size() / 2), int(samples.size()));
    return filtered;
}

} // namespace

void NoiseAlongTest::smallNoiseOfWholeNumbersIsKnown_data()
{
    QTest::addColumn<double>("noise");
    for (const double noise : {0.5, 0.7, 1.0, 3.0, 30.0})
        QTest::addRow("%g counts", noise) << noise;
}

void NoiseAlongTest::smallNoiseOfWholeNumbersIsKnown()
{
    QFETCH(double, noise);
    double mean = 0;
    for (unsigned spectrum = 0; spectrum < 50; ++spectrum) {
        const std::vector<double> samples = NoiseOnly(2048, level, noise, spectrum);
        mean += NoiseAlong(samples, Filtered(samples))[1000] / 50;
    }
    const double truth = std::sqrt(noise * noise + 1.0 / 12); // rounding adds its own
    QVERIFY2(std::abs(mean / truth - 1) < 0.02, qPrintable(QString::number(mean / truth)));
}

void NoiseAlongTest::linesDoNotCount()
{
    std::vector<double> samples = NoiseOnly(2048, level, 10, 5);
    for (int line = 0; line < 40; ++line)
        AddLine(&samples, 20 + 50 * line, line % 2 ? 100 : 30000, 1.5);
    for (const double noise : NoiseAlong(samples, Filtered(samples)))
        QVERIFY2(std::abs(noise / 10 - 1) < 0.1, qPrintable(QString::number(noise)));
}

void NoiseAlongTest::aNoisyStretchIsNoisy()
{
    std::vector<double> samples = NoiseOnly(2048, level, 10, 5, false);
    for (size_t i = 1600; i < samples.size(); ++i)
        samples[i] += 4 * (samples[i] - level);
    const std::vector<double> noise = NoiseAlong(samples, Filtered(samples));
    QVERIFY2(noise[500] > 9 && noise[500] < 15, qPrintable(QString::number(noise[500])));
    QVERIFY2(std::abs(noise[1800] / 50 - 1) < 0.2, qPrintable(QString::number(noise[1800])));
}

void NoiseAlongTest::nothingButTheSameHasTheNoiseOfRounding()
{
    const std::vector<double> samples(300, level);
    QCOMPARE(NoiseAlong(samples, Filtered(samples))[10], std::sqrt(1.0 / 12));
}

GUARDED_TEST_MAIN(NoiseAlongTest)
#include "noisealongtest.moc"
