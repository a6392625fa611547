// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panelfield.h"

#include <QCoreApplication>

struct SampleStatistics;

/// The numbers of a picture's samples, as lines to be read.
class StatisticsNotes
{
    Q_DECLARE_TR_FUNCTIONS(StatisticsNotes)

public:
    /// A dash stands for each number while there is no picture.
    static PanelFields Of(const SampleStatistics &statistics, const QString &group);
};
