// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "picturegeometry.h"

#include <cmath>
#include <limits>
#include <random>

namespace {

/// Samples as numbers, moved one by one: slow and plain, to compare with.
struct Plain
{
    int width = 0;
    int height = 0;
    int channels = 1;
    std::vector<double> samples;

    Plain(int w, int h, int c) : width(w), height(h), channels(c), samples(size_t(w) * size_t(h) * size_t(c)) {}
    double &At(int x, int y, int channel) { return samples[(size_t(y) * size_t(width) + size_t(x)) * size_t(channels) + size_t(channel)]; }
    double At(int x, int y, int channel) const { return const_cast<Plain *>(this)->At(x, y, channel); }
};

template <typename Source>
Plain Filled(int width, int height, int channels, Source source)
{
    Plain result(width, height, channels);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            for (int channel = 0; channel < channels; ++channel)
                result.At(x, y, channel) = source(x, y, channel);
        }
    }
    return result;
}

Plain FlippedLeftRight(const Plain &from)
{
    return Filled(from.width, from.height, from.channels, [&](int x, int y, int c) { return from.At(from.width - 1 - x, y, c); });
}

Plain TurnedRight(const Plain &from)
{
    return Filled(from.height, from.width, from.channels, [&](int x, int y, int c) { return from.At(y, from.height - 1 - x, c); });
}

Plain Part(const Plain &from, const QRect &region)
{
    return Filled(region.width(), region.height(), from.channels,
                  [&](int x, int y, int c) { return from.At(region.left() + x, region.top() + y, c); });
}

Plain Summed(const Plain &from, int columns, int rows)
{
    return Filled(from.width / columns, from.height / rows, from.channels, [&](int x, int y, int c) {
        double sum = 0;
        for (int i = 0; i < columns * rows; ++i)
            sum += from.At(x * columns + i % columns, y * rows + i / columns, c);
        return sum;
    });
}

template <typename Sample>
double Limited(double value)
{
    if (std::is_floating_point_v<Sample>)
        return double(Sample(value));
    return std::min(std::max(value, double(std::numeric_limits<Sample>::min())), double(std::numeric_limits<Sample>::max()));
}

Picture AsPicture(const Plain &plain, SampleType type)
{
    Picture picture(plain.width, plain.height, plain.channels, type);
    VisitSampleType(type, [&](auto sample) {
        auto *samples = picture.Samples<decltype(sample)>(0);
        for (size_t i = 0; i < plain.samples.size(); ++i)
            samples[i] = decltype(sample)(Limited<decltype(sample)>(plain.samples[i]));
    });
    return picture;
}

/// Whole numbers over the range of the type, so that sums of any order are exact.
Plain RandomPlain(int width, int height, int channels, SampleType type, quint32 seed)
{
    std::mt19937 random(seed);
    return VisitSampleType(type, [&](auto sample) {
        using Sample = decltype(sample);
        const double top = std::is_floating_point_v<Sample> ? 1e5 : double(std::numeric_limits<Sample>::max());
        const double bottom = std::is_floating_point_v<Sample> ? -1e5 : double(std::numeric_limits<Sample>::min());
        std::uniform_real_distribution<double> values(bottom, top);
        return Filled(width, height, channels, [&](int, int, int) { return std::floor(values(random)); });
    });
}

QVector<Orientation> AllOrientations()
{
    QVector<Orientation> all;
    for (int turns = 0; turns < 4; ++turns)
        all << Orientation(false, turns) << Orientation(true, turns);
    return all;
}

Plain Turned(Plain plain, Orientation orientation)
{
    if (orientation.IsFlipped())
        plain = FlippedLeftRight(plain);
    for (int i = 0; i < orientation.QuarterTurns(); ++i)
        plain = TurnedRight(plain);
    return plain;
}

} // namespace

class PictureGeometryTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void everyOrientationCropAndBinningMatchesThePlainWay_data();
    void everyOrientationCropAndBinningMatchesThePlainWay();
    void stepsOfTheUserComeOutAsSeen();
    void aRegionIsFoundAgainInTheTurnedPicture();
    void turningBackGivesTheSamplesBack();
    void sumsStopAtTheEndsOfIntegers();
    void meansRoundHalvesAwayFromZero();
    void nothingLeftGivesNoPicture();
};

void PictureGeometryTest::everyOrientationCropAndBinningMatchesThePlainWay_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("channels");
    for (int type = 0; type <= int(SampleType::F64); ++type) {
        for (int channels : {1, 3})
            QTest::addRow("%s, %d channel(s)", qPrintable(SampleTypeName(SampleType(type))), channels) << type << channels;
    }
}

void PictureGeometryTest::everyOrientationCropAndBinningMatchesThePlainWay()
{
    QFETCH(int, type);
    QFETCH(int, channels);
    const auto sampleType = SampleType(type);
    const QSize bins[] = {{1, 1}, {2, 2}, {3, 1}, {1, 4}, {5, 3}};
    quint32 seed = 1;
    for (const QSize &size : {QSize(1, 1), QSize(7, 1), QSize(13, 9), QSize(67, 70)}) {
        const Plain plain = RandomPlain(size.width(), size.height(), channels, sampleType, ++seed);
        const Picture picture = AsPicture(plain, sampleType);
        for (const Orientation &orientation : AllOrientations()) {
            const Plain turned = Turned(plain, orientation);
            const Picture oriented = Oriented(picture, orientation);
            QVERIFY(oriented == AsPicture(turned, sampleType));
            const QRect whole(0, 0, turned.width, turned.height);
            for (const QRect &crop : {whole, QRect(1, 2, 6, 5) & whole, QRect(3, 0, 50, 64) & whole}) {
                if (crop.isEmpty())
                    continue;
                const Plain part = Part(turned, crop);
                const Picture cropped = Cropped(oriented, crop);
                QVERIFY(cropped == AsPicture(part, sampleType));
                for (const QSize &bin : bins) {
                    if (bin.width() > crop.width() || bin.height() > crop.height())
                        continue;
                    QVERIFY(Binned(cropped, bin.width(), bin.height(), Binning::Sum)
                            == AsPicture(Summed(part, bin.width(), bin.height()), sampleType));
                }
            }
        }
    }
}

void PictureGeometryTest::stepsOfTheUserComeOutAsSeen()
{
    const Plain plain = RandomPlain(5, 3, 1, SampleType::U16, 7);
    for (const Orientation &orientation : AllOrientations()) {
        const Plain seen = Turned(plain, orientation);
        const Picture picture = AsPicture(plain, SampleType::U16);
        QVERIFY(Oriented(picture, orientation.RotatedRight()) == AsPicture(TurnedRight(seen), SampleType::U16));
        QVERIFY(Oriented(picture, orientation.RotatedLeft()) == AsPicture(TurnedRight(TurnedRight(TurnedRight(seen))), SampleType::U16));
        QVERIFY(Oriented(picture, orientation.FlippedHorizontally()) == AsPicture(FlippedLeftRight(seen), SampleType::U16));
        const Plain upsideDown = TurnedRight(TurnedRight(FlippedLeftRight(seen)));
        QVERIFY(Oriented(picture, orientation.FlippedVertically()) == AsPicture(upsideDown, SampleType::U16));
    }
}

void PictureGeometryTest::aRegionIsFoundAgainInTheTurnedPicture()
{
    const QRect region(2, 1, 4, 3);
    const Picture picture = AsPicture(RandomPlain(11, 8, 3, SampleType::U8, 3), SampleType::U8);
    for (const Orientation &orientation : AllOrientations()) {
        const QRect turned = orientation.Map(region, picture.Size());
        QVERIFY(Cropped(Oriented(picture, orientation), turned) == Oriented(Cropped(picture, region), orientation));
    }
    QVERIFY(Orientation(true, 1).Map(QRect(), QSize(11, 8)).isEmpty());
}

void PictureGeometryTest::turningBackGivesTheSamplesBack()
{
    const Picture picture = AsPicture(RandomPlain(11, 8, 1, SampleType::F32, 5), SampleType::F32);
    for (const Orientation &orientation : AllOrientations()) {
        QVERIFY(Oriented(Oriented(picture, orientation), orientation.Inverse()) == picture);
        QCOMPARE(orientation.Inverse().Inverse(), orientation);
    }
}

void PictureGeometryTest::sumsStopAtTheEndsOfIntegers()
{
    Picture bright(2, 1, 1, SampleType::U8);
    bright.Data()[0] = 200;
    bright.Data()[1] = 100;
    QCOMPARE(int(Binned(bright, 2, 1, Binning::Sum).Data()[0]), 255);
    Picture dark(2, 1, 1, SampleType::S16);
    dark.Samples<qint16>(0)[0] = -30000;
    dark.Samples<qint16>(0)[1] = -20000;
    QCOMPARE(int(Binned(dark, 2, 1, Binning::Sum).Samples<qint16>(0)[0]), -32768);
}

void PictureGeometryTest::meansRoundHalvesAwayFromZero()
{
    Picture picture(6, 1, 1, SampleType::S16);
    const qint16 values[] = {1, 2, -1, -2, 65, 68};
    std::copy_n(values, 6, picture.Samples<qint16>(0));
    const Picture binned = Binned(picture, 2, 1, Binning::Mean);
    QCOMPARE(int(binned.Samples<qint16>(0)[0]), 2);
    QCOMPARE(int(binned.Samples<qint16>(0)[1]), -2);
    QCOMPARE(int(binned.Samples<qint16>(0)[2]), 67);

    Picture fractions(2, 1, 1, SampleType::F32);
    fractions.Samples<float>(0)[0] = 1.0f;
    fractions.Samples<float>(0)[1] = 2.0f;
    QCOMPARE(Binned(fractions, 2, 1, Binning::Mean).Samples<float>(0)[0], 1.5f);
}

void PictureGeometryTest::nothingLeftGivesNoPicture()
{
    const Picture picture = AsPicture(RandomPlain(4, 4, 1, SampleType::U8, 9), SampleType::U8);
    QVERIFY(Cropped(picture, QRect(4, 0, 2, 2)).IsNull());
    QVERIFY(Cropped(picture, QRect()).IsNull());
    QVERIFY(Binned(picture, 5, 1, Binning::Mean).IsNull());
    QVERIFY(Binned(picture, 0, 1, Binning::Mean).IsNull());
    QVERIFY(Oriented(Picture(), Orientation(true, 1)).IsNull());
    QCOMPARE(Cropped(picture, QRect(-3, -3, 5, 5)).Size(), QSize(2, 2));
}

GUARDED_TEST_MAIN(PictureGeometryTest)
#include "picturegeometrytest.moc"
