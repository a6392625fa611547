// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sourcepanel.h"
#include "tablepage.h"

/// The bottom page "Calibration Table": what positions in the picture stand for.
class CalibrationPanel : public SourcePanel<TablePage>
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "calibrationpanel.json")
    Q_INTERFACES(UIPlugin)

public:
    CalibrationPanel();
};
