// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaType>
#include <QVector>

/// A histogram as it is drawn, with the levels of the picture in it.
struct HistogramCurve
{
    QVector<qint64> counts; ///< of equal shares of the axis; empty: there is no picture
    double from = -0.5;     ///< of the axis, in units of the samples
    double to = 255.5;
    bool hasLevels = false; ///< the next three are shown too
    double left = 0;        ///< black
    double right = 255;     ///< white
    double gamma = 1.0;
};

Q_DECLARE_METATYPE(HistogramCurve)
