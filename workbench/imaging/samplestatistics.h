// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVector>

struct SampleView;

/// What the samples of one picture are like, all of them; a colour picture's three channels count alike.
struct SampleStatistics
{
    static constexpr int HistogramColumns = 256;

    qint64 count = 0; ///< 0: no picture, and nothing else is known
    int bitDepth = 8;
    int minimum = 0;
    int maximum = 0;
    double mean = 0;
    double deviation = 0;      ///< root of the mean squared distance to the mean
    qint64 saturated = 0;      ///< samples at full scale or above
    QVector<qint64> histogram; ///< in columns that share the values of the bit depth

    static SampleStatistics Of(const SampleView &samples);
};
