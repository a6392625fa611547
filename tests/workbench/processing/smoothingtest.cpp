// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "processedpicture.h"
#include "randompicture.h"

#include <algorithm>
#include <cmath>
#include <vector>

using namespace ProcessedPicture;
using namespace RandomPicture;

namespace {

/// The Gaussian mean over all pixels, whose weights beyond four sigma are cut off.
double GaussianAt(const Picture &picture, int x, int y, int channel, double sigma)
{
    const int reach = int(std::ceil(4 * sigma));
    double sum = 0;
    double weights = 0;
    for (int j = -reach; j <= reach; ++j) {
        for (int i = -reach; i <= reach; ++i) {
            const double weight = std::exp(-(i * i + j * j) / (2 * sigma * sigma));
            sum += weight * Repeated(picture, x + i, y + j, channel);
            weights += weight;
        }
    }
    return sum / weights;
}

} // namespace

/// Each filter against the same calculated sample by sample, for every type of samples.
class SmoothingTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void aGaussianIsTheWeightedMean_data() { AddShapes(); }
    void aGaussianIsTheWeightedMean()
    {
        const Picture picture = RowPicture(4);
        const Picture filled = Filled(picture);
        DenoiseSettings settings;
        settings.sigma = 1.3;
        QCOMPARE(Difference(Done(picture, settings),
                            [&](int x, int y, int channel) {
                                return OrGap(picture, x, y, channel,
                                             Stored(GaussianAt(filled, x, y, channel, 1.3), picture.Type()));
                            },
                            RoundedDigits(picture.Type())),
                 QString());
    }

    void anUnsharpMaskAddsTheDifference_data() { AddShapes(); }
    void anUnsharpMaskAddsTheDifference()
    {
        const Picture picture = RowPicture(4);
        const Picture filled = Filled(picture);
        SharpenSettings settings;
        settings.sigma = 0.8;
        settings.amount = 1.5;
        QCOMPARE(Difference(Done(picture, settings),
                            [&](int x, int y, int channel) {
                                const double value = At(filled, x, y, channel);
                                const double smooth = GaussianAt(filled, x, y, channel, 0.8);
                                return OrGap(picture, x, y, channel,
                                             Stored(value + 1.5 * (value - smooth), picture.Type()));
                            },
                            2 * RoundedDigits(picture.Type())),
                 QString());
    }

    void aMedianIsTheMiddleOfItsSquare_data() { AddShapes(); }
    void aMedianIsTheMiddleOfItsSquare()
    {
        const Picture picture = RowPicture(4);
        const Picture filled = Filled(picture);
        for (const int radius : { 1, 2, 3 }) {
            DenoiseSettings settings;
            settings.method = DenoiseSettings::Method::Median;
            settings.radius = radius;
            QCOMPARE(Difference(Done(picture, settings),
                                [&](int x, int y, int channel) {
                                    std::vector<double> around;
                                    for (int j = -radius; j <= radius; ++j) {
                                        for (int i = -radius; i <= radius; ++i)
                                            around.push_back(Repeated(filled, x + i, y + j, channel));
                                    }
                                    std::sort(around.begin(), around.end());
                                    return OrGap(picture, x, y, channel, around[around.size() / 2]);
                                }),
                     QString());
        }
    }

    void aBilateralFilterWeighsSamplesToo_data() { AddShapes(); }
    void aBilateralFilterWeighsSamplesToo()
    {
        const Picture picture = RowPicture(3);
        const Picture filled = Filled(picture);
        double least = INFINITY;
        double most = -INFINITY;
        for (int y = 0; y < picture.Height(); ++y) {
            for (int x = 0; x < picture.Width() * picture.Channels(); ++x) {
                least = std::min(least, At(filled, x / picture.Channels(), y, x % picture.Channels()));
                most = std::max(most, At(filled, x / picture.Channels(), y, x % picture.Channels()));
            }
        }
        const double levels = std::max(1.0, (most - least) / 3);
        DenoiseSettings settings;
        settings.method = DenoiseSettings::Method::Bilateral;
        settings.sigma = 1;
        settings.levelSigma = levels;
        const auto expected = [&](int x, int y, int channel) {
            const double here = At(filled, x, y, channel);
            double sum = 0;
            double weights = 0;
            for (int j = -2; j <= 2; ++j) {
                for (int i = -2; i <= 2; ++i) {
                    if (i * i + j * j > 4)
                        continue;
                    const double value = Repeated(filled, x + i, y + j, channel);
                    const double weight =
                        std::exp(-(i * i + j * j) / 2.0 - std::pow((value - here) / levels, 2) / 2);
                    sum += weight * value;
                    weights += weight;
                }
            }
            return OrGap(picture, x, y, channel, Stored(sum / weights, picture.Type()));
        };
        // OpenCV takes the weights from a table with 4096 places.
        const double room = 1e-3 * (most - least) + RoundedDigits(picture.Type());
        QCOMPARE(Difference(Done(picture, settings), expected, room), QString());
    }
};

GUARDED_TEST_MAIN(SmoothingTest)
#include "smoothingtest.moc"
