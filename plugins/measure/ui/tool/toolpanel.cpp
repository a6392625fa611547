// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolpanel.h"

ToolPanel::ToolPanel()
    : SourcePanel(FieldSource::ToolName, "ToolPanel", tr("This program has no tools."))
{
}
