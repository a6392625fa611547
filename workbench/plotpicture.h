// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

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
/// A file with the picture of a plot, as it is on the screen. A curve is drawn anew, so that it stays sharp in SVG and
/// PDF; tracks in 3D are the pixels of the screen in all of them. GUI thread.
QByteArray PlotPicture(QWidget *plot, PlotForm form);
