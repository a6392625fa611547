// SPDX-License-Identifier: GPL-3.0-or-later
#include "randompicture.h"

#include <QTest>

#include <cmath>
#include <limits>
#include <random>

namespace RandomPicture {

Picture Make(const QSize &size, int channels, SampleType type, quint32 seed, int gaps)
{
    Picture picture(size.width(), size.height(), channels, type);
    std::mt19937 random(seed);
    const qint64 count = qint64(size.width()) * size.height() * channels;
    VisitSampleType(type, [&](auto sampleType) {
        using Sample = decltype(sampleType);
        auto *samples = reinterpret_cast<Sample *>(picture.Data());
        for (qint64 i = 0; i < count; ++i) {
            if constexpr (std::is_floating_point_v<Sample>)
                samples[i] = Sample(int(random() % 2000001) - 1000000) / Sample(1000);
            else
                samples[i] = sizeof(Sample) == 4 ? Sample(random() >> 8) : Sample(random());
        }
        if constexpr (std::is_floating_point_v<Sample>) {
            for (int i = 0; i < gaps; ++i)
                samples[random() % count] =
                    i % 2 ? std::numeric_limits<Sample>::quiet_NaN() : std::numeric_limits<Sample>::infinity();
        }
    });
    return picture;
}

double At(const Picture &picture, int x, int y, int channel)
{
    return VisitSampleType(picture.Type(), [&](auto type) {
        return double(picture.Samples<decltype(type)>(y)[x * picture.Channels() + channel]);
    });
}

void Set(Picture &picture, int x, int y, int channel, double value)
{
    VisitSampleType(picture.Type(), [&](auto type) {
        using Sample = decltype(type);
        picture.Samples<Sample>(y)[x * picture.Channels() + channel] = Sample(value);
    });
}

double Stored(double value, SampleType type)
{
    return VisitSampleType(type, [&](auto sampleType) {
        using Sample = decltype(sampleType);
        if (std::is_floating_point_v<Sample>)
            return double(Sample(value));
        double whole = std::floor(value);
        const double part = value - whole;
        if (part > 0.5 || (part == 0.5 && std::fmod(whole, 2) != 0))
            whole += 1;
        return std::min(std::max(whole, double(std::numeric_limits<Sample>::min())),
                        double(std::numeric_limits<Sample>::max()));
    });
}

QString Difference(const Picture &picture, const Expected &expected, double tolerance)
{
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            for (int channel = 0; channel < picture.Channels(); ++channel) {
                const double is = At(picture, x, y, channel);
                const double wanted = expected(x, y, channel);
                const bool isSame = std::isnan(wanted) ? std::isnan(is)
                                                       : is == wanted || std::abs(is - wanted) <= tolerance;
                if (!isSame)
                    return QString("(%1, %2) channel %3: %4 instead of %5")
                        .arg(x)
                        .arg(y)
                        .arg(channel)
                        .arg(is, 0, 'g', 17)
                        .arg(wanted, 0, 'g', 17);
            }
        }
    }
    return QString();
}

void AddShapes()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("type");
    for (int type = int(SampleType::U8); type <= int(SampleType::F64); ++type) {
        for (const QSize size : { QSize(1, 1), QSize(7, 1), QSize(1, 6), QSize(13, 9), QSize(8, 20) }) {
            for (const int channels : { 1, 3 }) {
                QTest::addRow("%s %dx%d, %d", qPrintable(SampleTypeName(SampleType(type))), size.width(),
                              size.height(), channels)
                    << size << channels << type;
            }
        }
    }
}

} // namespace RandomPicture
