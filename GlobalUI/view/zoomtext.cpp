// SPDX-License-Identifier: GPL-3.0-or-later
#include "zoomtext.h"

#include <algorithm>

QString ZoomPercentText(double scaleFactor)
{
    const float percent = float(scaleFactor) * 100.0F;
    return QString::number(double(percent), 'f', 2) + "%";
}

double ZoomRatioFromText(const QString &text)
{
    constexpr double MaximumRatio = 32;
    return std::min(MaximumRatio, text.section('%', 0, 0).toDouble() / 100);
}
