// SPDX-License-Identifier: GPL-3.0-or-later
#include "autocountpanel.h"

AutoCountPanel::AutoCountPanel()
    : SourcePanel(FieldSource::CountName, "AutoCountPanel", tr("This program does not count by itself."))
{
}
