// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "comparesaver.h"

/// Saving of a comparison, asked for in the list of opened pictures. GUI thread.
class ComparisonSaving : public CompareSaver
{
    Q_OBJECT

public:
    explicit ComparisonSaving(QObject *parent = nullptr);

public slots:
    void slotSave();
};
