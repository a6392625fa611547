// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "madespectra.h"
#include "matchedfilter.h"

class MatchedFilterTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void aLineStandsAsHighAsTheoryHasIt_data();
    void aLineStandsAsHighAsTheoryHasIt();
    void noiseIsThatOfItsSamples();
    void spectraShorterThanTheFilterAreMirrored();
    void theBarIsThatOfRice();
};

void MatchedFilterTest::aLineStandsAsHighAsTheoryHasIt_data()
{
    QTest::addColumn<double>("sigma");
    QTest::addColumn<double>("gain"); // sqrt(sigma * sqrt(pi)), by a pocket calculator
    QTest::newRow("1") << 1.0 << 1.3313;
    QTest::newRow("1.5") << 1.5 << 1.6305;
    QTest::newRow("2.5") << 2.5 << 2.1050;
    QTest::newRow("6") << 6.0 << 3.2611;
}

void MatchedFilterTest::aLineStandsAsHighAsTheoryHasIt()
{
    QFETCH(double, sigma);
    QFETCH(double, gain);
    std::vector<double> samples(400, 0.0);
    AddLine(&samples, 200, 1, sigma);
    const MatchedFilter filter(sigma);
    const double found = filter.Apply(samples)[200] / filter.NoiseShare(200, 400);
    QVERIFY2(std::abs(found / gain - 1) < 0.005, qPrintable(QString::number(found)));
}

/// In the middle and at the ends, where the filter sees samples twice.
void MatchedFilterTest::noiseIsThatOfItsSamples()
{
    const MatchedFilter filter(2.5);
    constexpr int count = 200;
    constexpr unsigned spectra = 4000;
    const std::vector<int> places = {0, 1, 2, 4, 100, 197, 199};
    std::vector<double> squares(places.size(), 0.0);
    for (unsigned spectrum = 0; spectrum < spectra; ++spectrum) {
        const std::vector<double> curve = filter.Apply(NoiseOnly(count, 0, 1, spectrum, false));
        for (size_t i = 0; i < places.size(); ++i)
            squares[i] += curve[size_t(places[i])] * curve[size_t(places[i])] / spectra;
    }
    for (size_t i = 0; i < places.size(); ++i) {
        const double found = std::sqrt(squares[i]) / filter.NoiseShare(places[i], count);
        QVERIFY2(std::abs(found - 1) < 0.08, qPrintable(QString("%1: %2").arg(places[i]).arg(found)));
    }
}

void MatchedFilterTest::spectraShorterThanTheFilterAreMirrored()
{
    for (const size_t count : {1, 2, 5, 20, 47}) {
        const std::vector<double> curve = MatchedFilter(6).Apply(std::vector<double>(count, 7.0));
        QCOMPARE(curve.size(), count);
        for (const double value : curve)
            QVERIFY(std::abs(value - 7) < 1e-9);
    }
    QVERIFY(MatchedFilter(6).Apply({}).empty());
}

void MatchedFilterTest::theBarIsThatOfRice()
{
    // 2048 / (2 pi sqrt(2)) exp(-5² / 2) = 8.59e-4 maxima stand 5 deviations high in the filter of sigma 1.
    QVERIFY(std::abs(BarFor(8.59e-4, 2048, {1.0}) - 5) < 1e-3);
    // Twice as many samples, or filters, of which each has half as many.
    QCOMPARE(BarFor(1e-4, 4096, {2.0}), BarFor(1e-4, 2048, {1.0}));
    QCOMPARE(BarFor(1e-4, 2048, {2.0, 2.0}), BarFor(1e-4, 2048, {1.0}));
    QCOMPARE(BarFor(1e9, 2048, {1.0}), 0.0);
}

GUARDED_TEST_MAIN(MatchedFilterTest)
#include "matchedfiltertest.moc"
