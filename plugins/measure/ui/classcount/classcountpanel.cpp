// SPDX-License-Identifier: GPL-3.0-or-later
#include "classcountpanel.h"

ClassCountPanel::ClassCountPanel()
    : SourcePanel(FieldSource::ClassCountName, "ClassCountPanel", tr("This program does not count by class."))
{
}
