// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qwt3d_function.h>

/// Carries mesh and domain of the 3D plot. Its surface is not drawn: it only has to reach the lowest and
/// the highest z, between which the plot's box then stands.
class Rosenbrock : public Qwt3D::Function
{
public:
    explicit Rosenbrock(Qwt3D::SurfacePlot *plot);

    /// Beyond all limits of z, below at the left edge of the domain and above elsewhere.
    double operator()(double x, double y) override;
};
