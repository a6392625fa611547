// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "displaylevels.h"

#include <QMetaType>
#include <QVector>

struct SampleView;

/// What is known of the levels of a picture that is shown.
struct LevelsReport
{
    static constexpr int HistogramColumns = 256;

    int bitDepth = 8;
    DisplayLevels levels;      ///< that the picture was made with
    QVector<qint64> histogram; ///< of the raw samples, in columns that span all values of the bit depth

    /// The histogram of a large picture is that of a part of its rows.
    static LevelsReport Of(const SampleView &samples, const DisplayLevels &levels);
};

Q_DECLARE_METATYPE(LevelsReport)
