// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "displaylevels.h"
#include "samplekind.h"
#include "samplerange.h"

#include <QMetaType>
#include <QVector>

struct SampleView;

/// What is known of the levels of a picture that is shown.
struct LevelsReport
{
    static constexpr int HistogramColumns = 256;
    /// A picture of the histogram needs no more.
    static constexpr int HistogramRows = 256;

    SampleKind kind;
    SampleRange levels = { 0, 255 }; ///< that the picture was made with
    double gamma = 1.0;
    /// Of the histogram; whole values lie in the middle of their share of it.
    SampleRange axis = { -0.5, 255.5 };
    QVector<qint64> histogram; ///< of the raw samples, in columns that share the axis

    /// The histogram spans all values of the bit depth; that of a large picture is that of a part of its rows.
    static LevelsReport Of(const SampleView &samples, const DisplayLevels &levels);
};

Q_DECLARE_METATYPE(LevelsReport)
