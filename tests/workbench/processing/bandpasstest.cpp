// SPDX-License-Identifier: GPL-3.0-or-later
#include "bandpass.h"
#include "guardedtest.h"
#include "processedpicture.h"
#include "randompicture.h"

#include <cmath>
#include <vector>

using namespace ProcessedPicture;
using namespace RandomPicture;

namespace {

constexpr double Pi = 3.14159265358979323846;

} // namespace

/// The band pass against waves and the transform worked out term by term, for every type of samples.
class BandPassTest : public GuardedTest
{
    Q_OBJECT

private slots:
    /// A wave that the mirror picture goes on with is only made higher or lower.
    void aWaveOfThePassedLengthsStays_data()
    {
        QTest::addColumn<int>("halfWavesX");
        QTest::addColumn<int>("halfWavesY");
        QTest::newRow("slow") << 2 << 0;
        QTest::newRow("down") << 0 << 6;
        QTest::newRow("both") << 9 << 7;
        QTest::newRow("fast") << 31 << 3;
        QTest::newRow("last") << 63 << 39;
    }

    void aWaveOfThePassedLengthsStays()
    {
        QFETCH(int, halfWavesX);
        QFETCH(int, halfWavesY);
        const QSize size(64, 40); // sizes that the transform takes as they are
        const auto wave = [&](int x, int y) {
            return std::cos(Pi * (x + 0.5) * halfWavesX / size.width())
                   * std::cos(Pi * (y + 0.5) * halfWavesY / size.height());
        };
        Picture picture(size.width(), size.height(), 1, SampleType::F64);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x)
                Set(picture, x, y, 0, 300 + 100 * wave(x, y));
        }
        BandPassSettings settings;
        settings.smallest = 4;
        settings.largest = 25;
        const double frequency =
            std::hypot(halfWavesX / (2.0 * size.width()), halfWavesY / (2.0 * size.height()));
        const double gain = std::pow(2, -std::pow(4 * frequency, 2)) * (1 - std::pow(2, -std::pow(25 * frequency, 2)));
        QVERIFY(std::abs(BandPassGain(frequency, settings) - gain) < 1e-12);
        QCOMPARE(Difference(Done(picture, settings), [&](int x, int y, int) { return 300 + 100 * gain * wave(x, y); },
                            1e-9),
                 QString());
    }

    /// Against the transform worked out term by term, and the larger picture that odd sizes need.
    void aBandPassIsTheWeightedTransform_data() { AddShapes(); }
    void aBandPassIsTheWeightedTransform()
    {
        const Picture picture = RowPicture(3);
        const Picture filled = Filled(picture);
        BandPassSettings settings;
        settings.smallest = 2.5;
        settings.largest = 9;
        const auto fast = [](int side) { // the next size without other factors than 2, 3 and 5
            for (;; ++side) {
                int rest = side;
                for (const int factor : { 2, 3, 5 }) {
                    while (rest % factor == 0)
                        rest /= factor;
                }
                if (rest == 1)
                    return side;
            }
        };
        const int width = fast(picture.Width());
        const int height = fast(picture.Height());
        const auto term = [](int i, int wave, int side) { return std::cos(Pi * (i + 0.5) * wave / side); };
        for (int channel = 0; channel < picture.Channels(); ++channel) {
            std::vector<double> heights(size_t(width * height));
            for (int v = 0; v < height; ++v) {
                for (int u = 0; u < width; ++u) {
                    double sum = 0;
                    for (int y = 0; y < height; ++y) {
                        for (int x = 0; x < width; ++x)
                            sum += Repeated(filled, x, y, channel) * term(x, u, width) * term(y, v, height);
                    }
                    const double frequency = std::hypot(u / (2.0 * width), v / (2.0 * height));
                    const double gain = u + v == 0 ? 1
                                                   : std::pow(2, -std::pow(2.5 * frequency, 2))
                                                         * (1 - std::pow(2, -std::pow(9 * frequency, 2)));
                    heights[size_t(v * width + u)] =
                        gain * sum * (u ? 2 : 1) * (v ? 2 : 1) / (double(width) * height);
                }
            }
            const Picture result = Done(picture, settings);
            const auto expected = [&](int x, int y, int which) {
                if (which != channel)
                    return At(result, x, y, which);
                double sum = 0;
                for (int v = 0; v < height; ++v) {
                    for (int u = 0; u < width; ++u)
                        sum += heights[size_t(v * width + u)] * term(x, u, width) * term(y, v, height);
                }
                return OrGap(picture, x, y, which, Stored(sum, picture.Type()));
            };
            QCOMPARE(Difference(result, expected, RoundedDigits(picture.Type())), QString());
        }
    }
};

GUARDED_TEST_MAIN(BandPassTest)
#include "bandpasstest.moc"
