// SPDX-License-Identifier: GPL-3.0-or-later
#include "livehistogram.h"

LiveHistogram::LiveHistogram(QObject *parent)
    : HistogramCalculateManager(parent)
{
}

void LiveHistogram::SetHistogramStatisticsState(bool) {}
