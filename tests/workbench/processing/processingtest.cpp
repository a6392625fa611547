// SPDX-License-Identifier: GPL-3.0-or-later
#include "processing.h"
#include "bandpass.h"
#include "guardedtest.h"
#include "randompicture.h"

#include <algorithm>
#include <cmath>
#include <vector>

using namespace RandomPicture;

namespace {

constexpr double Pi = 3.14159265358979323846;

bool NoReference(const QString &, Picture &, QString &error)
{
    error = "no reference";
    return false;
}

Picture Done(const Picture &picture, const ProcessSettings &settings, QString *error = nullptr,
             const ReferenceReader &read = NoReference)
{
    QString text;
    const Picture result = Processed(picture, settings, read, [] { return false; }, text);
    if (error)
        *error = text;
    return result;
}

/// The picture with each gap filled as it is said: by the number before it in its row, else by the first one after it; a
/// row without any by the row above, or by the first row with one.
Picture Filled(Picture picture)
{
    for (int channel = 0; channel < picture.Channels(); ++channel) {
        int source = -1;
        for (int pass = 0; pass < 2; ++pass) {
            for (int y = 0; y < picture.Height(); ++y) {
                double last = 0;
                bool hasLast = false;
                for (int x = 0; x < picture.Width() && !hasLast; ++x) {
                    hasLast = std::isfinite(At(picture, x, y, channel));
                    last = hasLast ? At(picture, x, y, channel) : last;
                }
                if (hasLast && source < 0)
                    source = y;
                for (int x = 0; x < picture.Width(); ++x) {
                    const double value = At(picture, x, y, channel);
                    if (hasLast && !std::isfinite(value))
                        Set(picture, x, y, channel, last);
                    else if (hasLast)
                        last = value;
                    else if (y > 0 && source >= 0 && source < y)
                        Set(picture, x, y, channel, At(picture, x, y - 1, channel));
                    else if (pass == 1)
                        Set(picture, x, y, channel, source < 0 ? 0 : At(picture, x, source, channel));
                }
            }
        }
    }
    return picture;
}

/// Sample beyond the edge: that of the last row and column.
double Repeated(const Picture &picture, int x, int y, int channel)
{
    return At(picture, qBound(0, x, picture.Width() - 1), qBound(0, y, picture.Height() - 1), channel);
}

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

/// Extreme of the samples of a square or a disc that are in the picture.
double ExtremeAt(const Picture &picture, int x, int y, int channel, int radius, bool isDisc, bool largest)
{
    double extreme = largest ? -INFINITY : INFINITY;
    for (int j = -radius; j <= radius; ++j) {
        for (int i = -radius; i <= radius; ++i) {
            const bool isInside = x + i >= 0 && y + j >= 0 && x + i < picture.Width() && y + j < picture.Height();
            if (!isInside || (isDisc && i * i + j * j > radius * radius))
                continue;
            const double value = At(picture, x + i, y + j, channel);
            extreme = largest ? std::max(extreme, value) : std::min(extreme, value);
        }
    }
    return extreme;
}

Picture Extremes(const Picture &picture, int radius, bool isDisc, bool largest)
{
    Picture result = picture;
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            for (int channel = 0; channel < picture.Channels(); ++channel)
                Set(result, x, y, channel, ExtremeAt(picture, x, y, channel, radius, isDisc, largest));
        }
    }
    return result;
}

/// Room for a last digit of the type that is calculated in.
double Digits(SampleType type)
{
    if (type == SampleType::F32)
        return 2e-3; // of values up to 1000 and filters of a few hundred terms
    return type == SampleType::F64 ? 1e-9 : 0;
}

/// Integers may come out one apart where the value before rounding is halfway.
double RoundedDigits(SampleType type) { return IsFloat(type) ? Digits(type) : 1; }

} // namespace

/// Each step against the same calculated sample by sample, for every type of samples.
class ProcessingTest : public GuardedTest
{
    Q_OBJECT

private:
    /// A picture of the row; of floating point with gaps, when they have a part in the test.
    static Picture RowPicture(int gaps = 0)
    {
        QFETCH(QSize, size);
        QFETCH(int, channels);
        QFETCH(int, type);
        const int most = size.width() * size.height() / 4;
        return Make(size, channels, SampleType(type), quint32(size.width() * 100 + type), qMin(gaps, most));
    }
    /// NaN where the picture has gaps, else the value.
    static double OrGap(const Picture &picture, int x, int y, int channel, double value)
    {
        return std::isfinite(At(picture, x, y, channel)) ? value : NAN;
    }

private slots:
    void aConstantBackgroundIsTakenAway_data() { AddShapes(); }
    void aConstantBackgroundIsTakenAway()
    {
        const Picture picture = RowPicture(6);
        BackgroundSettings settings;
        settings.method = BackgroundSettings::Method::Constant;
        settings.level = 100;
        const Picture result = Done(picture, settings);
        QCOMPARE(int(result.Type()), int(picture.Type()));
        QCOMPARE(Difference(result,
                            [&](int x, int y, int channel) {
                                const double value = At(picture, x, y, channel);
                                return OrGap(picture, x, y, channel, Stored(value - 100, picture.Type()));
                            },
                            Digits(picture.Type())),
                 QString());
    }

    void theOpeningIsTakenAway_data() { AddShapes(); }
    void theOpeningIsTakenAway()
    {
        const Picture picture = RowPicture(4);
        const Picture filled = Filled(picture);
        BackgroundSettings settings;
        settings.radius = 2;
        const Picture opened = Extremes(Extremes(filled, 2, false, false), 2, false, true);
        QCOMPARE(Difference(Done(picture, settings),
                            [&](int x, int y, int channel) {
                                double sum = 0;
                                for (int j = -2; j <= 2; ++j) {
                                    for (int i = -2; i <= 2; ++i)
                                        sum += Repeated(opened, x + i, y + j, channel);
                                }
                                return OrGap(picture, x, y, channel,
                                             Stored(At(filled, x, y, channel) - sum / 25, picture.Type()));
                            },
                            RoundedDigits(picture.Type())),
                 QString());
    }

    void theSlopeOfThePlaneIsTakenAwayAndTheMeanStays()
    {
        Picture picture(31, 18, 1, SampleType::F64);
        for (int y = 0; y < 18; ++y) {
            for (int x = 0; x < 31; ++x)
                Set(picture, x, y, 0, 500 + 3.5 * x - 7.25 * y);
        }
        BackgroundSettings settings;
        settings.method = BackgroundSettings::Method::Plane;
        const double mean = 500 + 3.5 * 15 - 7.25 * 8.5;
        QCOMPARE(Difference(Done(picture, settings), [&](int, int, int) { return mean; }, 1e-9), QString());
    }

    /// What is left has no slope and the same mean: that is what makes a fit one of least squares.
    void whatIsLeftOfTheBestPlaneHasNoSlope()
    {
        const Picture picture = Make(QSize(40, 23), 1, SampleType::F64, 5);
        BackgroundSettings settings;
        settings.method = BackgroundSettings::Method::Plane;
        const Picture result = Done(picture, settings);
        double before = 0;
        double after = 0;
        double slopeX = 0;
        double slopeY = 0;
        for (int y = 0; y < 23; ++y) {
            for (int x = 0; x < 40; ++x) {
                before += At(picture, x, y, 0);
                after += At(result, x, y, 0);
                slopeX += At(result, x, y, 0) * (x - 19.5);
                slopeY += At(result, x, y, 0) * (y - 11);
            }
        }
        QVERIFY2(std::abs(after - before) < 1e-7, qPrintable(QString::number(after - before)));
        QVERIFY2(std::abs(slopeX) < 1e-6 && std::abs(slopeY) < 1e-6, "a slope is left");
    }

    void aPlaneOfOnePixelStays()
    {
        BackgroundSettings settings;
        settings.method = BackgroundSettings::Method::Plane;
        const Picture picture = Make(QSize(1, 1), 3, SampleType::U16, 9);
        QVERIFY(Done(picture, settings) == picture);
    }

    void anUnevenFieldIsDividedAway_data() { AddShapes(); }
    void anUnevenFieldIsDividedAway()
    {
        const Picture picture = RowPicture(3);
        Picture reference = Make(picture.Size(), 1, SampleType::U16, 77);
        Set(reference, 0, 0, 0, 0); // a dead pixel
        double sum = 0;
        int lit = 0;
        for (int y = 0; y < picture.Height(); ++y) {
            for (int x = 0; x < picture.Width(); ++x) {
                sum += At(reference, x, y, 0);
                lit += At(reference, x, y, 0) > 0;
            }
        }
        FlatFieldSettings settings;
        settings.reference = "even.tif";
        const Picture result = Done(picture, settings, nullptr, [&](const QString &path, Picture &frame, QString &) {
            frame = reference;
            return path == "even.tif";
        });
        const auto expected = [&](int x, int y, int channel) {
            const double even = At(reference, x, y, 0);
            const double value = At(picture, x, y, channel);
            return OrGap(picture, x, y, channel,
                         Stored(even > 0 ? value * (sum / lit) / even : value, picture.Type()));
        };
        for (int y = 0; y < picture.Height(); ++y) {
            for (int x = 0; x < picture.Width(); ++x) {
                for (int channel = 0; channel < picture.Channels(); ++channel) {
                    const double is = At(result, x, y, channel);
                    const double wanted = expected(x, y, channel);
                    if (std::isnan(wanted)) {
                        QVERIFY(std::isnan(is));
                        continue;
                    }
                    const double room = IsFloat(picture.Type()) ? std::abs(wanted) * 1e-6 : 1;
                    QVERIFY2(std::abs(is - wanted) <= room, qPrintable(QString("%1 not %2").arg(is).arg(wanted)));
                }
            }
        }
    }

    void aReferenceThatDoesNotFitIsRefused()
    {
        QString error;
        FlatFieldSettings settings;
        settings.reference = "small.tif";
        const ReferenceReader small = [](const QString &, Picture &frame, QString &) {
            frame = Make(QSize(3, 2), 1, SampleType::U8, 1);
            return true;
        };
        QVERIFY(Done(Make(QSize(4, 4), 1, SampleType::U8, 1), settings, &error, small).IsNull());
        QCOMPARE(error, QString("The reference is 3x2 pixels and the picture 4x4. Choose a reference of the same size, "
                                "and correct the picture before it is cropped, turned or binned."));
        QVERIFY(Done(Make(QSize(4, 4), 1, SampleType::U8, 1), settings, &error).IsNull());
        QCOMPARE(error, QString("no reference"));
        QVERIFY(Done(Make(QSize(4, 4), 1, SampleType::U8, 1), FlatFieldSettings(), &error).IsNull());
        QCOMPARE(error, QString("Choose a reference: a picture of an evenly lit field."));
    }

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

    void morphologyIsMadeOfExtremes_data() { AddShapes(); }
    void morphologyIsMadeOfExtremes()
    {
        using Method = MorphologySettings::Method;
        const Picture picture = RowPicture(4);
        const Picture filled = Filled(picture);
        for (const bool isDisc : { false, true }) {
            const Picture eroded = Extremes(filled, 3, isDisc, false);
            const Picture dilated = Extremes(filled, 3, isDisc, true);
            const Picture opened = Extremes(eroded, 3, isDisc, true);
            const Picture closed = Extremes(dilated, 3, isDisc, false);
            const QVector<QPair<Method, Picture>> expectations = {
                { Method::Erode, eroded }, { Method::Dilate, dilated }, { Method::Open, opened },
                { Method::Close, closed }, { Method::TopHat, opened }
            };
            for (const auto &expectation : expectations) {
                MorphologySettings settings;
                settings.method = expectation.first;
                settings.shape = isDisc ? MorphologySettings::Shape::Disc : MorphologySettings::Shape::Square;
                settings.radius = 3;
                const auto expected = [&](int x, int y, int channel) {
                    double value = At(expectation.second, x, y, channel);
                    if (expectation.first == Method::TopHat)
                        value = At(filled, x, y, channel) - value;
                    return OrGap(picture, x, y, channel, Stored(value, picture.Type()));
                };
                QCOMPARE(Difference(Done(picture, settings), expected, Digits(picture.Type())), QString());
            }
        }
    }

    void binningGivesMeansAndSums_data() { AddShapes(); }
    void binningGivesMeansAndSums()
    {
        const Picture picture = RowPicture(3);
        for (const bool sums : { false, true }) {
            BinningSettings settings;
            settings.size = 3;
            settings.sums = sums;
            QString error;
            const Picture result = Done(picture, settings, &error);
            const QSize size(picture.Width() / 3, picture.Height() / 3);
            if (size.isEmpty()) {
                QVERIFY(result.IsNull());
                QCOMPARE(error, QString("The picture, %1x%2 pixels, is smaller than 3x3.")
                                    .arg(picture.Width())
                                    .arg(picture.Height()));
                continue;
            }
            QCOMPARE(result.Size(), size);
            QCOMPARE(ProcessedSize(picture.Size(), settings), size);
            const auto expected = [&](int x, int y, int channel) {
                double sum = 0;
                for (int i = 0; i < 9; ++i)
                    sum += At(picture, 3 * x + i % 3, 3 * y + i / 3, channel);
                // Infinite samples make an infinite sum, or none.
                return sums || IsFloat(picture.Type()) ? (sums ? sum : sum / 9) : std::round(sum / 9);
            };
            QCOMPARE(Difference(result, expected, Digits(picture.Type())), QString());
        }
    }

    void sumsGetATypeThatHoldsThem()
    {
        const QVector<QPair<SampleType, SampleType>> types = {
            { SampleType::U8, SampleType::U16 },  { SampleType::S8, SampleType::S16 },
            { SampleType::U16, SampleType::U32 }, { SampleType::S16, SampleType::S32 },
            { SampleType::U32, SampleType::F64 }, { SampleType::S32, SampleType::F64 },
            { SampleType::F32, SampleType::F32 }, { SampleType::F64, SampleType::F64 }
        };
        for (const auto &type : types) {
            BinningSettings settings;
            settings.sums = true;
            QCOMPARE(int(Done(Make(QSize(4, 4), 1, type.first, 3), settings).Type()), int(type.second));
        }
        Picture brightest(16, 16, 1, SampleType::U8);
        std::fill_n(brightest.Data(), 256, uchar(255));
        BinningSettings all;
        all.size = 16;
        all.sums = true;
        QCOMPARE(At(Done(brightest, all), 0, 0, 0), 256 * 255.0);
    }

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

    void picturesOfOtherFilesAreMerged()
    {
        const QVector<Picture> pictures = { Make(QSize(6, 5), 3, SampleType::U16, 1),
                                            Make(QSize(6, 5), 3, SampleType::U16, 2),
                                            Make(QSize(6, 5), 3, SampleType::U16, 3) };
        const ReferenceReader read = [&](const QString &path, Picture &frame, QString &error) {
            frame = pictures.at(path == "b.tif" ? 1 : 2);
            error = path == "gone.tif" ? "gone.tif is gone" : "";
            return error.isEmpty();
        };
        MergeSettings settings;
        settings.projection.method = ProjectionSettings::Method::Minimum;
        settings.others = QStringList{ "b.tif", "c.tif" };
        QString error;
        const Picture merged = Done(pictures.first(), settings, &error, read);
        QCOMPARE(error, QString());
        QCOMPARE(Difference(merged,
                            [&](int x, int y, int channel) {
                                return std::min({ At(pictures.at(0), x, y, channel), At(pictures.at(1), x, y, channel),
                                                  At(pictures.at(2), x, y, channel) });
                            }),
                 QString());
        settings.others << "gone.tif";
        QVERIFY(Done(pictures.first(), settings, &error, read).IsNull());
        QCOMPARE(error, QString("gone.tif is gone"));
        QVERIFY(Done(pictures.first(), MergeSettings(), &error, read).IsNull());
        QCOMPARE(error, QString("Check the other pictures to merge in the list of opened pictures."));
    }

    void nothingIsDoneWithoutASetting()
    {
        const Picture picture = Make(QSize(5, 4), 3, SampleType::S16, 8);
        QVERIFY(Done(picture, ProcessSettings()) == picture);
        QVERIFY(!IsProjection(ProcessSettings()));
        QVERIFY(IsProjection(ProjectionSettings()));
    }

    void anEmptyPictureIsRefused()
    {
        QString error;
        QVERIFY(Done(Picture(), DenoiseSettings(), &error).IsNull());
        QCOMPARE(error, QString("There is no picture that could be processed."));
    }

    /// Nothing but gaps: they stay.
    void aPictureWithoutNumbersStaysOne()
    {
        Picture picture(5, 4, 1, SampleType::F32);
        std::fill_n(picture.Samples<float>(0), 20, std::numeric_limits<float>::quiet_NaN());
        const ProcessSettings steps[] = { BackgroundSettings(), DenoiseSettings(), SharpenSettings(),
                                          MorphologySettings(), BandPassSettings(), BinningSettings() };
        for (const ProcessSettings &step : steps)
            QCOMPARE(Difference(Done(picture, step), [](int, int, int) { return double(NAN); }), QString());
    }

    void whatNeedsMoreMemoryThanThereIsIsSaid()
    {
        QCOMPARE(MemoryFault(3 << 20, 1 << 20),
                 QString("This needs 3.00 MiB of memory, and 1.00 MiB is free. Close other pictures or programs."));
        QCOMPARE(MemoryFault(1 << 20, 1 << 20), QString());
        QCOMPARE(MemoryFault(1 << 20, -1), QString()); // nobody knows
        const Picture picture(1000, 500, 1, SampleType::U8);
        // Two planes at the least; the transform works on one four times as large.
        QVERIFY(WorkingBytes(picture, DenoiseSettings()) >= 2 * 4 * 500000);
        QVERIFY(WorkingBytes(picture, BandPassSettings()) >= 2 * 4 * 4 * 500000);
    }

    /// Numbers outside their limits do what the nearest limit does.
    void settingsOutsideTheirLimitsAreMoved()
    {
        const Picture picture = Make(QSize(12, 10), 1, SampleType::U16, 4);
        BackgroundSettings wide;
        wide.radius = 1 << 30;
        BackgroundSettings widest;
        widest.radius = BackgroundSettings::MostRadius;
        QVERIFY(Done(picture, wide) == Done(picture, widest));
        BinningSettings none;
        none.size = -7;
        QVERIFY(Done(picture, none) == Done(picture, BinningSettings()));
        DenoiseSettings strong;
        strong.sigma = 1e9;
        DenoiseSettings strongest;
        strongest.sigma = DenoiseSettings::MostSigma;
        QVERIFY(Done(picture, strong) == Done(picture, strongest));
    }
};

GUARDED_TEST_MAIN(ProcessingTest)
#include "processingtest.moc"
