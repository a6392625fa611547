// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "displaylevels.h"

#include <QMetaType>
#include <QVector>

/// What is known of the levels of a picture that is shown.
struct LevelsReport
{
    int bitDepth = 8;
    DisplayLevels levels;      ///< that the picture was made with
    QVector<qint64> histogram; ///< of the raw samples, in columns that span all values of the bit depth
};

Q_DECLARE_METATYPE(LevelsReport)
