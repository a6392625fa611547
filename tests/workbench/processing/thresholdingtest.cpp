// SPDX-License-Identifier: GPL-3.0-or-later
#include "thresholding.h"
#include "guardedtest.h"
#include "randompicture.h"

#include <cmath>
#include <random>

using namespace RandomPicture;

namespace {

/// Variance between the classes below `index` and from it on, worked out sample by sample.
long double VarianceBetween(const std::vector<qint64> &counts, int index)
{
    long double count[2] = { 0, 0 };
    long double sum[2] = { 0, 0 };
    for (size_t i = 0; i < counts.size(); ++i) {
        const int upper = int(i) >= index ? 1 : 0;
        count[upper] += counts[i];
        sum[upper] += static_cast<long double>(counts[i]) * i;
    }
    if (count[0] == 0 || count[1] == 0)
        return 0;
    const long double difference = sum[0] / count[0] - sum[1] / count[1];
    return count[0] * count[1] * difference * difference;
}

} // namespace

class ThresholdingTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void theBestLevelHasTheGreatestVarianceBetweenTheClasses()
    {
        std::mt19937 random(3);
        for (int round = 0; round < 200; ++round) {
            std::vector<qint64> counts(40);
            for (qint64 &count : counts)
                count = random() % 3 ? random() % 1000 : 0;
            long double best = 0;
            for (int i = 0; i < 40; ++i)
                best = std::max(best, VarianceBetween(counts, i));
            const long double found = VarianceBetween(counts, OtsuIndex(counts));
            QVERIFY2(found >= best * (1 - 1e-12L), qPrintable(QString::number(round)));
        }
    }

    void aLevelBetweenTwoHeapsStandsMidway()
    {
        std::vector<qint64> counts(100);
        counts[10] = 5;
        counts[31] = 8;
        QCOMPARE(OtsuIndex(counts), 21); // 11 to 31 separate them alike
        QCOMPARE(OtsuIndex(std::vector<qint64>{ 0, 7, 0 }), 0);
        QCOMPARE(OtsuIndex(std::vector<qint64>(10)), 0);
    }

    void theLevelIsInUnitsOfTheSamples_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<double>("dark");
        QTest::addColumn<double>("bright");
        QTest::newRow("8 bit") << int(SampleType::U8) << 20.0 << 220.0;
        QTest::newRow("signed 8 bit") << int(SampleType::S8) << -100.0 << 90.0;
        QTest::newRow("16 bit") << int(SampleType::U16) << 300.0 << 60000.0;
        QTest::newRow("signed 16 bit") << int(SampleType::S16) << -30000.0 << -20000.0;
        QTest::newRow("32 bit") << int(SampleType::U32) << 1e9 << 4e9;
        QTest::newRow("signed 32 bit") << int(SampleType::S32) << -2e9 << 2e9;
        QTest::newRow("floating point") << int(SampleType::F32) << -1.5 << 2.5;
        QTest::newRow("double") << int(SampleType::F64) << -1e300 << 1e308;
        QTest::newRow("alike") << int(SampleType::F64) << 5.0 << 5.0;
    }
    void theLevelIsInUnitsOfTheSamples()
    {
        QFETCH(int, type);
        QFETCH(double, dark);
        QFETCH(double, bright);
        Picture picture(20, 10, 1, SampleType(type));
        for (int y = 0; y < 10; ++y) {
            for (int x = 0; x < 20; ++x)
                Set(picture, x, y, 0, x < 12 ? dark : bright);
        }
        if (IsFloat(SampleType(type)))
            Set(picture, 0, 0, 0, NAN);
        const Picture mask = Thresholded(picture, ThresholdSettings());
        QCOMPARE(int(mask.Type()), int(SampleType::U8));
        const double alike = dark == bright ? 255 : 0;
        QCOMPARE(Difference(mask,
                            [&](int x, int y, int) {
                                if (!std::isfinite(At(picture, x, y, 0)))
                                    return 0.0;
                                return x < 12 ? alike : 255.0;
                            }),
                 QString());
    }

    void aLevelSetByHandTakesWhatIsOnItAndAbove_data() { AddShapes(); }
    void aLevelSetByHandTakesWhatIsOnItAndAbove()
    {
        QFETCH(QSize, size);
        QFETCH(int, channels);
        QFETCH(int, type);
        const Picture picture = Make(size, channels, SampleType(type), 12, 2);
        for (const bool dark : { false, true }) {
            const double level = At(picture, size.width() / 2, size.height() / 2, 0);
            const Picture mask = Thresholded(picture, { false, level, dark });
            QCOMPARE(mask.Channels(), channels);
            QCOMPARE(Difference(mask,
                                [&](int x, int y, int channel) {
                                    const double value = At(picture, x, y, channel);
                                    return std::isfinite(value) && (value < level) == dark ? 255.0 : 0.0;
                                }),
                     QString());
        }
    }

    void eachChannelHasALevelOfItsOwn()
    {
        Picture picture(10, 1, 3, SampleType::U8);
        for (int x = 0; x < 10; ++x) {
            for (int channel = 0; channel < 3; ++channel)
                Set(picture, x, 0, channel, (x < 3 + channel ? 10 : 60) + 50 * channel);
        }
        const Picture mask = Thresholded(picture, ThresholdSettings());
        QCOMPARE(Difference(mask, [](int x, int, int channel) { return x < 3 + channel ? 0.0 : 255.0; }), QString());
    }
};

GUARDED_TEST_MAIN(ThresholdingTest)
#include "thresholdingtest.moc"
