// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qwt3d_surfaceplot.h>

/// The plot of the track lines. Its data give the box and the axes; no surface is drawn of them, only the
/// enrichments.
class TrackPlot : public Qwt3D::SurfacePlot
{
public:
    TrackPlot();

protected:
    void createData() override {}
};
