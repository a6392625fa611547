// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// A scale factor as the zoom box shows it: 1.0 is "100.00%". Computed in single precision.
QString ZoomPercentText(double scaleFactor);
/// The scale factor that a typed percentage asks for: what stands before the first "%", divided by
/// 100, at most 32. A text that is no number asks for 0; the view raises that to its minimum.
double ZoomRatioFromText(const QString &text);
