// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <utility>

/// How one sample of a picture is stored, in host byte order.
enum class SampleType { U8, S8, U16, S16, U32, S32, F32, F64 };

int BytesPerSample(SampleType type);
bool IsFloat(SampleType type);
/// For the user: "16-bit unsigned integer".
QString SampleTypeName(SampleType type);

/// Calls `visit` with a value of the C++ type of the samples; the value itself means nothing.
template <typename Visitor>
decltype(auto) VisitSampleType(SampleType type, Visitor &&visit)
{
    switch (type) {
    case SampleType::U8: return visit(quint8());
    case SampleType::S8: return visit(qint8());
    case SampleType::U16: return visit(quint16());
    case SampleType::S16: return visit(qint16());
    case SampleType::U32: return visit(quint32());
    case SampleType::S32: return visit(qint32());
    case SampleType::F32: return visit(float());
    case SampleType::F64: break;
    }
    return visit(double());
}
