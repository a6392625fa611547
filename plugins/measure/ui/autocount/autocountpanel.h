// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sourcepanel.h"
#include "tablepage.h"

/// The bottom page "Automatic Counting Table": the objects that were counted in the opened picture.
class AutoCountPanel : public SourcePanel<TablePage>
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "autocountpanel.json")
    Q_INTERFACES(UIPlugin)

public:
    AutoCountPanel();
};
