// SPDX-License-Identifier: GPL-3.0-or-later
#include "histogrampanel.h"

HistogramPanel::HistogramPanel()
    : SourcePanel(FieldSource::HistogramName, "HistogramPanel",
                  tr("This program tells nothing of its live samples."))
{
}
