// SPDX-License-Identifier: GPL-3.0-or-later
#include "rosenbrock.h"

#include <limits>

Rosenbrock::Rosenbrock(Qwt3D::SurfacePlot *plot)
    : Qwt3D::Function(plot)
{
}

double Rosenbrock::operator()(double x, double)
{
    const double highest = std::numeric_limits<double>::max();
    return x <= 0.0 ? -highest : highest;
}
