// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fieldform.h"
#include "sourcepanel.h"

/// The tab "Adjustment" of opened pictures: how they are shown.
class ImageAdjustmentPanel : public SourcePanel<FieldForm>
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "imageadjustmentpanel.json")
    Q_INTERFACES(UIPlugin)

public:
    ImageAdjustmentPanel();
};
