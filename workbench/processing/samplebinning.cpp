// SPDX-License-Identifier: GPL-3.0-or-later
#include "samplebinning.h"

#include "limitedsample.h"

#include <QCoreApplication>

#include <cmath>
#include <vector>

namespace {

int SideOf(const BinningSettings &settings) { return qBound(2, settings.size, BinningSettings::MostSize); }

/// Sum of the numbers of a square, or their mean; no number when there is none.
struct SquareSum
{
    double sum = 0;
    int count = 0;

    void Add(double value)
    {
        if (!std::isfinite(value))
            return;
        sum += value;
        ++count;
    }
    double Result(bool sums) const
    {
        if (count == 0)
            return std::numeric_limits<double>::quiet_NaN();
        return sums ? sum : sum / count;
    }
};

template <typename From>
void AddRow(const From *row, int columns, int channels, int side, std::vector<SquareSum> &sums)
{
    for (int column = 0; column < columns; ++column) {
        for (int x = column * side; x < (column + 1) * side; ++x) {
            for (int channel = 0; channel < channels; ++channel)
                sums[size_t(column * channels + channel)].Add(double(row[x * channels + channel]));
        }
    }
}

} // namespace

SampleType SumType(SampleType type)
{
    switch (type) {
    case SampleType::U8:
        return SampleType::U16;
    case SampleType::S8:
        return SampleType::S16;
    case SampleType::U16:
        return SampleType::U32;
    case SampleType::S16:
        return SampleType::S32;
    case SampleType::F32:
        return SampleType::F32;
    default:
        return SampleType::F64;
    }
}

QSize BinnedSize(const QSize &size, const BinningSettings &settings)
{
    const int side = SideOf(settings);
    return QSize(size.width() / side, size.height() / side); // QSize's own division rounds
}

Picture Binned(const Picture &picture, const BinningSettings &settings, QString &error)
{
    const int side = SideOf(settings);
    const QSize size = BinnedSize(picture.Size(), settings);
    if (size.isEmpty()) {
        error = QCoreApplication::translate("Binning", "The picture, %1x%2 pixels, is smaller than %3x%3.")
                    .arg(picture.Width())
                    .arg(picture.Height())
                    .arg(side);
        return Picture();
    }
    const int channels = picture.Channels();
    Picture result(size.width(), size.height(), channels,
                   settings.sums ? SumType(picture.Type()) : picture.Type());
    std::vector<SquareSum> sums;
    for (int y = 0; y < size.height(); ++y) {
        sums.assign(size_t(size.width() * channels), SquareSum());
        for (int row = y * side; row < (y + 1) * side; ++row)
            VisitSampleType(picture.Type(), [&](auto type) {
                AddRow(picture.Samples<decltype(type)>(row), size.width(), channels, side, sums);
            });
        VisitSampleType(result.Type(), [&](auto type) {
            using Sample = decltype(type);
            for (size_t i = 0; i < sums.size(); ++i)
                result.Samples<Sample>(y)[i] = LimitedSample<Sample>(sums[i].Result(settings.sums));
        });
    }
    return result;
}
