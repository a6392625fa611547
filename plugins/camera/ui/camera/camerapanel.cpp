// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerapanel.h"

CameraPanel::CameraPanel()
    : SourcePanel(FieldSource::CameraName, "CameraPanel",
                  tr("This program does not let panels control its camera."))
{
}
