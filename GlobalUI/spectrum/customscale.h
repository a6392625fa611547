// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qwt3d_scale.h>

/// A linear scale whose labels tell something else than the position: the position over a factor (the
/// number of a track) or times a factor (counts). The axis that it is set to owns it.
class CustomScale : public Qwt3D::LinearScale
{
public:
    enum Mode
    {
        TimesFactor = 0, ///< in exponent notation
        OverFactor = 1
    };

    /// With any other mode than those the label is the position itself.
    CustomScale(double factor, int mode);

    /// Empty when there is no such major tick.
    QString ticLabel(unsigned int index) const override;
    Qwt3D::Scale *clone() const override;

private:
    double m_factor;
    int m_mode;
};
