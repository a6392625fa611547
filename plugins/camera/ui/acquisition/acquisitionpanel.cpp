// SPDX-License-Identifier: GPL-3.0-or-later
#include "acquisitionpanel.h"

AcquisitionPanel::AcquisitionPanel()
    : SourcePanel(FieldSource::AcquisitionName, "AcquisitionPanel",
                  tr("This program does not let panels set up its recordings."))
{
}
