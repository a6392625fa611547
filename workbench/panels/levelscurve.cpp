// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelscurve.h"

#include "levelsreport.h"

HistogramCurve LevelsCurve(const LevelsReport &report)
{
    HistogramCurve curve;
    curve.counts = report.histogram;
    curve.from = report.axis.left;
    curve.to = report.axis.right;
    curve.hasLevels = true;
    curve.left = report.levels.left;
    curve.right = report.levels.right;
    curve.gamma = report.gamma;
    return curve;
}
