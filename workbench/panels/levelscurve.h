// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "histogramcurve.h"

struct LevelsReport;

/// A report of levels as panels and dialogs draw it.
HistogramCurve LevelsCurve(const LevelsReport &report);
