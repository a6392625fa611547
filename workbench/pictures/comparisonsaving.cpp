// SPDX-License-Identifier: GPL-3.0-or-later
#include "comparisonsaving.h"

ComparisonSaving::ComparisonSaving(QObject *parent)
    : CompareSaver(parent)
{
}

void ComparisonSaving::slotSave() { emit signalSaveCompare(); }
