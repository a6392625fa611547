// SPDX-License-Identifier: GPL-3.0-or-later
#include "reportpanel.h"

ReportPanel::ReportPanel()
    : SourcePanel(FieldSource::ReportName, "ReportPanel", tr("This program makes no reports."))
{
}
