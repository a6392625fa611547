// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sourcepanel.h"
#include "tablepage.h"

/// The bottom page "Class Counting": how many objects each class has.
class ClassCountPanel : public SourcePanel<TablePage>
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "classcountpanel.json")
    Q_INTERFACES(UIPlugin)

public:
    ClassCountPanel();
};
