// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fieldform.h"
#include "sourcepanel.h"

/// The tab "Acquisition": what the next recording is to be and what its file is called.
class AcquisitionPanel : public SourcePanel<FieldForm>
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "acquisitionpanel.json")
    Q_INTERFACES(UIPlugin)

public:
    AcquisitionPanel();
};
