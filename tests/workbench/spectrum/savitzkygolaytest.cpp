// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "savitzkygolay.h"

#include <cmath>

class SavitzkyGolayTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void theWeightsAreThoseOfTheTables();
    void aPolynomialStaysAsItIsUpToTheEnds();
    void tooFewSamplesStayAsTheyAre();
};

/// A single 1 shows the weights: -3 12 17 12 -3 over 35 for five points and a cubic (Savitzky and Golay, 1964).
void SavitzkyGolayTest::theWeightsAreThoseOfTheTables()
{
    std::vector<double> samples(11, 0.0);
    samples[5] = 35;
    const std::vector<double> smooth = SavitzkyGolay(samples, 5, 3);
    const std::vector<double> expected = {0, 0, 0, -3, 12, 17, 12, -3, 0, 0, 0};
    for (size_t i = 2; i < 9; ++i)
        QVERIFY2(std::abs(smooth[i] - expected[i]) < 1e-9, qPrintable(QString::number(smooth[i])));
}

void SavitzkyGolayTest::aPolynomialStaysAsItIsUpToTheEnds()
{
    std::vector<double> samples;
    for (int i = 0; i < 40; ++i)
        samples.push_back(3 - 2.0 * i + 0.5 * i * i - 0.01 * i * i * i);
    const std::vector<double> smooth = SavitzkyGolay(samples, 9, 3);
    for (size_t i = 0; i < samples.size(); ++i)
        QVERIFY(std::abs(smooth[i] - samples[i]) < 1e-8);
}

void SavitzkyGolayTest::tooFewSamplesStayAsTheyAre()
{
    const std::vector<double> samples = {1, 5, 2};
    QVERIFY(SavitzkyGolay(samples, 5, 3) == samples);
    QVERIFY(SavitzkyGolay(samples, 3, 3) == samples);
    QVERIFY(SavitzkyGolay({}, 5, 3).empty());
}

GUARDED_TEST_MAIN(SavitzkyGolayTest)
#include "savitzkygolaytest.moc"
