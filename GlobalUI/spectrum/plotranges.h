// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

// Axis ranges of the 2D spectrum plot. A range that comes out empty or reversed is none to zoom to.

/// The upper end that leaves `blankRatio` of the height above 0 (0 to below 1) free above `upper`.
double UpperWithBlank(double upper, double blankRatio);
/// From `lower` to an upper end that leaves `blankRatio` of the height above 0 (0 to below 1) free above `upper`. A curve
/// that lies below 0 as a whole has that much of its own height free.
QCPRange WithBlankAbove(double lower, double upper, double blankRatio);

/// The value axis with its ends on whole numbers, its upper end times `factor`. Where that comes out at or below the lower end
/// the old range stays: the axis would turn such a range round and show what lies below the curve, not the curve zoomed in.
QCPRange ZoomedValueRange(const QCPRange &range, double factor);

/// 5 % of the span, on whole numbers, taken off (or, with a negative sign, added) at each end of the
/// x axis, but not beyond the curve's ends on whole numbers. Without room it is the old range.
QCPRange HorizontallyZoomedIn(const QCPRange &range, const QCPRange &curve);
QCPRange HorizontallyZoomedOut(const QCPRange &range, const QCPRange &curve);

/// What a drag to the right chose, not beyond the curve's ends.
QCPRange DraggedRange(double from, double to, const QCPRange &curve);
