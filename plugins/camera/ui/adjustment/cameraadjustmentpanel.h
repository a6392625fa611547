// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fieldform.h"
#include "sourcepanel.h"

/// The tab "Adjustment" of the camera: how the live picture is shown.
class CameraAdjustmentPanel : public SourcePanel<FieldForm>
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "cameraadjustmentpanel.json")
    Q_INTERFACES(UIPlugin)

public:
    CameraAdjustmentPanel();
};
