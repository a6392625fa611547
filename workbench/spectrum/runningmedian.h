// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

/// The median of the samples up to `reach` to each side, worked out at every eighth of the reach and drawn straight in
/// between. Near the ends the window is as far as there are samples.
std::vector<double> RunningMedian(const std::vector<double> &samples, int reach);
