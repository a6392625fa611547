// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineF>
#include <QSize>
#include <QVector>

#include <vector>

// The lines of an intensity curve: one per widget pixel, however many samples there are.

/// What a curve is drawn into, in widget pixels, and the intensities at its two ends.
struct CurveWindow
{
    QSize itemSize;
    int borderWidth;
    int leftLevel;  ///< at the baseline
    int rightLevel; ///< at the far edge
};

/// Samples along the width, intensity upward. Without samples the lines stay as they are; with equal
/// levels every sample lies on the baseline.
void BuildHorizontalCurve(const std::vector<int> &samples, const CurveWindow &window, QVector<QLineF> *lines);
/// Samples along the height, intensity to the right.
void BuildVerticalCurve(const std::vector<int> &samples, const CurveWindow &window, QVector<QLineF> *lines);
