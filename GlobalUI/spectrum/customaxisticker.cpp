// SPDX-License-Identifier: GPL-3.0-or-later
#include "customaxisticker.h"

#include <algorithm>
#include <cmath>

CustomAxisTicker::CustomAxisTicker(bool wholeSteps)
    : m_wholeSteps(wholeSteps)
{
}

double CustomAxisTicker::getTickStep(const QCPRange &range)
{
    const double step = QCPAxisTicker::getTickStep(range);
    return m_wholeSteps ? std::max(1.0, std::round(step)) : step;
}
