// SPDX-License-Identifier: GPL-3.0-or-later
#include "sampletype.h"

#include <QCoreApplication>

#include <type_traits>

int BytesPerSample(SampleType type)
{
    return VisitSampleType(type, [](auto sample) { return int(sizeof sample); });
}

bool IsFloat(SampleType type)
{
    return VisitSampleType(type, [](auto sample) { return std::is_floating_point_v<decltype(sample)>; });
}

QString SampleTypeName(SampleType type)
{
    return VisitSampleType(type, [](auto sample) {
        using Sample = decltype(sample);
        const int bits = int(sizeof sample) * 8;
        if (std::is_floating_point_v<Sample>)
            return QCoreApplication::translate("SampleType", "%1-bit floating point").arg(bits);
        if (std::is_signed_v<Sample>)
            return QCoreApplication::translate("SampleType", "%1-bit signed integer").arg(bits);
        return QCoreApplication::translate("SampleType", "%1-bit unsigned integer").arg(bits);
    });
}
