// SPDX-License-Identifier: GPL-3.0-or-later
#include "fitssamples.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>

namespace {

template <typename Sample, typename Stored>
void Convert(const QByteArray &bytes, std::vector<double> &values)
{
    for (size_t i = 0; i < values.size(); ++i) {
        const Stored stored = qFromBigEndian<Stored>(bytes.constData() + i * sizeof(Stored));
        Sample sample;
        std::memcpy(&sample, &stored, sizeof sample);
        values[i] = double(sample);
    }
}

template <typename Sample>
Sample Limited(double value)
{
    if constexpr (std::is_same_v<Sample, float>) {
        if (std::abs(value) > double(std::numeric_limits<float>::max()))
            return std::copysign(std::numeric_limits<float>::infinity(), float(std::copysign(1.0, value)));
        return float(value);
    } else if constexpr (std::is_floating_point_v<Sample>) {
        return value;
    } else {
        return Sample(std::clamp(value, double(std::numeric_limits<Sample>::min()), double(std::numeric_limits<Sample>::max())));
    }
}

} // namespace

bool ConvertFitsSamples(const QByteArray &bytes, bool isFloat, std::vector<double> &values)
{
    if (bytes.isEmpty() || values.empty() || size_t(bytes.size()) % values.size() != 0)
        return false;
    switch (size_t(bytes.size()) / values.size()) {
    case 1: Convert<quint8, quint8>(bytes, values); return !isFloat;
    case 2: Convert<qint16, quint16>(bytes, values); return !isFloat;
    case 4: isFloat ? Convert<float, quint32>(bytes, values) : Convert<qint32, quint32>(bytes, values); return true;
    case 8: isFloat ? Convert<double, quint64>(bytes, values) : Convert<qint64, quint64>(bytes, values); return true;
    default: return false;
    }
}

void StoreSamples(const double *values, int count, Picture &picture, int x, int y)
{
    VisitSampleType(picture.Type(), [&](auto sample) {
        using Sample = decltype(sample);
        std::transform(values, values + count, picture.Samples<Sample>(y) + x, Limited<Sample>);
    });
}
