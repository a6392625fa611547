// SPDX-License-Identifier: GPL-3.0-or-later
#include "customscale.h"

CustomScale::CustomScale(double factor, int mode)
    : m_factor(factor)
    , m_mode(mode)
{
}

QString CustomScale::ticLabel(unsigned int index) const
{
    if (index >= majors_p.size())
        return QString();
    const double value = majors_p[index];
    switch (m_mode) {
    case OverFactor:
        return QString::number(value / m_factor, 'g', 6);
    case TimesFactor:
        return QString::number(value * m_factor, 'e', 0);
    default:
        return QString::number(value, 'g', 6);
    }
}

Qwt3D::Scale *CustomScale::clone() const { return new CustomScale(*this); }
