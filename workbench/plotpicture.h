// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <functional>

class QWidget;

/// The forms that a plot can be saved in.
enum class PlotForm
{
    Png, ///< twice as fine as on the screen
    Svg,
    Pdf
};

/// The plot that is seen on a page: a curve, or tracks in 3D; null when there is none.
QWidget *VisiblePlot(QWidget *page);
/// Makes a file with the picture of a plot, as it is on the screen now, in any thread; an empty one when there is no memory for
/// it. The plot is drawn anew, so that it stays sharp: as lines and texts in SVG and PDF, and finer than the screen in PNG. GUI
/// thread.
std::function<QByteArray()> PlotPicture(QWidget *plot, PlotForm form);
