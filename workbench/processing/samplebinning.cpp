// SPDX-License-Identifier: GPL-3.0-or-later
#include "samplebinning.h"

#include "picturegeometry.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

/// The same values in a type that holds them all.
Picture InType(const Picture &picture, SampleType type)
{
    Picture result(picture.Width(), picture.Height(), picture.Channels(), type);
    const qint64 count = qint64(picture.Width()) * picture.Height() * picture.Channels();
    VisitSampleType(picture.Type(), [&](auto fromType) {
        const auto *from = reinterpret_cast<const decltype(fromType) *>(picture.Data());
        VisitSampleType(type, [&](auto toType) {
            auto *to = reinterpret_cast<decltype(toType) *>(result.Data());
            std::transform(from, from + count, to, [](auto sample) { return decltype(toType)(sample); });
        });
    });
    return result;
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

int BinningSide(const BinningSettings &settings) { return qBound(2, settings.size, BinningSettings::MostSize); }

QSize BinnedSize(const QSize &size, const BinningSettings &settings)
{
    const int side = BinningSide(settings);
    return QSize(size.width() / side, size.height() / side); // QSize's own division rounds
}

Picture BinnedBy(const Picture &picture, const BinningSettings &settings, QString &error)
{
    const int side = BinningSide(settings);
    const QSize size = BinnedSize(picture.Size(), settings);
    if (size.isEmpty()) {
        error = QCoreApplication::translate("Binning", "The picture, %1x%2 pixels, is smaller than %3x%3.")
                    .arg(picture.Width())
                    .arg(picture.Height())
                    .arg(side);
        return Picture();
    }
    const bool isWider = settings.sums && SumType(picture.Type()) != picture.Type();
    return Binned(isWider ? InType(picture, SumType(picture.Type())) : picture, side, side,
                  settings.sums ? Binning::Sum : Binning::Mean);
}
