// SPDX-License-Identifier: GPL-3.0-or-later
#include "trackplot.h"

TrackPlot::TrackPlot()
{
    // None of the library's own styles, which end at 6.
    setPlotStyle(Qwt3D::PLOTSTYLE(7));
}
