// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <tuple>

/// What counts as an object. Areas are pixels, circularity is 4 pi area / perimeter^2, at most 1.
struct CountSettings
{
    static constexpr double MostArea = 1e9;

    bool isAutomatic = true; ///< the level that separates two classes best
    double level = 128;      ///< objects have samples from it on, in units of the samples
    bool takesDark = false;  ///< objects have samples below it instead
    bool fillsHoles = true;
    bool splits = true;         ///< objects that touch are parted at their waists
    double splitDepthPx = 1.0;  ///< how much narrower a waist is on each side than the parts beside it
    bool leavesOutEdge = false; ///< objects that touch the edge of the picture don't count
    double leastArea = 20;
    double mostArea = MostArea;
    double leastCircularity = 0;
    double mostCircularity = 1;

    bool operator==(const CountSettings &o) const
    {
        return std::tie(isAutomatic, level, takesDark, fillsHoles, splits, splitDepthPx, leavesOutEdge, leastArea,
                        mostArea, leastCircularity, mostCircularity)
               == std::tie(o.isAutomatic, o.level, o.takesDark, o.fillsHoles, o.splits, o.splitDepthPx,
                           o.leavesOutEdge, o.leastArea, o.mostArea, o.leastCircularity, o.mostCircularity);
    }
    bool operator!=(const CountSettings &o) const { return !(*this == o); }
};
