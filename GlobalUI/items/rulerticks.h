// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineF>
#include <QSize>
#include <QStringList>
#include <QVector>

struct RulerSteps;

// The ticks of a ruler and the numbers at them, in widget pixels.

/// What the numbers say: tick index * multiplier + offset.
struct RulerNumbers
{
    double multiplier;
    double offset;
    int decimals;
};

/// Numbers of image pixels, or, when both ends of the range are at least 0, of a value that runs from
/// `rangeMin` at pixel 0 to `rangeMax` at the far end of the image.
RulerNumbers ComputeRulerNumbers(int minorStep, int imageLength, double rangeMin, double rangeMax, int decimals);

/// Where the ruler lies and which part of the image it stands at.
struct RulerPlace
{
    QSize itemSize;      ///< widget pixels
    int visibleStart;    ///< image pixels
    double zoom;         ///< shifts the start by (1 - 1 / zoom) of the item's length
    int majorTickLength; ///< widget pixels
    int minorTickLength; ///< widget pixels
};

struct RulerTicks
{
    QVector<QLineF> lines;      ///< majors and minors
    QVector<QLineF> majorLines; ///< one per label
    QStringList labels;

    void Clear();
    bool operator==(const RulerTicks &other) const;
};

/// Ticks that hang from the top edge. Without valid steps there are none.
void BuildHorizontalTicks(const RulerSteps &steps, const RulerNumbers &numbers, const RulerPlace &place,
                          RulerTicks *ticks);
/// Ticks that come in from the right edge, from the top down or from the bottom up.
void BuildVerticalTicks(const RulerSteps &steps, const RulerNumbers &numbers, const RulerPlace &place, bool bottomUp,
                        RulerTicks *ticks);
