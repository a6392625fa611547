// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameraadjustmentpanel.h"

CameraAdjustmentPanel::CameraAdjustmentPanel()
    : SourcePanel(FieldSource::CameraAdjustmentName, "CameraAdjustmentPanel",
                  tr("This program does not let panels adjust its live picture."))
{
}
