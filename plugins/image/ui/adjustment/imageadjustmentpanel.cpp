// SPDX-License-Identifier: GPL-3.0-or-later
#include "imageadjustmentpanel.h"

ImageAdjustmentPanel::ImageAdjustmentPanel()
    : SourcePanel(FieldSource::ImageAdjustmentName, "ImageAdjustmentPanel",
                  tr("This program does not let panels adjust its pictures."))
{
}
