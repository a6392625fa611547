// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>
#include <QList>
#include <QSize>
#include <QString>

#include <vector>

/// Rows of the sensor that light of one fibre falls on: from `top` to before `bottom`.
struct RowBand
{
    int top = 0;
    int bottom = 0;
    double light = 0; ///< above the background, summed over its rows
};

/// The same rows in the same order, whatever their light.
bool HaveSameRows(const std::vector<RowBand> &tracks, const std::vector<RowBand> &others);

constexpr int MostTracksAtAll = 256;

/// The bands of a profile, which holds the light of each row, from the top: what stands out from the dark rows by more
/// than noise explains, down to half of its brightest row. Bands of less than a hundredth of the brightest are left out.
std::vector<RowBand> FindBands(const std::vector<double> &profile);

/// Why tracks cannot be used on frames of that size, for the user; empty when they can. `most` tracks fit into the plot.
QString TracksFault(const QList<QRectF> &tracks, QSize frame, int most);
