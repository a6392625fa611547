// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "histogramcalculatemanager.h"

/// Live histogram statistics, which nothing computes yet. GUI thread.
class LiveHistogram : public HistogramCalculateManager
{
    Q_OBJECT

public:
    explicit LiveHistogram(QObject *parent = nullptr);

    void SetHistogramStatisticsState(bool enabled) override;
};
