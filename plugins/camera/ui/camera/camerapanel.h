// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fieldform.h"
#include "sourcepanel.h"

/// The tab "Camera": which camera, its exposure, gain and frame rate, what it sends and from where on its sensor.
class CameraPanel : public SourcePanel<FieldForm>
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "camerapanel.json")
    Q_INTERFACES(UIPlugin)

public:
    CameraPanel();
};
