// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPen>

/// How the plots look.
struct PlotStyle
{
    QPen line = QPen(Qt::blue, 1.0);
    QPen peak = QPen(Qt::red, 1.0);
    double peakSize = 8.0; ///< pixels
    int peakNumber = 10;   ///< 0 is all of them
    QColor background = Qt::white;
    double blankRatio = 0.1; ///< of the height, free above the highest value; 0 to below 1
};
