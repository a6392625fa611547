// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

/// Smooths with a polynomial of `degree` through every window of `window` samples (made odd). Up to the ends: there the
/// first and the last window count (Gorry, Analytical Chemistry 62, 570, 1990). Unchanged when there are fewer samples
/// than the window has, or the window is no wider than the degree.
std::vector<double> SavitzkyGolay(const std::vector<double> &samples, int window, int degree);
