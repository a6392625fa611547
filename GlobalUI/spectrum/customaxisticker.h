// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

/// Ticks of the spectrum's x axis, at the steps that QCustomPlot chooses.
class CustomAxisTicker : public QCPAxisTicker
{
public:
    /// With `wholeSteps` no tick stands between two pixels, however far the axis is zoomed in.
    explicit CustomAxisTicker(bool wholeSteps);

protected:
    double getTickStep(const QCPRange &range) override;

private:
    bool m_wholeSteps;
};
