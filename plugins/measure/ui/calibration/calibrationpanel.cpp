// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibrationpanel.h"

CalibrationPanel::CalibrationPanel()
    : SourcePanel(FieldSource::CalibrationName, "CalibrationPanel", tr("This program does not calibrate."))
{
}
