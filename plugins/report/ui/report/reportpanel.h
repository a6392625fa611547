// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fieldform.h"
#include "sourcepanel.h"

/// The tab "Report": what is to be told of the picture that is worked on.
class ReportPanel : public SourcePanel<FieldForm>
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "reportpanel.json")
    Q_INTERFACES(UIPlugin)

public:
    ReportPanel();
};
