// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

#include <vector>

struct SampleView;

/// How sharp and how upright one spectral line is on the sensor.
struct LineFocus
{
    QRect area;       ///< the line with some room around it, picture pixels
    double column = 0; ///< where the spectrum has it, at the middle of its rows, or columns of a vertical one
    double tiltDegrees = 0; ///< from upright; positive when it leans to the right going down
    double width = 0; ///< full width at half maximum, pixels, the median of the slices
};

/// Measures the strongest lines of rows `top` to before `bottom`: the band is cut into slices, and a straight line
/// through the places of a line in them gives its tilt.
std::vector<LineFocus> MeasureLines(const SampleView &picture, int top, int bottom, int mostLines);
