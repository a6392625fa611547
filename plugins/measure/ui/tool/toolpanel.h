// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fieldform.h"
#include "sourcepanel.h"

/// The tab "Tool Properties": what can be set of the tool that is chosen.
class ToolPanel : public SourcePanel<FieldForm>
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "toolpanel.json")
    Q_INTERFACES(UIPlugin)

public:
    ToolPanel();
};
