// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fieldform.h"
#include "sourcepanel.h"

/// The tab "Analysis": the picture that is worked on, its samples, and what was measured in it.
class AnalysisPanel : public SourcePanel<FieldForm>
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "analysispanel.json")
    Q_INTERFACES(UIPlugin)

public:
    AnalysisPanel();
};
