// SPDX-License-Identifier: GPL-3.0-or-later
#include "samplekind.h"

#include <cmath>
#include <limits>

double SampleKind::Least() const
{
    if (m_number == Unsigned)
        return 0;
    return m_number == Signed ? -std::ldexp(1.0, m_bits - 1) : -std::numeric_limits<double>::max() / 2;
}

double SampleKind::Most() const
{
    if (m_number == Floating)
        return std::numeric_limits<double>::max() / 2;
    return std::ldexp(1.0, m_number == Signed ? m_bits - 1 : m_bits) - 1;
}

QString SampleKind::Name() const
{
    const char *const numbers[] = { "", "Signed", "Floating" };
    return QString("%1bit%2").arg(m_bits).arg(numbers[m_number]);
}
