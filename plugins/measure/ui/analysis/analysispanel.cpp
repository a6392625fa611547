// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysispanel.h"

AnalysisPanel::AnalysisPanel()
    : SourcePanel(FieldSource::AnalysisName, "AnalysisPanel", tr("This program has no analysis."))
{
}
